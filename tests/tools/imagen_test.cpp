#include "imagen.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

using Chip = std::array<unsigned char, 8192>;

// A whole dump and its reload go through the emulator program's own test.
TEST(ImagenPlaca, AShortImageFillsFromZeroAndALongOneIsCut)
{
    std::string carpeta = testing::TempDir() + "imagenplacaXXXXXX";
    ASSERT_NE(mkdtemp(carpeta.data()), nullptr);
    std::ofstream(carpeta + "/corta.bin", std::ios::binary) << std::string("\x00\xFF", 2);
    std::ofstream(carpeta + "/larga.bin", std::ios::binary) << std::string(8192, 'a') + "b";
    Chip chip;
    chip.fill(0x5A);
    ASSERT_TRUE(eeprog::cargarimagen(carpeta + "/corta.bin", chip));
    EXPECT_EQ(chip[0], 0x00);
    EXPECT_EQ(chip[1], 0xFF);
    EXPECT_EQ(chip[2], 0x5A);
    ASSERT_TRUE(eeprog::cargarimagen(carpeta + "/larga.bin", chip));
    EXPECT_EQ(chip[8191], 'a');
    std::filesystem::remove_all(carpeta);
}

TEST(ImagenPlaca, UnreadableOrUnwritableFilesFail)
{
    Chip chip;
    chip.fill(0x5A);
    EXPECT_FALSE(eeprog::cargarimagen("/nohay/imagen.bin", chip));
    EXPECT_FALSE(eeprog::cargarimagen(testing::TempDir(), chip)); // a directory opens, but reads fail
    EXPECT_EQ(chip[0], 0x5A);
    EXPECT_FALSE(eeprog::volcarimagen("/nohay/volcado.bin", chip));
}
