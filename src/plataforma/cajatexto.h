#pragma once

#include "plataforma/color.h"

#include <string>

namespace eeprog {

// A multi-line text box whose text is the store: what the user typed into it stays and is
// read back by the next writer. Line breaks are CR LF; text is UTF-8.
class CajaTexto {
public:
    virtual ~CajaTexto() = default;
    virtual std::string texto() const = 0;
    virtual void ponertexto(const std::string& texto) = 0;
    virtual void ponercolor(Color fondo) = 0;
};

} // namespace eeprog
