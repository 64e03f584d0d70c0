#pragma once

#include <string_view>

namespace eeprog {

// A chip the board takes, as data: the program's one description of each, beside the board's
// own table. Sizes, pages and addresses are the data sheets'.
struct Modelo {
    const char* nombre; // as the messages name it
    int tamano;         // bytes
    int pagina;         // bytes one write cycle takes
    int clave1, clave2; // the addresses of the software data protection's sequences
    int lineas;         // address lines: 15 take A13 on ZIF pin 26 and A14 on pin 1
    int numero;         // how the fast link names it
};

inline constexpr Modelo modelos[] = {
    {"AT28C64B", 8192, 64, 0x1555, 0x0AAA, 13, 0},
    {"AT28C256", 32768, 64, 0x5555, 0x2AAA, 15, 1}, // and its equals from other makers, 28C256
};
// The window's chip, the old protocol's only one, and the one a run takes by default.
inline constexpr const Modelo& at28c64b = modelos[0];
inline constexpr const Modelo& at28c256 = modelos[1];

// Whether a user's word names a chip: its name with or without the maker's "AT", in any case.
bool nombra(std::string_view palabra, std::string_view nombre);

// The chip a user names; null for none.
const Modelo* buscarmodelo(std::string_view palabra);

} // namespace eeprog
