#include "banco.h"
#include "chipprueba.h"
#include "device/grabaredit.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>

namespace eeprog {
namespace {

using namespace prueba;

const std::string borrado(16, '\xFF');

// A write frame built by hand: count 16, the address high byte first, type 0, the data.
std::string escritura(int direccion, const std::string& datos)
{
    return std::string{'w', '\x10', static_cast<char>(direccion >> 8), static_cast<char>(direccion & 0xFF), '\0'} +
           datos;
}

std::vector<std::string> enviando(int celdas, const std::string& texto)
{
    return std::vector<std::string>(static_cast<std::size_t>(celdas), "Enviando... " + texto);
}

std::string trozo(const Chip& chip, int desde, int hasta)
{
    return std::string(chip.begin() + desde, chip.begin() + hasta);
}

class GrabarEdit : public ::testing::Test {
protected:
    static void SetUpTestSuite() { dibujareditor(inicial); }

    static inline Cuadriculas inicial;
    Cuadriculas cuadriculas = inicial;
};

// Only fgascii counts: fghex still shows FF where the "A" goes out.
TEST_F(GrabarEdit, EveryRowUpToTheHighestEditedOneGoesOutEditedOrNot)
{
    Banco banco;
    azar(banco.placa.chip(), 3);
    const Chip antes = banco.placa.chip();
    cuadriculas.fgascii.TextMatrix(2, 0, "A");
    grabaredit(banco.enlace, cuadriculas, 2, banco.pantalla());

    const std::string fila2 = "A" + std::string(15, '\xFF');
    EXPECT_EQ(banco.trafico(), escritura(0x00, borrado) + escritura(0x10, borrado) + escritura(0x20, fila2));
    std::vector<std::string> panel = enviando(48, "\u00A0"); // code 255 shows as its blank glyph
    panel[32] = "Enviando... A";
    EXPECT_EQ(banco.panel1(), panel);

    const Chip& chip = banco.placa.chip();
    EXPECT_EQ(trozo(chip, 0x00, 0x20), borrado + borrado);
    EXPECT_EQ(trozo(chip, 0x20, 0x30), fila2);
    EXPECT_EQ(trozo(chip, 0x30, 0x2000), trozo(antes, 0x30, 0x2000));

    std::vector<double> valores(48);
    std::iota(valores.begin(), valores.end(), 1);
    EXPECT_EQ(banco.barra.tope, 48);
    EXPECT_EQ(banco.barra.valores, valores);
}

// A cleared cell shows as nothing in panel 1 but still puts one byte on the wire: the
// board must take all 16 it was promised, or the next frame would be read as data.
TEST_F(GrabarEdit, CellsGoOutByteForByteAndAClearedOneAsTheErasedValue)
{
    Banco banco;
    banco.placa.chip().fill(0x5A);
    cuadriculas.fgascii.TextMatrix(0, 0, std::string(1, '\0'));
    cuadriculas.fgascii.TextMatrix(0, 1, "\xFF");
    cuadriculas.fgascii.TextMatrix(0, 2, "");
    for (int columna = 0; columna < columnasrejilla; ++columna)
        cuadriculas.fgascii.TextMatrix(1, columna, "");
    grabaredit(banco.enlace, cuadriculas, 1, banco.pantalla());

    ASSERT_EQ(banco.puerto.enviados().size(), 1u + 2 * 21);
    const std::string fila0 = std::string("\0\xFF\xFF", 3) + std::string(13, '\xFF');
    EXPECT_EQ(banco.trafico(), escritura(0x00, fila0) + escritura(0x10, borrado));
    std::vector<std::string> panel = enviando(32, "");
    panel[0] = "Enviando...  "; // code 0 too
    std::fill(panel.begin() + 1, panel.begin() + 16, "Enviando... \u00A0");
    panel[2] = "Enviando... ";
    EXPECT_EQ(banco.panel1(), panel);

    EXPECT_EQ(banco.placa.estado(), Placa::Estado::reposo);
    EXPECT_TRUE(comprobarconexion(banco.enlace));
    EXPECT_EQ(trozo(banco.placa.chip(), 0x00, 0x21), fila0 + borrado + "\x5A");
}

// Rows past the chip go out under their own labels (row 512 as 0x2000): the board, not
// the program, folds them onto the chip's 13 address lines.
TEST_F(GrabarEdit, TheFramesTheBarAndTheCountFollowTheHighestEditedRow)
{
    struct Caso {
        int filaeditada;
        int bytes; // as the log tells them
    };
    for (const Caso& caso : {Caso{0, 0}, Caso{1, 32}, Caso{600, 9616}, Caso{4095, 65536}}) {
        SCOPED_TRACE(caso.filaeditada);
        Banco banco;
        grabaredit(banco.enlace, cuadriculas, caso.filaeditada, banco.pantalla());

        const int filas = caso.filaeditada + 1;
        const std::string trafico = banco.trafico();
        ASSERT_EQ(trafico.size(), filas * 21u);
        std::string cabeceras, esperadas;
        for (int fila = 0; fila < filas; ++fila) {
            cabeceras += trafico.substr(static_cast<std::size_t>(fila) * 21, 5);
            esperadas += escritura(fila * 16, "");
        }
        EXPECT_EQ(cabeceras, esperadas);
        if (filas > 512) {
            EXPECT_EQ(trafico.substr(512 * 21, 5), std::string("w\x10\x20\x00\x00", 5));
        }

        EXPECT_EQ(banco.barra.tope, filas * 16.0);
        EXPECT_EQ(banco.barra.valores.size(), filas * 16u);
        EXPECT_EQ(banco.barra.valores.back(), filas * 16.0);
        EXPECT_EQ(bytesgrabados(caso.filaeditada), caso.bytes);
    }
}

} // namespace
} // namespace eeprog
