#pragma once

#include "plataforma/abridor.h"

namespace eeprog {

// The desktop's opener (xdg-open and its kin on Linux). It starts the viewer and does
// not wait for it.
class AbridorEscritorio : public Abridor {
public:
    void abrir(const std::string& ruta) override;
};

} // namespace eeprog
