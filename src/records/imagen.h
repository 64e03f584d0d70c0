#pragma once

#include <array>
#include <bitset>
#include <cstdint>
#include <string>
#include <variant>

namespace eeprog {

inline constexpr int tamanoimagen = 8192; // AT28C64B: addresses 0x0000-0x1FFF

// What a file gives for the chip, as the strict readers take it.
struct Imagen {
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
