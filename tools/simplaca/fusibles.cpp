#include "fusibles.h"

#include <cstdio>

namespace eeprog {

namespace {

constexpr std::uint8_t bodlevel = 0x80; // programmed: brown-out at 4.0 V, else 2.7 V
constexpr std::uint8_t boden = 0x40;    // programmed: brown-out detection on
constexpr std::uint8_t cristal = 0x0E;  // CKSEL3..1 all unprogrammed: crystal of 3 to 8 MHz
constexpr std::uint8_t debido = 0x3F;

struct Espera {
    std::int64_t ciclos;
    std::int64_t retraso; // ns
};

// The data sheet's start-up times for the crystal oscillator, by CKSEL0 and SUT1..0. The
// simulated core always runs from the board's crystal, so this table is read whatever
// oscillator the fuses ask for.
constexpr Espera esperas[8] = {
    {258, 4'100'000},   {258, 65'000'000}, {1024, 0},          {1024, 4'100'000},
    {1024, 65'000'000}, {16384, 0},        {16384, 4'100'000}, {16384, 65'000'000},
};

std::string hexadecimal(std::uint8_t valor)
{
    char texto[8];
    std::snprintf(texto, sizeof texto, "0x%02X", valor);
    return texto;
}

} // namespace

std::optional<std::string> revisarfusible(std::uint8_t bajo)
{
    std::string mal;
    if ((bajo & cristal) != cristal)
        mal = "no elige el cristal externo de 3 a 8 MHz";
    if ((bajo & boden) != 0)
        mal += std::string(mal.empty() ? "" : ", ") + "deja apagada la detección de caída de tensión";
    else if ((bajo & bodlevel) != 0)
        mal += std::string(mal.empty() ? "" : ", ") + "pone la detección de caída de tensión en 2,7 V";
    if (mal.empty())
        return std::nullopt;
    return "el fusible bajo " + hexadecimal(bajo) + " " + mal + "; debe ser " + hexadecimal(debido) +
           " (cristal externo, caída de tensión a 4,0 V)";
}

std::int64_t arranque(std::uint8_t bajo, std::uint32_t frecuencia)
{
    const Espera& espera = esperas[(bajo & 0x01) << 2 | (bajo >> 4 & 0x03)];
    return espera.retraso + espera.ciclos * 1'000'000'000 / frecuencia;
}

} // namespace eeprog
