#pragma once

#include "editor/edicion.h"
#include "plataforma/skin.h"

namespace eeprog {

// Dresses a window in the engine's current skin. Every dressing ends edit mode, whether it
// comes from the start, a choice in the skin menu or the about box.
void aplicarskin(Skin& skin, Formulario formulario, Edicion& edicion);

} // namespace eeprog
