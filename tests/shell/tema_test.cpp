#include "shell/tema.h"
#include "shell/menuskin.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>

namespace eeprog {
namespace {

constexpr Color blanco{255, 255, 255};

TEST(TemaTest, AFullFileGivesEachColourItsRole)
{
    const auto tema = leertema("; a comment\r\n"
                               "\r\n"
                               "nombre = Galaxy\r\n"
                               "color = #A9B1DE\r\n"
                               "ventana=#2B3150\r\n"
                               "panel = #464f7e\r\n"
                               "texto = #E8EAF6\r\n"
                               "textopanel = #FFFFFF\r\n"
                               "resalte = #7E57C2\r\n"
                               "textoresalte = #000000\r\n"
                               "brillo = 3\r\n");
    ASSERT_TRUE(tema);
    EXPECT_EQ(tema->nombre, "Galaxy");
    EXPECT_EQ(tema->color, (Color{0xA9, 0xB1, 0xDE}));
    EXPECT_EQ(tema->ventana, (Color{0x2B, 0x31, 0x50}));
    EXPECT_EQ(tema->panel, (Color{0x46, 0x4F, 0x7E}));
    EXPECT_EQ(tema->texto, (Color{0xE8, 0xEA, 0xF6}));
    EXPECT_EQ(tema->textopanel, blanco);
    EXPECT_EQ(tema->resalte, (Color{0x7E, 0x57, 0xC2}));
    EXPECT_EQ(tema->textoresalte, negro);
}

// The colour alone makes a skin: the window takes it, and the texts read on what they lie on.
TEST(TemaTest, WhatIsLeftOutFollowsTheColour)
{
    const auto claro = leertema("color = #DDF7E0\n");
    ASSERT_TRUE(claro);
    EXPECT_EQ(claro->ventana, claro->color);
    EXPECT_EQ(claro->panel, claro->color);
    EXPECT_EQ(claro->resalte, claro->color);
    EXPECT_EQ(claro->texto, negro);

    const auto oscuro = leertema("color = #DDF7E0\nventana = #202020\n");
    ASSERT_TRUE(oscuro);
    EXPECT_EQ(oscuro->panel, (Color{0x20, 0x20, 0x20}));
    EXPECT_EQ(oscuro->texto, blanco);
    EXPECT_EQ(oscuro->textopanel, blanco);
}

TEST(TemaTest, AFileThatBreaksTheRulesGivesNothing)
{
    for (const char* texto :
         {"", "; only a comment\n", "nombre = Sin color\n", "color = DDF7E0\n", "color = #DDF7E\n", "color = #GGF7E0\n",
          "color = #DDF7E0\nventana = azul\n", "color = #DDF7E0\nrojo y verde\n", "\x89PNG\r\n\x1a\n"})
        EXPECT_FALSE(leertema(texto)) << texto;
}

// The files shipped in skins/ are named as the menu opens them, case included, each is a
// skin, and no two look alike; one of them is dark, as some users like them.
TEST(TemaTest, EveryEntryOfTheSkinMenuHasItsOwnFile)
{
    std::set<std::tuple<int, int, int>> colores;
    bool algunooscuro = false;
    for (const EntradaSkin& entrada : skinsdelmenu) {
        const std::filesystem::path ruta = std::filesystem::path(EEPROG_FUENTES) / entrada.archivo;
        std::ifstream archivo(ruta);
        ASSERT_TRUE(archivo) << ruta;
        std::ostringstream texto;
        texto << archivo.rdbuf();
        const auto tema = leertema(texto.str());
        ASSERT_TRUE(tema) << ruta;
        EXPECT_EQ(tema->nombre, entrada.caption);
        colores.insert({tema->ventana.rojo, tema->ventana.verde, tema->ventana.azul});
        algunooscuro = algunooscuro || textosobre(tema->ventana) == blanco;
    }
    EXPECT_EQ(colores.size(), skinsdelmenu.size());
    EXPECT_TRUE(algunooscuro);
}

} // namespace
} // namespace eeprog
