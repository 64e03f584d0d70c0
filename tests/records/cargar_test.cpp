#include "pantallafalsa.h"
#include "records/apertura.h"
#include "records/cargarhex.h"
#include "records/cargarobj.h"
#include "records/hexadecimal.h"
#include "records/mostrarvector.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

namespace eeprog {

// Any character but an uppercase hex digit is a 0 that keeps its place. (The renderings show,
// padded and with negatives as sixteen bits, in the figures and reports tested with them.)
TEST(Hexadecimal, ReadsOnlyUppercaseDigits)
{
    // clang-format off
    const std::pair<const char*, const char*> lecturas[] = {{"7A", "122"}, {"90AF", "37039"}, {"FFFF", "65535"},
        {"", "0"}, {"ff", "0"}, {"1f", "16"}, {"S1", "1"}, {"7G", "112"}, {":1", "1"}, {"1@", "16"}, {"/", "0"}};
    // clang-format on
    for (const auto& [texto, valor] : lecturas)
        EXPECT_EQ(hexadecimal(texto), valor) << '"' << texto << '"';
}

// n times a line of 22 entries: count, address (2), type, 16 data bytes, checksum, line end.
std::string lineas(int n, const std::string& linea)
{
    return n == 0 ? "" : linea + lineas(n - 1, linea);
}

// Each row: the entries from an index on; every entry behind them is left as it was (-7).
TEST(Intake, TakesEveryPairInFileOrderWithTheQuirksOfTheWalk)
{
    const std::string hex = ":10000000000102030405060708090A0B0C0D0E0F78\r\n",
                      obj = "S113000000112233445566778899AABBCCDDEEFF1C\r\n";
    // clang-format off
    const std::tuple<const char*, void (*)(std::string_view, Registros&), std::string, int, std::vector<int>, int> filas[] = {
        {"hex: the end record's 0 goes behind, uncounted", cargarhex, ":0300300002337A1E\r\n:00000001FF\r\n",
         0, {3, 0, 48, 0, 2, 51, 122, 30, 0, 0}, 9},
        // An LF pairs with the next ":"; the end record is read off a pair's place, as entries.
        {"hex with LF line ends", cargarhex, ":0300300002337A1E\n:01001000FFEF\n:00000001FF\n",
         0, {3, 0, 48, 0, 2, 51, 122, 30, 0, 1, 0, 16, 0, 255, 239, 0, 0, 0, 0, 1, 255, 0}, 22},
        {"obj: S1 gets its data count and a type, S9 ends", cargarobj, "S106010041424332\r\nS9030000FC\r\n",
         0, {3, 1, 0, 0, 65, 66, 67, 50, 0, 0}, 9},
        // Its "S0" reads as a 0, which ends the run shown.
        {"obj: a header line is taken pair by pair", cargarobj, "S00600004844521B\r\nS1030010EC\r\nS9030000FC\r\n",
         0, {0, 6, 0, 0, 72, 68, 82, 27, 0, 0, 0, 16, 0, 236, 0, 0}, 15},
        // The walk goes on by pairs from an odd place: "S1" and "S9" are no longer seen.
        {"obj with LF line ends", cargarobj, "S106010041424332\nS9030000FC\n",
         0, {3, 1, 0, 0, 65, 66, 67, 50, 0, 144, 48, 0, 15, 192}, 14},
        // The write index stops at 32767 = 1489 lines of 22 and 9 entries: 32766 is data byte 4.
        {"hex past capacity", cargarhex, lineas(1500, hex), 32764, {2, 3, 4}, 32767},
        {"hex filling it exactly", cargarhex, lineas(1489, hex) + ":0300300002337A1E\r\n:00000001FF\r\n",
         32764, {122, 30, 0, 0}, 32767},
        // 6 header entries put an S1 line at 32764: it stops within its count and address.
        {"obj stopping in an S1 line", cargarobj, "S0030000FC\r\n" + lineas(1500, obj), 32764, {16, 0, 0}, 32767}};
    // clang-format on
    for (const auto& [nombre, cargar, texto, desde, vector, totalvector] : filas) {
        Registros registros;
        registros.vector.fill(-7), cargar(texto, registros);
        const auto hasta = registros.vector.begin() + desde + static_cast<long>(vector.size());
        EXPECT_EQ(std::vector<int>(registros.vector.begin() + desde, hasta), vector) << nombre;
        EXPECT_TRUE(std::all_of(hasta, registros.vector.end(), [](int v) { return v == -7; })) << nombre;
        EXPECT_EQ(registros.totalvector, totalvector) << nombre;
    }
}

// A file taken into the buffer and shown on the grids as they are at start-up.
struct MostrarVector : ::testing::Test {
    void mostrar(const std::string& texto, const std::string& nombre = "/datos/prueba.hex")
    {
        dibujareditor(cuadriculas), registros = {}, caja.contenido.clear();
        archivo = {texto, nombre, nombre.substr(nombre.rfind('/') + 1)};
        ponerenvector(archivo, registros, avisos);
        mostrarvector(registros, archivo, {cuadriculas, StatusBar1, informe});
    }
    // The texts of fghex from an address on, leaving out those of an erased chip's cells.
    std::string escritas(long desde = 0, long hasta = 65536)
    {
        std::string texto;
        for (long celda = desde; celda < hasta; ++celda)
            if (const std::string& hex = cuadriculas.fghex.TextMatrix(celda / 16, celda % 16); hex != "FF")
                texto += hex;
        return texto;
    }

