#include "editor/cuadriculas.h"
#include "editor/glifos.h"

#include <gtest/gtest.h>

namespace eeprog {
namespace {

TEST(Cuadriculas, DibujareditorShowsAnErasedChipWithFourDigitRowAddresses)
{
    Cuadriculas c;
    dibujareditor(c);
    const std::pair<int, const char*> direcciones[] = {{0, "0000"},   {1, "0010"},   {15, "00F0"},  {16, "0100"},
                                                        {255, "0FF0"}, {256, "1000"}, {4095, "FFF0"}};
    for (const auto& [fila, texto] : direcciones)
        EXPECT_EQ(c.fgdir.TextMatrix(fila, 0), texto) << fila;
    for (int fila : {0, 511, 512, 4095})
        for (int columna : {0, 15}) {
            EXPECT_EQ(c.fghex.TextMatrix(fila, columna), "FF");
            EXPECT_EQ(c.fgascii.TextMatrix(fila, columna), "\xFF");
        }
}

TEST(Cuadriculas, DibujareditorGivesEachGridItsShape)
{
    Cuadriculas c;
    dibujareditor(c);
    EXPECT_EQ(c.fgdir.Rows(), 4096);
    EXPECT_EQ(c.fgdir.Cols(), 1);
    EXPECT_EQ(c.fgdir.ColWidth(0), 500);
    EXPECT_EQ(c.fgdir.ColAlignment(0), Alineacion::centro);
    for (const Rejilla* r : {&c.fghex, &c.fgascii}) {
        EXPECT_EQ(r->Rows(), 4096);
        EXPECT_EQ(r->Cols(), 16);
    }
    EXPECT_EQ(c.fghex.ColWidth(15), 300);
    EXPECT_EQ(c.fgascii.ColWidth(15), 200);
    EXPECT_EQ(c.fgascii.RowHeight(), 270);
    EXPECT_EQ(c.fghex.RowHeight(), c.fgascii.RowHeight()) << "rows of the three grids line up";
    EXPECT_EQ(c.fgdir.RowHeight(), c.fgascii.RowHeight());
}

TEST(Glifos, ControlAndHighCodesShowTheirCodePageGlyphs)
{
    EXPECT_EQ(glifo(0), U' ');
    EXPECT_EQ(glifo(1), U'\u263A');
    EXPECT_EQ(glifo(10), U'\u25D9');
    EXPECT_EQ(glifo('A'), U'A');
    EXPECT_EQ(glifo(127), U'\u2302');
    EXPECT_EQ(glifo(0x80), U'\u00C7');
    EXPECT_EQ(glifo(0xB0), U'\u2591');
    EXPECT_EQ(glifo(0xFE), U'\u25A0');
    EXPECT_EQ(glifo(0xFF), U'\u00A0');
    EXPECT_EQ(textovisible("A\x0A\xC9"), "A\u25D9\u2554");
}

} // namespace
} // namespace eeprog
