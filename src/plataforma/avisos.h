#pragma once

#include <string>

namespace eeprog {

enum class Icono { ninguno, exclamacion, critico, informacion };

// A message box with a single OK button. Lines of the text are joined by CR LF.
struct Aviso {
    std::string texto;
    std::string titulo;
    Icono icono = Icono::informacion;
    friend bool operator==(const Aviso&, const Aviso&) = default;
};

class Avisos {
public:
    virtual ~Avisos() = default;
    // Returns when the user has closed the box.
    virtual void mostrar(const Aviso& aviso) = 0;
};

} // namespace eeprog
