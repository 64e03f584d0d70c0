#include "puertoplaca.h"

#include <gtest/gtest.h>

#include <string>

using eeprog::Placa;
using eeprog::PuertoPlaca;

TEST(PuertoPlaca, RecordsTheTrafficByteForByte)
{
    Placa placa;
    placa.chip()[0x0005] = 0x00;
    PuertoPlaca puerto(placa);
    ASSERT_TRUE(puerto.abrir());
    puerto.escribir("c");
    puerto.esperar(1);
    EXPECT_EQ(puerto.leer(), "c");
    EXPECT_EQ(puerto.leer(), "");
    const std::string marco("r\x01\x00\x05\x00\x7F", 6);
    puerto.escribir(marco);
    const std::string respuesta("r\x01\x00\x05\x00\x00", 6);
    EXPECT_EQ(puerto.leer(), respuesta);
    EXPECT_EQ(puerto.enviados(), "c" + marco);
    EXPECT_EQ(puerto.recibidos(), "c" + respuesta);
    EXPECT_EQ(puerto.esperas(), 1);
}

// A closed port sends nothing, and each open is a new session of the board.
TEST(PuertoPlaca, EachOpenIsANewSession)
{
    Placa placa;
    PuertoPlaca puerto(placa);
    puerto.escribir("c");
    EXPECT_EQ(puerto.leer(), "");
    ASSERT_TRUE(puerto.abrir());
    EXPECT_FALSE(puerto.abrir());
    puerto.escribir(std::string("w\x02\x00\x00\x00", 5));
    puerto.cerrar();
    puerto.cerrar();
    EXPECT_FALSE(puerto.abierto());
    EXPECT_EQ(puerto.leer(), "");
    ASSERT_TRUE(puerto.abrir());
    puerto.escribir("c");
    EXPECT_EQ(puerto.leer(), "c");
    EXPECT_EQ(placa.chip()[0], 0xFF);
    EXPECT_EQ(puerto.aperturas(), 2);
    EXPECT_EQ(puerto.cierres(), 1);
}