    Cuadriculas cuadriculas;
    prueba::CajaFalsa caja;
    prueba::RelojFijo reloj;
    Informe informe{caja, reloj};
    prueba::PanelesFalsos StatusBar1;
    prueba::AvisosFalsos avisos;
    Registros registros;
    ArchivoAbierto archivo;
};

// The figure is the address of the last byte of the last record in the file, whatever came before.
TEST_F(MostrarVector, ShowsEachRecordInTheGridsAndNamesTheFileWithTheFigureOfTheLast)
{
    // clang-format off
    // label, file, first address written, bytes written in address order, figure
    const std::tuple<const char*, const char*, long, const char*, const char*> filas[] = {
        {"hex", ":0300300002337A1E\r\n:00000001FF\r\n", 0x30, "02337A", "50 Bytes = 32 Hexa"},
        {"obj", "S106010041424332\r\nS9030000FC\r\n", 0x100, "414243", "258 Bytes = 102 Hexa"},
        {"one byte at 0", ":0100000055AA\r\n", 0, "55", "0 Bytes = 0 Hexa"},
        {"an S1 count below 3 shows no byte", "S1020000FD\r\nS9030000FC\r\n", 0, "", "-2 Bytes = FFFE Hexa"},
        // The walk goes on by that count plus 6.
        {"an S1 line behind a short one", "S1020010\r\nS1050020414200\r\nS9030000FC\r\n", 0x20, "4142", "33 Bytes = 21 Hexa"},
        {"a later record over the same cells stands, and a record runs on across rows",
         ":10100000000102030405060708090A0B0C0D0E0F68\r\n:04000E00C0C1C2C3F6\r\n:01000F00AA46\r\n",
         0x0E, "C0AAC2C3000102030405060708090A0B0C0D0E0F", "15 Bytes = F Hexa"},
        {"bytes past the last cell are dropped", ":10FFF800000102030405060708090A0B0C0D0E0F79\r\n",
         0xFFF8, "0001020304050607", "65543 Bytes = 10007 Hexa"},
        {"an empty text shows nothing and names no file", "", 0, "", ""}};
    // clang-format on
    for (const auto& [nombre, texto, desde, bytes, figura] : filas) {
        SCOPED_TRACE(nombre);
        mostrar(texto);
        EXPECT_EQ(escritas(desde, desde + 2) + " " + escritas(), std::string(bytes).substr(0, 4) + " " + bytes);
        EXPECT_EQ(StatusBar1.textos[1] + "|" + StatusBar1.textos[2] + "|" + caja.contenido,
                  *figura ? std::string("/datos/prueba.hex|") + figura +
                                "|10:11:12... Archivo = prueba.hex      Tamaño = " + figura + "\r\n"
                          : "Directorio|Tamaño|");
    }
}

} // namespace eeprog
