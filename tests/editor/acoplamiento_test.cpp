#include "editor/acoplamiento.h"
#include "editor/glifos.h"
#include "pantallafalsa.h"

#include <gtest/gtest.h>

#include <functional>

namespace eeprog {

// A grid of 100 rows by 4 columns, 10 rows in sight, that records its events in order.
struct Grabada {
    Grabada()
    {
        rejilla.Cols(4), rejilla.Rows(100), rejilla.areavisible(4 * 960, 10 * 270);
        rejilla.Scroll = [this] { sucesos += "Scroll " + std::to_string(rejilla.TopRow()) + ", "; };
        rejilla.EnterCell = [this] { sucesos += "EnterCell " + celda(rejilla.Row(), rejilla.Col()) + ", "; };
    }
    static std::string celda(int fila, int columna) { return std::to_string(fila) + "," + std::to_string(columna); }
    // Where the grid stands: current cell, the selection's far end, top row.
    std::string donde() const
    {
        return "at " + celda(rejilla.Row(), rejilla.Col()) + " " + celda(rejilla.RowSel(), rejilla.ColSel()) + " " +
               std::to_string(rejilla.TopRow());
    }
    Rejilla rejilla;
    std::string sucesos;
};
struct RejillaTest : ::testing::Test, Grabada {};

TEST(Rejilla, RaisesEnterCellAndScrollOnlyOnARealChangeAndScrollsBeforeEntering)
{
    // clang-format off
    const std::pair<std::function<void(Rejilla&)>, const char*> filas[] = {
        {[](Rejilla& r) { r.Row(0), r.Col(0), r.Row(5), r.Col(2), r.Col(2); }, "EnterCell 5,0, EnterCell 5,2, at 5,2 5,2 0"},
        {[](Rejilla& r) { r.pulsar(2, 1), r.arrastrar(6, 3), r.arrastrar(7, 3), r.soltar(7, 3); }, "EnterCell 2,1, at 2,1 7,3 0"},
        // Writing the current cell collapses a drag selection.
        {[](Rejilla& r) { r.pulsar(2, 1), r.arrastrar(6, 3), r.Row(2); }, "EnterCell 2,1, at 2,1 2,1 0"},
        {[](Rejilla& r) { r.TopRow(0), r.TopRow(40), r.TopRow(40), r.TopRow(500), r.TopRow(-3); },
         "Scroll 40, Scroll 90, Scroll 0, at 0,0 0,0 0"},
        {[](Rejilla& r) { r.TopRow(90), r.areavisible(4 * 960, 20 * 270); }, "Scroll 90, Scroll 80, at 0,0 0,0 80"},
        {[](Rejilla& r) { r.Row(9), r.mover(Tecla::abajo), r.mover(Tecla::paginaabajo), r.mover(Tecla::paginaarriba); },
         "EnterCell 9,0, Scroll 1, EnterCell 10,0, Scroll 11, EnterCell 20,0, Scroll 1, EnterCell 10,0, at 10,0 10,0 1"},
        {[](Rejilla& r) { r.mover(Tecla::final), r.mover(Tecla::derecha), r.mover(Tecla::abajo), r.mover(Tecla::principio), r.mover(Tecla::arriba); },
         "Scroll 90, EnterCell 99,3, Scroll 0, EnterCell 0,0, at 0,0 0,0 0"},
        {[](Rejilla& r) { r.Row(3), r.Col(2), r.mover(Tecla::inicio), r.mover(Tecla::fin), r.mover(Tecla::izquierda); },
         "EnterCell 3,0, EnterCell 3,2, EnterCell 3,0, EnterCell 3,3, EnterCell 3,2, at 3,2 3,2 0"}};
    // clang-format on
    for (const auto& [hacer, sucesos] : filas) {
        Grabada g;
        hacer(g.rejilla);
        EXPECT_EQ(g.sucesos + g.donde(), sucesos); // the expected sequence labels the row
    }
}

// A cell outside the grid reads as empty and takes no text; a column outside has no width.
TEST_F(RejillaTest, CellsHoldBytesAndAreFoundMeasuredAndRedrawnFromTheFirstRowInSight)
{
    int avisos = 0;
    rejilla.alcambiar = [&](Cambio c) { avisos += c == Cambio::celdas; };
    rejilla.Cols(5), rejilla.ColWidth(4, 700), rejilla.Cols(4); // the column taken away keeps no width
    rejilla.ColWidth(0, 500), rejilla.TopRow(20);
    for (auto [fila, columna] : {std::pair{19, 0}, {31, 0}, {100, 0}, {20, 4}, {-1, 0}, {20, 0}, {30, 3}})
        rejilla.TextMatrix(fila, columna, fila == 20 ? std::string(1, '\0') : "\xFF");
    EXPECT_EQ(avisos, 2);
    const std::pair<std::pair<int, int>, std::pair<int, int>> puntos[] = {
        {{0, 0}, {20, 0}}, {{499, 269}, {20, 0}}, {{500, 270}, {21, 1}}, {{3390, -5}, {20, 3}}, {{-5, 54000}, {99, 0}}};
    for (const auto& [punto, celda] : puntos)
        EXPECT_EQ(rejilla.celdaen(punto.first, punto.second), celda) << punto.first << "," << punto.second;
    rejilla.Row(30), rejilla.Col(3); // a row out of sight comes into it first
    const std::string fuera = rejilla.TextMatrix(100, 0) + rejilla.TextMatrix(20, 4) + rejilla.TextMatrix(-1, 0);
    EXPECT_EQ(rejilla.TextMatrix(20, 0) + rejilla.Text() + fuera, std::string("\0\xFF", 2));
    EXPECT_EQ(rejilla.ColWidth(4) + rejilla.ColWidth(-1), 0);
    EXPECT_EQ(std::tuple(rejilla.CellTop(), rejilla.CellLeft(), rejilla.CellWidth()),
              std::tuple(9 * 270, 500 + 960 * 2, 960));
    // Too narrow: as few columns as need go, and no more.
    rejilla.areavisible(2900, 10 * 270), rejilla.mover(Tecla::fin), rejilla.LeftCol(3);
    EXPECT_EQ(std::pair(rejilla.LeftCol(), rejilla.CellLeft()), std::pair(1, 1920));
    rejilla.FormatString("^|>"); // a mark for each column, from the left
    EXPECT_TRUE(rejilla.ColAlignment(0) == Alineacion::centro && rejilla.ColAlignment(1) == Alineacion::derecha);
    rejilla.TextMatrix(0, 1, "A"), rejilla.Rows(101), rejilla.Cols(5);
    EXPECT_EQ(rejilla.TextMatrix(0, 1) + rejilla.TextMatrix(20, 0) + rejilla.TextMatrix(100, 0), std::string("A\0", 2))
        << "a grid made larger keeps its texts";
}

// The three grids as the window has them, with the coupling's handlers on their events.
struct AcoplamientoTest : ::testing::Test {
    AcoplamientoTest()
    {
        dibujareditor(c);
        for (Rejilla* r : {&c.fgdir, &c.fghex, &c.fgascii})
            r->areavisible(3000, 13 * 270);
        c.fgdir.Scroll = [this] { desplazamientos += "fgdir ", acoplamiento.fgdir_Scroll(); };
        c.fghex.Scroll = [this] { desplazamientos += "fghex ", acoplamiento.fghex_Scroll(); };
        c.fgascii.Scroll = [this] { desplazamientos += "fgascii ", acoplamiento.fgascii_Scroll(); };
        c.fghex.MouseUp = [this] { acoplamiento.fghex_MouseUp(); };
        c.fgascii.MouseUp = [this] { acoplamiento.fgascii_MouseUp(); };
    }

