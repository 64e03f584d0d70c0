#include "placa.h"

#include <gtest/gtest.h>

#include <string>

using eeprog::OpcionesPlaca;
using eeprog::Placa;
using Estado = eeprog::Placa::Estado;

namespace {

// Sends each byte in turn and gathers the replies; a silent byte adds nothing.
std::string conversar(Placa& placa, const std::string& enviado)
{
    std::string respuestas;
    for (char byte : enviado) {
        if (auto respuesta = placa.recibir(static_cast<unsigned char>(byte))) {
            respuestas += static_cast<char>(*respuesta);
        }
    }
    return respuestas;
}

std::string marco(char orden, int cuenta, int direccion, int tipo, const std::string& datos)
{
    std::string texto{orden, static_cast<char>(cuenta), static_cast<char>(direccion >> 8),
                      static_cast<char>(direccion & 0xFF), static_cast<char>(tipo)};
    return texto + datos;
}

std::string serie(int desde, int cuantos)
{
    std::string texto;
    for (int i = 0; i < cuantos; ++i) {
        texto += static_cast<char>(desde + i);
    }
    return texto;
}

} // namespace

TEST(Placa, IdleAnswersTheCheckAndEchoesAnyOtherByte)
{
    Placa placa;
    EXPECT_EQ(conversar(placa, "c"), "c");
    EXPECT_EQ(conversar(placa, std::string("\x00\x41\xFF\x10", 4)), std::string("\x00\x41\xFF\x10", 4));
    EXPECT_EQ(placa.estado(), Estado::reposo);
    EXPECT_EQ(placa.chip()[0], 0xFF);
}

TEST(Placa, AReadFrameEchoesItsHeaderAndAnswersFromTheChip)
{
    Placa placa;
    for (int i = 0; i < 16; ++i) {
        placa.chip()[0x0120 + i] = static_cast<unsigned char>(0xA0 + i);
    }
    const auto antes = placa.chip();
    std::string cabecera = marco('r', 16, 0x0120, 0, "");
    EXPECT_EQ(conversar(placa, cabecera.substr(0, 1)), "r");
    EXPECT_EQ(placa.estado(), Estado::cuentalectura);
    EXPECT_EQ(conversar(placa, cabecera.substr(1)), cabecera.substr(1));
    EXPECT_EQ(placa.estado(), Estado::datoslectura);
    // Pacing bytes 0x00 to 0x0F: a board that echoed them would answer those instead.
    EXPECT_EQ(conversar(placa, serie(0, 16)), serie(0xA0, 16));
    EXPECT_EQ(placa.estado(), Estado::reposo);
    EXPECT_EQ(placa.chip(), antes);
}

TEST(Placa, AddressesWrapIntoTheChip)
{
    Placa placa;
    // 0xFFFE falls on 0x1FFE, and the frame runs on past the chip's end to 0x0000.
    conversar(placa, marco('w', 4, 0xFFFE, 0, "wxyz"));
    EXPECT_EQ(placa.chip()[0x1FFE], 'w');
    EXPECT_EQ(placa.chip()[0x1FFF], 'x');
    EXPECT_EQ(placa.chip()[0x0000], 'y');
    EXPECT_EQ(placa.chip()[0x0001], 'z');
    EXPECT_EQ(conversar(placa, marco('r', 2, 0x3FFF, 0, "..")).substr(5), "xy");
}

TEST(Placa, AWriteFrameTakesUpTo255Bytes)
{
    Placa placa;
    std::string datos = serie(1, 255);
    std::string escrito = marco('w', 255, 0x0100, 0, datos);
    EXPECT_EQ(conversar(placa, escrito.substr(0, 5)), escrito.substr(0, 5));
    EXPECT_EQ(placa.estado(), Estado::datosescritura);
    EXPECT_EQ(conversar(placa, datos), datos);
    EXPECT_EQ(placa.estado(), Estado::reposo);
    EXPECT_EQ(placa.chip()[0x00FF], 0xFF);
    EXPECT_EQ(placa.chip()[0x01FF], 0xFF);
    EXPECT_EQ(conversar(placa, marco('r', 255, 0x0100, 0, std::string(255, '\0'))).substr(5), datos);
}

TEST(Placa, TypeIsIgnoredAndACountOfZeroEndsTheFrame)
{
    Placa placa;
    conversar(placa, marco('w', 1, 0x0002, 0x01, "E") + marco('w', 1, 0x0003, 0x04, "F"));
    EXPECT_EQ(placa.chip()[0x0002], 'E');
    EXPECT_EQ(placa.chip()[0x0003], 'F');
    conversar(placa, marco('w', 0, 0x0004, 0, ""));
    EXPECT_EQ(placa.estado(), Estado::reposo);
    conversar(placa, "c");
    EXPECT_EQ(placa.chip()[0x0004], 0xFF);
}

TEST(Placa, ANewSessionForgetsAHalfFrame)
{
    Placa placa;
    conversar(placa, marco('w', 2, 0x0030, 0, "a"));
    placa.conectar();
    EXPECT_EQ(placa.estado(), Estado::reposo);
    EXPECT_EQ(conversar(placa, "b"), "b");
    EXPECT_EQ(placa.chip()[0x0031], 0xFF);
}

TEST(Placa, MudaNeverAnswers)
{
    Placa placa(OpcionesPlaca{.muda = true});
    EXPECT_EQ(conversar(placa, std::string("c") + marco('w', 1, 0, 0, "M")), "");
    EXPECT_EQ(placa.chip()[0], 0xFF);
}

TEST(Placa, SilenciosaHangsAfterTheCheckUntilReopened)
{
    Placa placa(OpcionesPlaca{.silenciosa = true});
    EXPECT_EQ(conversar(placa, "c"), "c");
    EXPECT_EQ(conversar(placa, std::string("c") + marco('w', 1, 0, 0, "S")), "");
    EXPECT_EQ(placa.chip()[0], 0xFF);
    placa.conectar();
    EXPECT_EQ(conversar(placa, "cc"), "c");
    placa.conectar();
    EXPECT_EQ(conversar(placa, "rc"), "");
}

TEST(Placa, EcoErroneoHearsTheNthDataByteWrong)
{
    Placa placa(OpcionesPlaca{.ecoerroneo = 5});
    EXPECT_EQ(conversar(placa, marco('w', 3, 0x0040, 0, "ABC")), marco('w', 3, 0x0040, 0, "ABC"));
    conversar(placa, marco('r', 4, 0x0040, 0, "...."));
    placa.conectar();
    EXPECT_EQ(conversar(placa, marco('w', 3, 0x0050, 0, "DEF")), marco('w', 3, 0x0050, 0, "DDF"));
    EXPECT_EQ(placa.chip()[0x0051], 'D');
    EXPECT_EQ(conversar(placa, marco('w', 1, 0x0060, 0, "G")).back(), 'G');
}
