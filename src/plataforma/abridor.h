#pragma once

#include <string>

namespace eeprog {

// The desktop's document opener: it shows a file in whatever program the desktop has for
// its type, and returns at once while that program runs beside this one.
class Abridor {
public:
    virtual ~Abridor() = default;
    virtual void abrir(const std::string& ruta) = 0;
};

} // namespace eeprog
