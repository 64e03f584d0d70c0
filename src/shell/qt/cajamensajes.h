#pragma once

#include "plataforma/avisos.h"

namespace eeprog {

// Message boxes on the screen, modal over the window that is active.
class CajaMensajes : public Avisos {
public:
    void mostrar(const Aviso& aviso) override;
};

} // namespace eeprog
