#include "averias.h"
#include "chipmodelo.h"
#include "fusibles.h"

#include <gtest/gtest.h>

#include <functional>
#include <tuple>

namespace {

using eeprog::ChipModelo;
using Carga = std::pair<std::uint16_t, std::uint8_t>;

// The data sheet's 5 ms after power-up, when the chip first takes writes.
constexpr std::int64_t despierto = 5'000'000;

// A byte load as the firmware makes it, times in ns: /CE low, /WE low for 400 ns, both high.
std::int64_t cargar(ChipModelo& chip, std::int64_t t, std::uint16_t direccion, std::uint8_t dato,
                    std::uint8_t conducidos = 0xFF)
{
    chip.cambiar({.ce = false, .direccion = direccion, .datos = dato, .conducidos = conducidos}, t);
    chip.cambiar({.ce = false, .we = false, .direccion = direccion, .datos = dato, .conducidos = conducidos}, t + 100);
    chip.cambiar({.ce = false, .direccion = direccion, .datos = dato, .conducidos = conducidos}, t + 500);
    chip.cambiar({.direccion = direccion}, t + 600);
    return t + 1000;
}

std::optional<std::uint8_t> leer(ChipModelo& chip, std::int64_t t, std::uint16_t direccion)
{
    chip.cambiar({.ce = false, .oe = false, .direccion = direccion}, t);
    return chip.salida();
}

// The loads of a row make one page load; the byte at 0x0123 tells whether the data went in.
// The command bytes lie outside the data's page, and are no fault.
TEST(ChipModelo, SoftwareDataProtection)
{
    const Carga aa{0x1555, 0xAA}, cinco{0x0AAA, 0x55}, a0{0x1555, 0xA0}, ochenta{0x1555, 0x80}, veinte{0x1555, 0x20};
    const Carga dato{0x0123, 0x5A};
    const struct {
        const char* nombre;
        bool protegido, muerto, protegidodespues;
        std::vector<Carga> cargas;
        std::uint8_t esperado;
    } filas[]{
        {"PlainWriteIgnoredWhenProtected", true, false, true, {dato}, 0x00},
        {"EnabledWriteGoesThrough", true, false, true, {aa, cinco, a0, dato}, 0x5A},
        {"EnableSequenceTurnsItOn", false, false, true, {aa, cinco, a0, dato}, 0x5A},
        {"DisableSequenceTurnsItOff", true, false, false, {aa, cinco, ochenta, aa, cinco, veinte, dato}, 0x5A},
        {"DeadChipKeepsNothing", false, true, true, {aa, cinco, a0, dato}, 0x00},
    };
    for (const auto& fila : filas) {
        SCOPED_TRACE(fila.nombre);
        ChipModelo chip({}, 1'000'000, fila.protegido, fila.muerto);
        std::int64_t t = despierto;
        for (const auto& [direccion, valor] : fila.cargas)
            t = cargar(chip, t, direccion, valor);
        chip.avanzar(t + 2'000'000);
        EXPECT_EQ(chip.memoria()[0x0123], fila.esperado);
        EXPECT_EQ(chip.memoria()[0x1555], 0x00); // the sequences are commands, never data
        EXPECT_EQ(chip.protegido(), fila.protegidodespues);
        EXPECT_TRUE(chip.faltas().empty()) << chip.faltas().front();
    }
}

// Each row breaks one of the data sheet's rules, or keeps one, on a chip whose cells hold
// 0x77; its steps say whether the chip shows what a real one would, and the faults recorded
// say when, where and what, as the simulated board's --faltas file gives them.
TEST(ChipModelo, BrokenRulesAreFaults)
{
    const ChipModelo::Memoria setentaysiete(8192, 0x77);
    const struct {
        const char* nombre;
        const char* faltas; // the faults the chip recorded, one a line
        std::function<bool(ChipModelo&)> pasos;
    } filas[]{
        // Written 0x5A (I/O7 low) with a 1 ms cycle: reads, of any address, show I/O7 high through
        // the 150 us load window and the cycle after it, and the byte from 1.15 ms on.
        {"DataPollingShowsIO7InvertedUntilTheCycleEnds", "",
         [](ChipModelo& chip) {
             return (*leer(chip, cargar(chip, despierto, 0x0123, 0x5A), 0x0123) & 0x80) == 0x80 &&
                    (*leer(chip, despierto + 1'140'000, 0x0200) & 0x80) == 0x80 &&
                    leer(chip, despierto + 1'160'000, 0x0123) == 0x5A;
         }},
        {"LoadDuringTheCycleIsLost", "5501500 ns: carga de 0x22 en 0x0041 durante el ciclo de escritura; se pierde",
         [](ChipModelo& chip) {
             chip.avanzar(cargar(chip, cargar(chip, despierto, 0x0040, 0x11) + 500'000, 0x0041, 0x22) + 2'000'000);
             return chip.memoria()[0x0041] == 0x77;
         }},
        {"LatchWithDataLinesUndriven",
         "5000500 ns: dato cargado en 0x0123 con los bits 0xF0 del bus de datos sin conducir; guarda cualquier cosa",
         [](ChipModelo& chip) {
             chip.avanzar(cargar(chip, despierto, 0x0123, 0x5A, 0x0F) + 2'000'000);
             return (chip.memoria()[0x0123] & 0x0F) == 0x0A && chip.memoria()[0x0123] != 0x5A;
         }},
        {"DataChanged40nsBeforeTheLatch",
         "5000500 ns: dato cargado en 0x0123 con los bits 0x80 cambiados menos de 50 ns antes del flanco que lo "
         "captura; guarda cualquier cosa",
         [](ChipModelo& chip) {
             chip.cambiar({.ce = false, .direccion = 0x0123, .datos = 0x5A, .conducidos = 0xFF}, despierto);
             chip.cambiar({.ce = false, .we = false, .direccion = 0x0123, .datos = 0x5A, .conducidos = 0xFF},
                          despierto + 100);
             chip.cambiar({.ce = false, .we = false, .direccion = 0x0123, .datos = 0xDA, .conducidos = 0xFF},
                          despierto + 460);
             chip.cambiar({.direccion = 0x0123, .datos = 0xDA, .conducidos = 0xFF}, despierto + 500);
             chip.avanzar(despierto + 2'000'000);
             return true;
         }},
        {"ReadsWithTheOutputsOffFloat",
         "5000400 ns: lectura del bus de datos en 0x0123 con los bits 0xFF sin conducir por nadie; flotan\n"
         "5000500 ns: lectura del bus de datos en 0x0123 con los bits 0xFF sin conducir por nadie; flotan",
         [](ChipModelo& chip) {
             leer(chip, despierto, 0x0123);
             const bool dato = chip.muestrear(despierto + 200) == 0x77;
             chip.cambiar({.direccion = 0x0123}, despierto + 300);
             const std::uint8_t una = chip.muestrear(despierto + 400), otra = chip.muestrear(despierto + 500);
             return dato && una != 0x77 && otra != 0x77 && una != otra;
         }},
        {"ReadBefore70nsAfterOE",
         "5000260 ns: lectura del bus de datos en 0x0123 10 ns antes de que el chip dé el dato; los bits 0xFF aún "
         "no valen",
         [](ChipModelo& chip) {
             chip.cambiar({.ce = false, .direccion = 0x0123}, despierto);
             chip.cambiar({.ce = false, .oe = false, .direccion = 0x0123}, despierto + 200);
             const bool pronto = chip.muestrear(despierto + 260) != 0x77;
             chip.cambiar({.ce = false, .oe = false, .direccion = 0x0123}, despierto + 300); // the same pins again
             return pronto && chip.muestrear(despierto + 320) == 0x77;
         }},
        {"ReadBefore150nsAfterTheAddress",
         "5000500 ns: lectura del bus de datos en 0x0124 50 ns antes de que el chip dé el dato; los bits 0xFF aún "
         "no valen",
         [](ChipModelo& chip) {
             leer(chip, despierto, 0x0123);
             chip.cambiar({.ce = false, .oe = false, .direccion = 0x0124}, despierto + 400);
             return chip.muestrear(despierto + 500) != 0x77;
         }},
        {"BothDriveTheDataBus",
         "5000000 ns: el chip y el microcontrolador conducen a la vez el bus de datos (bits 0x0F) en 0x0123",
         [](ChipModelo& chip) {
             return chip.cambiar({.ce = false, .oe = false, .direccion = 0x0123, .conducidos = 0x0F}, despierto), true;
         }},
        {"LoadLeavesItsPage",
         "5001500 ns: carga de 0x22 en 0x0080 fuera de la página 0x0040-0x007F de su carga; no se escribe",
         [](ChipModelo& chip) {
             chip.avanzar(cargar(chip, cargar(chip, despierto, 0x0041, 0x11), 0x0080, 0x22) + 2'000'000);
             return chip.memoria()[0x0041] == 0x11 && chip.memoria()[0x0080] == 0x77;
         }},
        {"PageLoadWritesOnlyTheBytesLoaded", "",
         [](ChipModelo& chip) {
             chip.avanzar(cargar(chip, cargar(chip, despierto, 0x0041, 0x11), 0x0043, 0x33) + 2'000'000);
             return chip.memoria()[0x0041] == 0x11 && chip.memoria()[0x0042] == 0x77 && chip.memoria()[0x0043] == 0x33;
         }},
        {"WriteWithin5msOfPowerUp",
         "4000500 ns: pulso de escritura en 0x0123 antes de los 5 ms del encendido; se ignora",
         [](ChipModelo& chip) {
             chip.avanzar(cargar(chip, 4'000'000, 0x0123, 0x5A) + 2'000'000);
             return chip.memoria()[0x0123] == 0x77;
         }},
        {"WritePulseOf50ns", "5000150 ns: pulso de escritura de 50 ns en 0x0123, menos de 100 ns; no se carga",
         [](ChipModelo& chip) {
             chip.cambiar({.ce = false, .direccion = 0x0123, .datos = 0x5A, .conducidos = 0xFF}, despierto);
             chip.cambiar({.ce = false, .we = false, .direccion = 0x0123, .datos = 0x5A, .conducidos = 0xFF},
                          despierto + 100);
             chip.cambiar({.ce = false, .direccion = 0x0123, .datos = 0x5A, .conducidos = 0xFF}, despierto + 150);
             chip.cambiar({.direccion = 0x0123}, despierto + 200);
             chip.avanzar(despierto + 2'000'000);
             return chip.memoria()[0x0123] == 0x77;
         }},
        {"FuseWithBrownOutDetectionOffOrAt2_7V",
         "0 ns: el fusible bajo 0xFF deja apagada la detección de caída de tensión; debe ser 0x3F (cristal externo, "
         "caída de tensión a 4,0 V)\n"
         "0 ns: el fusible bajo 0xBF pone la detección de caída de tensión en 2,7 V; debe ser 0x3F (cristal "
         "externo, caída de tensión a 4,0 V)",
         [](ChipModelo& chip) {
             for (const std::uint8_t fusible : {0xFF, 0xBF})
                 if (const auto falta = eeprog::revisarfusible(fusible))
                     chip.anotar(0, *falta);
             // 16K cycles of 7.3728 MHz and 65 ms, with the brown-out detection on too (the firmware's fuse)
             return eeprog::arranque(0xFF, 7'372'800) == 67'222'222 && eeprog::arranque(0x3F, 7'372'800) == 67'222'222;
         }},
    };
    for (const auto& fila : filas) {
        SCOPED_TRACE(fila.nombre);
        ChipModelo chip(setentaysiete, 1'000'000, false);
        EXPECT_TRUE(fila.pasos(chip));
        std::string faltas;
        for (const std::string& falta : chip.faltas())
            faltas += (faltas.empty() ? "" : "\n") + falta;
        EXPECT_EQ(faltas, fila.faltas);
    }
}

// A protected 28C256 turns its protection off only by the sequence at its own addresses,
// 0x5555 and 0x2AAA; the AT28C64B's leave it on and the data unwritten. Its top page is
// reached through A13 and A14.
TEST(ChipModelo, The28C256TakesItsOwnSequence)
{
    for (const auto& [clave1, clave2, protegido] : {std::tuple{0x1555, 0x0AAA, true}, {0x5555, 0x2AAA, false}}) {
        ChipModelo chip({}, 1'000'000, true, false, *eeprog::buscartipo("28c256"));
        std::int64_t t = despierto;
        const auto c1 = static_cast<std::uint16_t>(clave1), c2 = static_cast<std::uint16_t>(clave2);
        for (const auto& [direccion, valor] :
             {Carga{c1, 0xAA}, {c2, 0x55}, {c1, 0x80}, {c1, 0xAA}, {c2, 0x55}, {c1, 0x20}, {0x7FC1, 0x5A}})
            t = cargar(chip, t, direccion, valor);
        chip.avanzar(t + 2'000'000);
        EXPECT_EQ(chip.protegido(), protegido) << std::hex << clave1;
        EXPECT_EQ(chip.memoria()[0x7FC1], protegido ? 0x00 : 0x5A) << std::hex << clave1;
    }
}

// Pin 1 of the AT28C64 without B is its RDY/BUSY output: driving A14 there, or A13, is a fault.
TEST(ChipModelo, DrivingA13OrA14AgainstAnAT28C64IsAFault)
{
    ChipModelo chip({}, 1'000'000, false, false, *eeprog::buscartipo("AT28C64"));
    chip.cambiar({.altas = 0}, 100);
    chip.cambiar({.altas = 2}, 200);
    chip.cambiar({.ce = false, .altas = 2}, 300);
    ASSERT_EQ(chip.faltas().size(), 1u);
    EXPECT_EQ(chip.faltas().front(),
              "200 ns: A13 o A14 conducidas (0x2) con un AT28C64 en el zócalo: su pata 1 es la salida RDY/BUSY");
}

// The wires as each fault leaves them: the chip's pins when the microcontroller puts address
// 0x1234 and data 0x5A, and what the microcontroller reads when the chip gives 0xC3.
TEST(Cableado, EachFaultChangesTheLinesItNames)
{
    const struct {
        const char* averia;
        std::uint16_t direccion;
        std::uint8_t escrito, leido;
    } filas[] = {
        {"A2=0", 0x1230, 0x5A, 0xC3},        {"A3=1", 0x123C, 0x5A, 0xC3},
        {"A2=unida:A3", 0x1230, 0x5A, 0xC3}, {"A2=cruzada:A3", 0x1238, 0x5A, 0xC3},
        {"D0=0", 0x1234, 0x5A, 0xC2},        {"D2=1", 0x1234, 0x5E, 0xC7},
        {"D0=unida:D2", 0x1234, 0x5A, 0xC2}, {"D0=cruzada:D3", 0x1234, 0x53, 0xCA},
    };
    for (const auto& fila : filas) {
        eeprog::Cableado cables({*eeprog::leeraveria(fila.averia)});
        const auto chip = cables.alchip({.direccion = 0x1234, .datos = 0x5A, .conducidos = 0xFF});
        EXPECT_EQ(std::tuple(chip.direccion, chip.datos, cables.almicro(0xC3, 0, 0)),
                  std::tuple(fila.direccion, fila.escrito, fila.leido))
            << fila.averia;
    }
    for (const char* mala : {"A15=0", "D8=1", "A1x=0", "A2=unida:D2", "A2=cruzada:A2", "A2=rota", "A2"})
        EXPECT_FALSE(eeprog::leeraveria(mala)) << mala;
}

// A cut line, and the bus of an empty socket, read as anything: both levels turn up.
TEST(Cableado, ACutLineOrAnEmptySocketFloats)
{
    eeprog::Cableado cortada({*eeprog::leeraveria("D5=abierta"), *eeprog::leeraveria("A7=abierta")});
    eeprog::Cableado vacio({}, true);
    unsigned unos = 0, ceros = 0, altas = 0, vacios = 0;
    for (int vez = 0; vez < 32; ++vez) {
        const std::uint8_t leido = cortada.almicro(0xC3, 0, 0);
        EXPECT_EQ(leido & 0xDF, 0xC3);
        (leido & 0x20 ? unos : ceros) += 1;
        altas += cortada.alchip({.direccion = 0x1234}).direccion >> 7 & 1;
        vacios |= vacio.almicro(0xC3, 0, 0);
    }
    EXPECT_TRUE(unos > 0 && ceros > 0 && altas > 0 && altas < 32 && vacios == 0xFF);
}

} // namespace
