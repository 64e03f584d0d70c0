#include "pantallaprueba.h"

#include <gtest/gtest.h>

namespace eeprog {
namespace {

using namespace prueba;

class MostrarVector : public PantallaPrueba {};

TEST_F(MostrarVector, ShowsTheRecordsInBothGridsAndNamesTheFileWithItsFigure)
{
    mostrar(":0300300002337A1E\r\n:00000001FF\r\n");
    EXPECT_EQ(hex(3, 0) + hex(3, 1) + hex(3, 2), "02337A");
    EXPECT_EQ(ascii(3, 0) + ascii(3, 1) + ascii(3, 2), (std::string{'\x02', '3', 'z'}));
    EXPECT_EQ(escritas(), 3);
    EXPECT_EQ(ascii(3, 3), "\xFF");
    EXPECT_EQ(StatusBar1.textos[1], "/datos/prueba.hex");
    EXPECT_EQ(StatusBar1.textos[2], "50 Bytes = 32 Hexa");
    EXPECT_EQ(caja.contenido, "10:11:12... Archivo = prueba.hex      Tamaño = 50 Bytes = 32 Hexa\r\n");

    mostrar("S106010041424332\r\nS9030000FC\r\n", "/datos/prueba.obj");
    EXPECT_EQ(hex(16, 0) + hex(16, 1) + hex(16, 2), "414243");
    EXPECT_EQ(ascii(16, 0) + ascii(16, 1) + ascii(16, 2), "ABC");
    EXPECT_EQ(hex(16, 3), "FF");
    EXPECT_EQ(StatusBar1.textos[2], "258 Bytes = 102 Hexa");
    EXPECT_EQ(caja.contenido.substr(caja.contenido.find("\r\n") + 2),
              "10:11:12... Archivo = prueba.obj      Tamaño = 258 Bytes = 102 Hexa\r\n");
}

// The figure is the address of the last byte of the last record in the file, whatever came before.
TEST_F(MostrarVector, TheFigureComesFromTheLastRecordInFileOrder)
{
    const std::vector<std::pair<std::string, std::string>> casos{
        {":10000000000102030405060708090A0B0C0D0E0F78\r\n", "15 Bytes = F Hexa"},
        {":0100000055AA\r\n", "0 Bytes = 0 Hexa"},
        // An S1 count below 3 leaves no data bytes, and the walk goes on by that count plus 6.
        {"S1020000FD\r\nS9030000FC\r\n", "-2 Bytes = FFFE Hexa"},
        {"S1020010\r\nS1050020414200\r\nS9030000FC\r\n", "33 Bytes = 21 Hexa"},
    };
    for (const auto& [texto, figura] : casos) {
        SetUp();
        mostrar(texto);
        EXPECT_EQ(StatusBar1.textos[2], figura) << texto;
    }
    EXPECT_EQ(hex(2, 0) + hex(2, 1), "4142"); // the S1 line behind the short one
    EXPECT_EQ(escritas(), 2);
    EXPECT_EQ(caja.contenido, "10:11:12... Archivo = prueba.hex      Tamaño = 33 Bytes = 21 Hexa\r\n");
}

TEST_F(MostrarVector, ARecordRunsOnAcrossRowsAndALaterRecordOverTheSameCellsStands)
{
    mostrar(":10100000000102030405060708090A0B0C0D0E0F68\r\n:04000E00C0C1C2C3F6\r\n:01000F00AA46\r\n");
    EXPECT_EQ(hex(256, 0) + hex(256, 15), "000F");
    EXPECT_EQ(hex(0, 14) + hex(0, 15) + hex(1, 0) + hex(1, 1), "C0AAC2C3");
    EXPECT_EQ(ascii(0, 15), "\xAA");
    EXPECT_EQ(escritas(), 20);
    EXPECT_EQ(StatusBar1.textos[2], "15 Bytes = F Hexa");
}

// Nothing clears the buffer: behind a file without an end record the walk goes on into what a
// longer file left there.
TEST_F(MostrarVector, AFileWithoutAnEndRecordShowsWhatALongerFileLeftBehindIt)
{
    mostrar(":0100000011EE\r\n:0100100022CD\r\n:00000001FF\r\n");
    cuadriculas = inicial;
    mostrar(":0100000033CC\r\n");
    EXPECT_EQ(hex(0, 0) + hex(1, 0), "3322");
    EXPECT_EQ(StatusBar1.textos[2], "16 Bytes = 10 Hexa");
}

TEST_F(MostrarVector, BytesPastTheLastCellAreDroppedAndAnEmptyRunShowsNothing)
{
    mostrar(":10FFF800000102030405060708090A0B0C0D0E0F79\r\n");
    EXPECT_EQ(hex(4095, 8) + hex(4095, 15), "0007");
    EXPECT_EQ(escritas(), 8);
    EXPECT_EQ(StatusBar1.textos[2], "65543 Bytes = 10007 Hexa");

    SetUp();
    mostrarvector(registros, archivo, {cuadriculas, StatusBar1, informe});
    EXPECT_EQ(StatusBar1.textos[1], "Directorio");
    EXPECT_EQ(StatusBar1.textos[2], "Tamaño");
    EXPECT_EQ(caja.contenido, "");
    EXPECT_EQ(escritas(), 0);
}

} // namespace
} // namespace eeprog
