#pragma once

namespace eeprog {

struct Color {
    int rojo = 0;
    int verde = 0;
    int azul = 0;
    friend bool operator==(const Color&, const Color&) = default;
};

inline constexpr Color negro{0, 0, 0};

} // namespace eeprog
