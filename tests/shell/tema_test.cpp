#include "shell/menuskin.h"
#include "shell/tema.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

namespace eeprog {
namespace {

constexpr Color blanco{255, 255, 255};

// Colours left out follow "color": the window takes it, panels and highlight the window's,
// and each text is black on a background at least as bright as mid grey (#808080), white below.
TEST(TemaTest, ASkinFileGivesEachColourItsRoleFillsTheRestFromColourAndNothingWhenBroken)
{
    constexpr Color gris{0x80, 0x80, 0x80}, oscuro{0x7F, 0x7F, 0x7F}, claro{0xDD, 0xF7, 0xE0};
    const std::tuple<const char*, const char*, Tema> casos[]{
        // label, file, skin
        {"full",
         "; a comment\r\n\r\nnombre = Galaxy\r\ncolor = #A9B1DE\r\nventana=#2B3150\r\npanel = #464f7e\r\ntexto = "
         "#E8EAF6\r\ntextopanel = #FFFF00\r\nresalte = #7E57C2\r\ntextoresalte = #000000\r\nbrillo = 3\r\n",
         {"Galaxy",
          {169, 177, 222},
          {43, 49, 80},
          {70, 79, 126},
          {232, 234, 246},
          {255, 255, 0},
          {126, 87, 194},
          negro}},
        {"colour alone", "  color = #808080 \t\n", {"", gris, gris, gris, negro, negro, gris, negro}},
        {"dark window",
         "color = #DDF7E0\nventana = #7F7F7F\n",
         {"", claro, oscuro, oscuro, blanco, blanco, oscuro, blanco}}};
    for (const auto& [nombre, texto, tema] : casos)
        EXPECT_EQ(leertema(texto), tema) << nombre;
    for (const char* roto : {"", "; only a comment\n", "nombre = Sin color\n", "color = DDF7E0\n", "color = #DDF7E\n",
                             "color = #GGF7E0\n", "color = #DDGGE0\n", "color = #DDF7E0\nventana = azul\n",
                             "color = #DDF7E0\nrojo y verde\n", "\x89PNG\r\n\x1a\n"})
        EXPECT_FALSE(leertema(roto)) << "a file that breaks the rules gives nothing: " << roto;
}

// The files shipped in skins/ are named as the menu opens them, case included, and each is
// the skin its entry names.
TEST(TemaTest, EveryEntryOfTheSkinMenuHasItsOwnFile)
{
    for (const EntradaSkin& entrada : skinsdelmenu) {
        std::ostringstream texto;
        texto << std::ifstream(std::filesystem::path(EEPROG_FUENTES) / entrada.archivo).rdbuf();
        const auto tema = leertema(texto.str());
        EXPECT_TRUE(tema && tema->nombre == entrada.caption) << entrada.archivo;
    }
}

} // namespace
} // namespace eeprog
