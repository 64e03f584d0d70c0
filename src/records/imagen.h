#pragma once

#include <array>
#include <bitset>
#include <cstdint>
#include <string>
#include <variant>

namespace eeprog {

// The largest chip the program knows: 32 KB.
inline constexpr int tamanoimagen = 32768;

// What a file gives for a chip of some size, as the strict readers take it.
struct Imagen {
    explicit Imagen(int tamano) : tamano(tamano) {}

    int tamano;                                     // the chip's bytes: the file's addresses stay below
    std::array<std::uint8_t, tamanoimagen> bytes{}; // value by address (0 where not given)
    std::bitset<tamanoimagen> dado;                 // the addresses the file gives
};

// Why a file is refused: the 1-based number of the line at fault (0: the file as a whole)
// and the reason, a short Spanish phrase in the program's style.
struct Rechazo {
    int linea = 0;
    std::string motivo;
};

using LecturaImagen = std::variant<Imagen, Rechazo>;

} // namespace eeprog
