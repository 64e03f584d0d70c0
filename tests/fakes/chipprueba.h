#pragma once

#include <array>
#include <cstdio>
#include <random>
#include <string>

namespace eeprog::prueba {

using Chip = std::array<unsigned char, 8192>;
using Chip256 = std::array<unsigned char, 32768>;

// A chip full of bytes that no two tests share by chance.
template <typename Bytes> void azar(Bytes& chip, unsigned semilla)
{
    std::mt19937 generador(semilla);
    for (unsigned char& byte : chip)
        byte = static_cast<unsigned char>(generador());
}

// The Intel HEX text a whole-chip read should give, built with printf rather than the
// program's own hexadecimal routines: one 16-byte data line a block, CR LF after each.
template <typename Bytes> std::string lineashex(const Bytes& chip)
{
    std::string texto;
    char pieza[16];
    for (std::size_t direccion = 0; direccion < chip.size(); direccion += 16) {
        unsigned suma = 0x10 + (direccion >> 8) + (direccion & 0xFF);
        texto.append(pieza, std::snprintf(pieza, sizeof pieza, ":10%04zX00", direccion));
        for (std::size_t k = direccion; k < direccion + 16; suma += chip[k++])
            texto.append(pieza, std::snprintf(pieza, sizeof pieza, "%02X", chip[k]));
        texto.append(pieza, std::snprintf(pieza, sizeof pieza, "%02X\r\n", (0x100 - suma % 0x100) % 0x100));
    }
    return texto;
}

} // namespace eeprog::prueba
