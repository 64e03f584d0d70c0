#include "link/enlace.h"
#include "puertoguion.h"

#include <gtest/gtest.h>

namespace eeprog {
namespace {

using prueba::Bitacora;
using prueba::PuertoGuion;

class EnlaceTest : public ::testing::Test {
protected:
    Bitacora bitacora;
    PuertoGuion puerto{&bitacora};
    Enlace enlace{puerto};

    void SetUp() override { enlace.serial(); }
};

TEST_F(EnlaceTest, AReplyAlreadyInIsTakenAfterOneSleep)
{
    puerto.alescribir = [&](const std::string&) { puerto.llegara("c"); };
    EXPECT_EQ(enlace.intercambio("c"), "c");
    EXPECT_EQ(bitacora.sucesos, (std::vector<std::string>{"abrir", "escribir c", "esperar 1", "leer"}));
}

TEST_F(EnlaceTest, NoReplyGivesErrorAfterExactlyAHundredSleepsAndReads)
{
    EXPECT_EQ(enlace.intercambio("c"), "Error");
    EXPECT_EQ(puerto.lecturas, 100);
    EXPECT_EQ(puerto.esperas, 100);
    // Each read comes after its own sleep, never two reads in a row.
    for (std::size_t i = 2; i < bitacora.sucesos.size(); i += 2) {
        EXPECT_EQ(bitacora.sucesos[i], "esperar 1");
        EXPECT_EQ(bitacora.sucesos[i + 1], "leer");
    }
}

TEST_F(EnlaceTest, AReplyOnTheHundredthReadStillCounts)
{
    puerto.llegara("x", 100);
    EXPECT_EQ(enlace.intercambio("c"), "x");
    EXPECT_EQ(puerto.lecturas, 100);
}

TEST_F(EnlaceTest, ALateReplyIsTakenByTheNextExchangeAndRepliesRunOneBehind)
{
    puerto.llegara("1", 101);
    EXPECT_EQ(enlace.intercambio("a"), "Error");
    puerto.llegara("2", 5);
    EXPECT_EQ(enlace.intercambio("b"), "1");
    EXPECT_EQ(puerto.lecturas, 101); // the late byte was there at the first read
    EXPECT_EQ(enlace.intercambio("c"), "2");
}

TEST_F(EnlaceTest, TwoBytesInTheBufferAreOneReply)
{
    puerto.llegara("cc");
    EXPECT_EQ(enlace.intercambio("c"), "cc");
}

TEST_F(EnlaceTest, AByteZeroIsAReplyNotASilence)
{
    puerto.llegara(std::string(1, '\0'), 3);
    const std::string respuesta = enlace.intercambio(std::string(1, '\0'));
    ASSERT_EQ(respuesta.size(), 1u);
    EXPECT_EQ(respuesta[0], '\0');
    EXPECT_EQ(puerto.lecturas, 3);
    EXPECT_EQ(puerto.enviados, std::string(1, '\0'));
}

TEST_F(EnlaceTest, AnEmptyTextSendsNothingAndWaitsOutItsTries)
{
    EXPECT_EQ(enlace.intercambio(""), "Error");
    EXPECT_TRUE(puerto.enviados.empty());
    EXPECT_EQ(puerto.lecturas, 100);
}

TEST(EnlaceSinPuerto, APortThatCannotOpenFailsLikeASilentBoardAndStaysClosed)
{
    PuertoGuion puerto;
    puerto.abrible = false;
    Enlace enlace(puerto);
    enlace.serial();
    EXPECT_EQ(enlace.intercambio("c"), "Error");
    EXPECT_TRUE(puerto.enviados.empty());
    EXPECT_FALSE(puerto.abierto());
    EXPECT_EQ(puerto.esperas, 100);
}

} // namespace
} // namespace eeprog
