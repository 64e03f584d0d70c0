#pragma once

#include <array>
#include <cstdio>
#include <random>
#include <string>

namespace eeprog::prueba {

using Chip = std::array<unsigned char, 8192>;

// A chip full of bytes that no two tests share by chance.
inline void azar(Chip& chip, unsigned semilla)
{
    std::mt19937 generador(semilla);
    for (unsigned char& byte : chip)
        byte = static_cast<unsigned char>(generador());
}

// The Intel HEX text a whole-chip read should give, built with printf rather than the
// program's own hexadecimal routines: one 16-byte data line a block, CR LF after each.
inline std::string lineashex(const Chip& chip)
{
    std::string texto;
    char pieza[8];
    for (int direccion = 0; direccion < 8192; direccion += 16) {
        unsigned suma = 0x10 + (direccion >> 8) + (direccion & 0xFF);
        std::snprintf(pieza, sizeof pieza, ":10%04X", direccion);
        texto += pieza + std::string("00");
        for (int k = 0; k < 16; ++k) {
            suma += chip[static_cast<std::size_t>(direccion + k)];
            std::snprintf(pieza, sizeof pieza, "%02X", chip[static_cast<std::size_t>(direccion + k)]);
            texto += pieza;
        }
        std::snprintf(pieza, sizeof pieza, "%02X\r\n", (0x100 - suma % 0x100) % 0x100);
        texto += pieza;
    }
    return texto;
}

} // namespace eeprog::prueba
