#include "chipmodelo.h"

#include <gtest/gtest.h>

namespace {

using eeprog::ChipModelo;
using Carga = std::pair<std::uint16_t, std::uint8_t>;

// A byte load as the firmware makes it, times in ns: /CE low, /WE low for 400 ns, both high.
std::int64_t cargar(ChipModelo& chip, std::int64_t t, std::uint16_t direccion, std::uint8_t dato)
{
    chip.cambiar({.ce = false, .direccion = direccion, .datos = dato, .conducidos = 0xFF}, t);
    chip.cambiar({.ce = false, .we = false, .direccion = direccion, .datos = dato, .conducidos = 0xFF}, t + 100);
    chip.cambiar({.ce = false, .direccion = direccion, .datos = dato, .conducidos = 0xFF}, t + 500);
    chip.cambiar({.direccion = direccion}, t + 600);
    return t + 1000;
}

std::optional<std::uint8_t> leer(ChipModelo& chip, std::int64_t t, std::uint16_t direccion)
{
    chip.cambiar({.ce = false, .oe = false, .direccion = direccion}, t);
    return chip.salida();
}

// Written 0x5A (I/O7 low) with a 1 ms cycle: reads, of any address, show I/O7 high through
// the 150 us load window and the cycle after it, and the byte from 1.15 ms on.
TEST(ChipModelo, DataPollingShowsIO7InvertedUntilTheCycleEnds)
{
    ChipModelo chip({}, 1'000'000, false);
    EXPECT_EQ(*leer(chip, cargar(chip, 0, 0x0123, 0x5A), 0x0123) & 0x80, 0x80);
    EXPECT_EQ(*leer(chip, 1'140'000, 0x0200) & 0x80, 0x80);
    EXPECT_EQ(leer(chip, 1'160'000, 0x0123), 0x5A);
}

TEST(ChipModelo, ALoadDuringTheCycleIsAFaultAndIsLost)
{
    ChipModelo chip({}, 1'000'000, false);
    cargar(chip, cargar(chip, 0, 0x0040, 0x11) + 500'000, 0x0041, 0x22);
    chip.avanzar(2'000'000);
    EXPECT_EQ(chip.faltas().size(), 1u);
    EXPECT_EQ(chip.memoria()[0x0041], 0x00);
}

// The loads of a row make one page load; the byte at 0x0123 tells whether the data went in.
TEST(ChipModelo, SoftwareDataProtection)
{
    const Carga aa{0x1555, 0xAA}, cinco{0x0AAA, 0x55}, a0{0x1555, 0xA0}, dato{0x0123, 0x5A};
    const struct {
        const char* nombre;
        bool protegido, protegidodespues;
        std::vector<Carga> cargas;
        std::uint8_t esperado;
    } filas[]{
        {"PlainWriteIgnoredWhenProtected", true, true, {dato}, 0x00},
        {"EnabledWriteGoesThrough", true, true, {aa, cinco, a0, dato}, 0x5A},
        {"EnableSequenceTurnsItOn", false, true, {aa, cinco, a0, dato}, 0x5A},
        {"DisableSequenceTurnsItOff", true, false, {aa, cinco, {0x1555, 0x80}, aa, cinco, {0x1555, 0x20}, dato}, 0x5A},
    };
    for (const auto& fila : filas) {
        SCOPED_TRACE(fila.nombre);
        ChipModelo chip({}, 1'000'000, fila.protegido);
        std::int64_t t = 0;
        for (const auto& [direccion, valor] : fila.cargas)
            t = cargar(chip, t, direccion, valor);
        chip.avanzar(t + 2'000'000);
        EXPECT_EQ(chip.memoria()[0x0123], fila.esperado);
        EXPECT_EQ(chip.memoria()[0x1555], 0x00); // the sequences are commands, never data
        EXPECT_EQ(chip.protegido(), fila.protegidodespues);
    }
}

} // namespace
