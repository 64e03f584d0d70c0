#pragma once

#include <functional>

namespace eeprog {

// What an operation tells as it goes: after each data byte, the count done so far; after each
// frame, that the board is idle again. Either may throw to end the operation, and the caller's
// frame then closes the port; only a throw at a frame's end leaves the board idle.
struct Avance {
    std::function<void(int hechos)> dato;
    std::function<void()> trama = [] {};
};

} // namespace eeprog
