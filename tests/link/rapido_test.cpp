#include "link/rapido.h"
#include "puertoguion.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace eeprog {
namespace {

using namespace prueba;
using namespace std::string_literals;

// The published check value of CRC-16/XMODEM; the frames' CRCs below are Python's
// binascii.crc_hqx(frame, 0).
TEST(Rapido, TheCrcIsXmodemsAndEndsEachFrameHighByteFirst)
{
    std::uint16_t suma = 0;
    for (const char byte : "123456789"s)
        suma = rapido::crc(suma, static_cast<unsigned char>(byte));
    EXPECT_EQ(suma, 0x31C3);
    EXPECT_EQ(rapido::empaquetar({'H', ""}), "H\0\x84\x65"s);
    EXPECT_EQ(rapido::empaquetar({'g', "\0\x40\0"s}), "g\3\0\x40\0\xE8\x18"s);
}

struct EnlaceRapidoTest : ::testing::Test {
    PuertoGuion puerto;
    EnlaceRapido enlace{puerto};
    int esperas() const { return puerto.pausas; }
};

// The question costs one reply's budget at most: an older board echoes it, a silent one
// says nothing for a hundred pauses.
TEST_F(EnlaceRapidoTest, OnlyAVAndItsVersionAnswerTheQuestion)
{
    const std::pair<std::string, std::optional<int>> respuestas[] = {
        {"V\1", 1}, {"v", std::nullopt}, {"", std::nullopt}, {"V", std::nullopt}};
    for (const auto& [dicho, version] : respuestas) {
        puerto.pendientes.clear();
        puerto.lecturas = puerto.pausas = 0;
        puerto.llegara(dicho, 3);
        EXPECT_EQ(enlace.preguntar(), version) << dicho;
        EXPECT_LE(esperas(), dicho == "V\1" ? 3 : 103) << dicho;
    }
}

// Frames come in pieces and several to a read. One whose CRC fails but whose start is
// right is given as damaged and the next one is still read; one that starts as no frame of
// the board's leaves the line to quiet down, and nothing is taken from it.
TEST_F(EnlaceRapidoTest, FramesAreReadWholeDamagedOnesSkippedAndGarbageWaitedOut)
{
    puerto.llegara("h\0\x82"s, 1);
    puerto.llegara("\x83n\0\x28\x24"
                   "f\0\xA1\x8C"s,
                   4);
    puerto.llegara("x\5junk"s, 9);
    const auto primera = enlace.recibir();
    ASSERT_TRUE(primera);
    EXPECT_EQ(primera->tipo, 'h');
    EXPECT_EQ(enlace.recibir()->tipo, rapido::danada);
    EXPECT_EQ(enlace.recibir()->tipo, 'f');
    EXPECT_FALSE(enlace.recibir());
    EXPECT_GE(esperas(), 9 + EnlaceRapido::hueco);
    EXPECT_TRUE(puerto.pendientes.empty());
}

} // namespace
} // namespace eeprog
