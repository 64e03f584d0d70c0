#include "link/modelo.h"

#include <algorithm>
#include <cctype>

namespace eeprog {

bool nombra(std::string_view palabra, std::string_view nombre)
{
    const auto igual = [&](std::string_view a) {
        return std::equal(a.begin(), a.end(), palabra.begin(), palabra.end(), [](char x, char y) {
            return std::toupper(static_cast<unsigned char>(x)) == std::toupper(static_cast<unsigned char>(y));
        });
    };
    return igual(nombre) || (nombre.starts_with("AT") && igual(nombre.substr(2)));
}

const Modelo* buscarmodelo(std::string_view palabra)
{
    for (const Modelo& modelo : modelos)
        if (nombra(palabra, modelo.nombre))
            return &modelo;
    return nullptr;
}

} // namespace eeprog
