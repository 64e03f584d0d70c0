#include "records/hexadecimal.h"

#include <gtest/gtest.h>

namespace eeprog {
namespace {

TEST(Hexadecimal, ReadsUppercaseDigitsAndLetsEveryOtherCharacterKeepOnlyItsPlace)
{
    const std::vector<std::pair<std::string, std::string>> casos{
        {"FF", "255"}, {"0030", "48"}, {"1FFF", "8191"}, {"FFFF", "65535"}, {"7", "7"},
        {"", "0"},     {"\r\n", "0"},  {"ff", "0"},      {"1f", "16"},      {"f1", "1"},
        {"S1", "1"},   {"S0", "0"},    {"7G", "112"},    {":1", "1"},       {"1:", "16"}};
    for (const auto& [texto, valor] : casos)
        EXPECT_EQ(hexadecimal(texto), valor) << '"' << texto << '"';
}

TEST(Hexadecimal, PlainRenderingHasNoLeadingZerosAndNegativesAreSixteenBit)
{
    EXPECT_EQ(hexa(0), "0");
    EXPECT_EQ(hexa(10), "A");
    EXPECT_EQ(hexa(0x1FFF), "1FFF");
    EXPECT_EQ(hexa(65535), "FFFF");
    EXPECT_EQ(hexa(-1), "FFFF");
    EXPECT_EQ(hexa(-4), "FFFC");
    EXPECT_EQ(hexa(-4096), "F000");
}

TEST(Hexadecimal, TwoAndFourDigitRenderingsPadButNeverCut)
{
    EXPECT_EQ(doscifras(0), "00");
    EXPECT_EQ(doscifras(10), "0A");
    EXPECT_EQ(doscifras(255), "FF");
    EXPECT_EQ(doscifras(256), "100");
    EXPECT_EQ(cuatrocifras(0), "0000");
    EXPECT_EQ(cuatrocifras(0xF0), "00F0");
    EXPECT_EQ(cuatrocifras(4095), "0FFF");
    EXPECT_EQ(cuatrocifras(4096), "1000");
    EXPECT_EQ(cuatrocifras(65535), "FFFF");
    EXPECT_EQ(cuatrocifras(-4), "FFFC");
}

TEST(Hexadecimal, RenderingAndReadingAgreeOverTheWholeAddressSpace)
{
    for (long valor = 0; valor <= 0xFFFF; ++valor)
        ASSERT_EQ(hexadecimal(cuatrocifras(valor)), std::to_string(valor));
}

} // namespace
} // namespace eeprog
