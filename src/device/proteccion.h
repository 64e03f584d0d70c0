#pragma once

#include "link/enlace.h"

namespace eeprog {

// Turns the chip's software data protection on or off. False when the board did not answer
// that it was done. The port must be open and the board checked.
bool cambiarproteccion(Enlace& enlace, bool proteger);

} // namespace eeprog