    Cuadriculas c;
    prueba::PanelesFalsos paneles;
    Acoplamiento acoplamiento{c, paneles};
    std::string desplazamientos;
};

// fgascii holds the bytes themselves; they are shown by their code page glyphs.
TEST(Glifos, EachByteHasTheGlyphOfItsCodePageAndOnlyThoseGlyphsHaveACode)
{
    // clang-format off
    const std::pair<int, char32_t> glifos[] = {{1, U'\u263A'}, {10, U'\u25D9'}, {31, U'\u25BC'}, {32, U' '}, {126, U'~'},
                                               {127, U'\u2302'}, {0x80, U'\u00C7'}, {0xFE, U'\u25A0'}, {0xFF, U'\u00A0'}};
    // clang-format on
    for (const auto& [codigo, letra] : glifos)
        EXPECT_EQ(std::pair(glifo(static_cast<unsigned char>(codigo)), codigode(letra)), std::pair(letra, codigo))
            << "code " << codigo;
    EXPECT_EQ(std::pair(codigode(U'\u20AC'), codigode(char32_t{0x7F})), std::pair(-1, -1)) << "no byte shows as these";
}

TEST_F(AcoplamientoTest, ScrollingOneGridBringsTheOtherTwoToTheSameTopRowAndTheChainEnds)
{
    c.fgascii.TopRow(2000);
    // fgascii, then fgdir from its handler, then fghex from fgdir's: each grid once.
    EXPECT_EQ(desplazamientos + std::to_string(c.fgdir.TopRow() + c.fghex.TopRow()), "fgascii fgdir fghex 4000");
    c.fghex.areavisible(3000, 15 * 270); // two rows more in sight: it stops two rows higher
    c.fgascii.TopRow(4096);
    for (const Rejilla* r : {&c.fgdir, &c.fghex, &c.fgascii})
        EXPECT_EQ(r->TopRow(), 4096 - 15);
}

// Each grid takes its own text from its current cell, the other grid's from the selection's far
// end. fghex keeps its drag selection; fgascii makes the cell under the pointer current.
TEST_F(AcoplamientoTest, AReleaseShowsAddressHexAndCharacterOfTheCellInPanelsThreeToFive)
{
    ponerbyte(c, 18, 1, 0x0A), ponerbyte(c, 1, 1, 0x41), ponerbyte(c, 2, 3, 0x42), c.fgascii.TextMatrix(5, 5, "");
    // label, grid, cells (row * 16 + column) pressed at and released at, panels, current cell afterwards
    const std::tuple<const char*, Rejilla Cuadriculas::*, int, int, const char*, int> filas[] = {
        {"code 10 shows by its glyph", &Cuadriculas::fghex, 0x121, 0x121, "Dir= 121 Hex= 0A Ascii= \u25D9", 0x121},
        {"the first cell", &Cuadriculas::fghex, 0, 0, "Dir= 0 Hex= FF Ascii= \u00A0", 0},
        {"the last cell", &Cuadriculas::fgascii, 0xFFFF, 0xFFFF, "Dir= FFFF Hex= FF Ascii= \u00A0", 0xFFFF},
        {"an empty cell", &Cuadriculas::fghex, 0x55, 0x55, "Dir= 55 Hex= FF Ascii= ", 0x55},
        {"a drag in fghex", &Cuadriculas::fghex, 0x11, 0x23, "Dir= 23 Hex= 41 Ascii= B", 0x11},
        {"a drag in fgascii", &Cuadriculas::fgascii, 0x11, 0x23, "Dir= 23 Hex= 42 Ascii= A", 0x23}};
    for (const auto& [nombre, rejilla, desde, hasta, textos, actual] : filas) {
        Rejilla& r = c.*rejilla;
        r.pulsar(desde / 16, desde % 16), r.arrastrar(hasta / 16, hasta % 16), r.soltar(hasta / 16, hasta % 16);
        EXPECT_EQ(paneles.textos[3] + " " + paneles.textos[4] + " " + paneles.textos[5], textos) << nombre;
        EXPECT_EQ(r.Row() * 16 + r.Col(), actual) << nombre;
    }
}

} // namespace eeprog
