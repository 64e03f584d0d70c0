#include "link/protocolo.h"

#include <gtest/gtest.h>

namespace eeprog {
namespace {

TEST(Protocolo, AValueTravelsAsOneCharacterOfItsLowByte)
{
    EXPECT_EQ(protocolo::dato(0), std::string(1, '\0'));
    EXPECT_EQ(protocolo::dato(0x10), "\x10");
    EXPECT_EQ(protocolo::dato(255), "\xFF");
    EXPECT_EQ(protocolo::dato(0x1FF0), "\xF0");
}

TEST(Protocolo, AReplyStandsForTheCodeOfItsFirstCharacter)
{
    EXPECT_EQ(protocolo::valorde("Error"), 0x45);
    EXPECT_EQ(protocolo::valorde("\xFF"), 255);
    EXPECT_EQ(protocolo::valorde(std::string(1, '\0')), 0);
    EXPECT_EQ(protocolo::valorde("\x0A\x41"), 0x0A);
}

} // namespace
} // namespace eeprog
