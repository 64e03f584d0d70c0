#include "records/cargarhex.h"
#include "records/cargarobj.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace eeprog {
namespace {

// What an entry holds before the intake: every entry the intake leaves alone shows it.
constexpr int antes = -7;

struct Caso {
    std::string texto;
    std::vector<int> vector; // entries from 0 on, including the first one left alone
    int totalvector;
};

void comprobar(void (*cargar)(std::string_view, Registros&), const std::vector<Caso>& casos)
{
    for (const Caso& caso : casos) {
        Registros registros;
        registros.vector.fill(antes);
        cargar(caso.texto, registros);
        const std::vector<int> leido(registros.vector.begin(), registros.vector.begin() + caso.vector.size());
        EXPECT_EQ(leido, caso.vector) << caso.texto;
        EXPECT_EQ(registros.totalvector, caso.totalvector) << caso.texto;
    }
}

TEST(CargarHex, TakesEveryPairInFileOrderAndEndsAtAColonWithZeroZeroBehindIt)
{
    comprobar(cargarhex, {
                             {":0300300002337A1E\r\n:00000001FF\r\n", {3, 0, 48, 0, 2, 51, 122, 30, 0, 0, antes}, 9},
                             {":0300300002337A1F\r\n:00000001FF\r\n", {3, 0, 48, 0, 2, 51, 122, 31, 0, 0, antes}, 9},
                             {":03003000aabbcc1e\r\n:00000001FF\r\n", {3, 0, 48, 0, 0, 0, 0, 16, 0, 0, antes}, 9},
                             // An extended address line is a two-byte record at address 0 like any other.
                             {":020000040000FA\r\n:0300300002337A1E\r\n:00000001FF\r\n",
                              {2, 0, 0, 4, 0, 0, 250, 0, 3, 0, 48, 0, 2, 51, 122, 30, 0, 0, antes},
                              17},
                             // Without an end record the walk runs to the end of the text and writes no 0 behind.
                             {":0300300002337A1E\r\n", {3, 0, 48, 0, 2, 51, 122, 30, 0, antes}, 9},
                         });
}

TEST(CargarHex, OddLineBreaksAndTextEndsKeepTheWalkGoingPairByPair)
{
    comprobar(cargarhex, {
                             // An LF pairs with the next ":", so records stay in place; the end record is
                             // then read off a pair's place and taken as entries.
                             {":0300300002337A1E\n:01001000FFEF\n:00000001FF\n",
                              {3, 0, 48, 0, 2, 51, 122, 30, 0, 1, 0, 16, 0, 255, 239, 0, 0, 0, 0, 1, 255, 0, antes},
                              22},
                             // A blank line puts a 0 in the next count's place; the records behind are still taken.
                             {":0300300002337A1E\r\n\r\n:0100100041AE\r\n:00000001FF\r\n",
                              {3, 0, 48, 0, 2, 51, 122, 30, 0, 0, 1, 0, 16, 0, 65, 174, 0, 0, antes},
                              17},
                             {":0100200041BE\r\n5", {1, 0, 32, 0, 65, 190, 0, 5, antes}, 8},
                             {":0100200041BE\r\n:", {1, 0, 32, 0, 65, 190, 0, antes}, 7},
                         });
}

TEST(CargarObj, AnS1LineGetsItsDataCountAndATypeAndS9EndsTheIntake)
{
    comprobar(cargarobj, {
                             {"S106010041424332\r\nS9030000FC\r\n", {3, 1, 0, 0, 65, 66, 67, 50, 0, 0, antes}, 9},
                             // A header line is taken pair by pair: its "S0" is a 0, which ends the run shown.
                             {"S00600004844521B\r\nS106010041424332\r\nS9030000FC\r\n",
                              {0, 6, 0, 0, 72, 68, 82, 27, 0, 3, 1, 0, 0, 65, 66, 67, 50, 0, 0, antes},
                              18},
                             {"S1030010EC\r\nS9030000FC\r\n", {0, 0, 16, 0, 236, 0, 0, antes}, 6},
                             {"S1020010ED\r\n", {-1, 0, 16, 0, 237, 0, antes}, 6},
                             {"S1000010EF\r\n", {-3, 0, 16, 0, 239, 0, antes}, 6},
                             // Line types are compared exactly and digits must be uppercase.
                             {"S1060100ab4c4d32\r\nS9030000FC\r\n", {3, 1, 0, 0, 0, 64, 64, 50, 0, 0, antes}, 9},
                             {"s106010041424332\r\nS9030000FC\r\n", {1, 6, 1, 0, 65, 66, 67, 50, 0, 0, antes}, 9},
                         });
}

TEST(CargarObj, AOneCharacterLineEndHidesTheLineTypesOfTheNextLine)
{
    comprobar(cargarobj,
              {
                  {"S1040100414278\nS1040102424475\r\n",
                   {1, 1, 0, 0, 65, 66, 120, 0, 16, 64, 16, 36, 36, 71, 80, 0, antes},
                   16},
                  {"S106010041424332\nS9030000FC\n", {3, 1, 0, 0, 65, 66, 67, 50, 0, 144, 48, 0, 15, 192, antes}, 14},
              });
}

// 22 entries a line: count, address, type, 16 data bytes, checksum, line end.
std::string lineas(const std::string& linea, int cuantas)
{
    std::string texto;
    for (int n = 0; n < cuantas; ++n)
        texto += linea;
    return texto;
}

TEST(Capacidad, BothIntakesStopAtTheLastIndexTheirCountReachesAndWriteNothingPastIt)
{
    const std::string hex = ":10000000000102030405060708090A0B0C0D0E0F78\r\n";
    const std::string obj = "S113000000112233445566778899AABBCCDDEEFF1C\r\n";
    struct Lleno {
        void (*cargar)(std::string_view, Registros&);
        std::string texto;
        std::size_t indice; // an entry near the end, to show the walk was in step there
        int valor;
        int ultimo; // entry 32767 afterwards
    };
    const std::vector<Lleno> casos{
        {cargarhex, lineas(hex, 1500), 32766, 0x04, antes},
        // 1489 lines and a 9-entry one fill the buffer exactly; the end record's 0 goes behind.
        {cargarhex, lineas(hex, 1489) + ":0300300002337A1E\r\n:00000001FF\r\n", 32764, 0x7A, 0},
        {cargarobj, lineas(obj, 1500) + "S9030000FC\r\n", 32766, 0x44, antes},
        // 6 header entries put an S1 line three entries short of the end: it stops within its count
        // and address.
        {cargarobj, "S0030000FC\r\n" + lineas(obj, 1500), 32764, 16, antes},
    };
    for (const Lleno& caso : casos) {
        Registros registros;
        registros.vector.fill(antes);
        caso.cargar(caso.texto, registros);
        EXPECT_EQ(registros.totalvector, capacidadvector);
        EXPECT_EQ(registros.vector[caso.indice], caso.valor);
        EXPECT_EQ(registros.vector[capacidadvector], caso.ultimo);
        for (std::size_t i = capacidadvector + 1; i < registros.vector.size(); ++i)
            ASSERT_EQ(registros.vector[i], antes) << i;
    }
}

} // namespace
} // namespace eeprog
