#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace eeprog {

// The ATmega16's low fuse byte, as the board needs it and as the core starts with it.
// A bit of a fuse byte is programmed when it is 0.

// What a firmware's ELF gives when it carries no fuses: the part's own, as it leaves the
// factory (internal RC oscillator at 1 MHz, brown-out detection off).
constexpr std::uint8_t fusiblebajodefabrica = 0xE1;

// What is wrong with the low fuse for the board, in Spanish, or nothing when it is right.
std::optional<std::string> revisarfusible(std::uint8_t bajo);

// From the end of reset to the first instruction, in nanoseconds: the crystal's start-up
// cycles and the delay the low fuse picks.
std::int64_t arranque(std::uint8_t bajo, std::uint32_t frecuencia);

} // namespace eeprog
