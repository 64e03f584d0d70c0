#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace eeprog {

// The last read of the chip: its bytes by address, and the same bytes as the Intel HEX
// lines that saving writes. A read fills entries 0 to 8191 and the text anew; nothing
// else writes them, so they hold the last read until the next one.
struct Leido {
    std::array<std::int16_t, 65536> vectorleido{};
    std::string textoleido;
};

} // namespace eeprog
