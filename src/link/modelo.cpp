#include "link/modelo.h"

#include <algorithm>
#include <cctype>

namespace eeprog {

const Modelo* buscarmodelo(std::string_view nombre)
{
    const auto igual = [](std::string_view a, std::string_view b) {
        return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
            return std::toupper(static_cast<unsigned char>(x)) == std::toupper(static_cast<unsigned char>(y));
        });
    };
    for (const Modelo& modelo : modelos)
        if (igual(nombre, modelo.nombre) || igual(nombre, std::string_view(modelo.nombre).substr(2)))
            return &modelo;
    return nullptr;
}

} // namespace eeprog
