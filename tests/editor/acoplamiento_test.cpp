#include "editor/acoplamiento.h"
#include "pantallafalsa.h"

#include <gtest/gtest.h>

namespace eeprog {
namespace {

using namespace prueba;

// The three grids as the window has them, with the coupling's handlers on their events.
class AcoplamientoTest : public ::testing::Test {
protected:
    AcoplamientoTest()
    {
        dibujareditor(c);
        for (Rejilla* r : {&c.fgdir, &c.fghex, &c.fgascii})
            r->areavisible(3000, 13 * 270);
        c.fgdir.Scroll = [this] { contar("fgdir"), acoplamiento.fgdir_Scroll(); };
        c.fghex.Scroll = [this] { contar("fghex"), acoplamiento.fghex_Scroll(); };
        c.fgascii.Scroll = [this] { contar("fgascii"), acoplamiento.fgascii_Scroll(); };
        c.fghex.MouseUp = [this] { acoplamiento.fghex_MouseUp(); };
        c.fgascii.MouseUp = [this] { acoplamiento.fgascii_MouseUp(); };
        c.fgascii.EnterCell = [this] { ++entradasascii; };
    }

    void contar(const std::string& rejilla) { desplazamientos.push_back(rejilla); }
    void clic(Rejilla& r, int fila, int columna)
    {
        r.pulsar(fila, columna);
        r.soltar(fila, columna);
    }

    Cuadriculas c;
    PanelesFalsos paneles;
    Acoplamiento acoplamiento{c, paneles};
    std::vector<std::string> desplazamientos;
    int entradasascii = 0;
};

TEST_F(AcoplamientoTest, ScrollingFgasciiBringsTheOtherTwoToTheSameTopRowAndTheChainEnds)
{
    c.fgascii.TopRow(2000);
    EXPECT_EQ(c.fgdir.TopRow(), 2000);
    EXPECT_EQ(c.fghex.TopRow(), 2000);
    // fgascii, then fgdir from its handler, then fghex from fgdir's: each grid once.
    EXPECT_EQ(desplazamientos, (std::vector<std::string>{"fgascii", "fgdir", "fghex"}));
}

TEST_F(AcoplamientoTest, AGridThatCannotReachTheRowPullsTheOthersBackToWhereItStopped)
{
    c.fghex.areavisible(3000, 15 * 270); // two rows more in sight: it stops two rows higher
    c.fgascii.TopRow(c.fgascii.maximotoprow());
    EXPECT_EQ(c.fghex.TopRow(), 4096 - 15);
    EXPECT_EQ(c.fgdir.TopRow(), c.fghex.TopRow());
    EXPECT_EQ(c.fgascii.TopRow(), c.fghex.TopRow());
}

TEST_F(AcoplamientoTest, AClickInFghexShowsAddressHexAndCharacterOfTheCell)
{
    ponerbyte(c, 18, 1, 0x0A);
    clic(c.fghex, 18, 1);
    EXPECT_EQ(paneles.textos[3], "Dir= 121");
    EXPECT_EQ(paneles.textos[4], "Hex= 0A");
    EXPECT_EQ(paneles.textos[5], "Ascii= \u25D9") << "code 10 shows by its glyph";
    clic(c.fghex, 0, 0);
    EXPECT_EQ(paneles.textos[3], "Dir= 0");
    clic(c.fgascii, 4095, 15);
    EXPECT_EQ(paneles.textos[3], "Dir= FFFF");
}

// Each grid takes its own text from its current cell, the other grid's from the far end.
// fghex keeps its drag selection; fgascii makes the cell under the pointer current.
TEST_F(AcoplamientoTest, ADragShowsTheFarEndAndOnlyFgasciiMovesItsCurrentCellThere)
{
    ponerbyte(c, 1, 1, 0x41);
    ponerbyte(c, 2, 3, 0x42);
    const std::pair<Rejilla*, const char*> arrastres[] = {{&c.fghex, "Dir= 23 Hex= 41 Ascii= B"},
                                                          {&c.fgascii, "Dir= 23 Hex= 42 Ascii= A"}};
    for (const auto& [r, textos] : arrastres) {
        r->pulsar(1, 1);
        r->arrastrar(2, 3);
        r->soltar(2, 3);
        EXPECT_EQ(paneles.textos[3] + " " + paneles.textos[4] + " " + paneles.textos[5], textos);
    }
    EXPECT_EQ(c.fghex.Row(), 1);
    EXPECT_EQ(c.fghex.RowSel(), 2);
    EXPECT_EQ(c.fgascii.Row(), 2);
    EXPECT_EQ(c.fgascii.Col(), 3);
    EXPECT_EQ(entradasascii, 3) << "at the press, then at the writes of Row and of Col";
}

TEST_F(AcoplamientoTest, AnEmptyCellShowsNothingBehindAscii)
{
    c.fgascii.TextMatrix(5, 5, "");
    clic(c.fghex, 5, 5);
    EXPECT_EQ(paneles.textos[4], "Hex= FF");
    EXPECT_EQ(paneles.textos[5], "Ascii= ");
}

TEST_F(AcoplamientoTest, AClickInFgdirChangesNoPanel)
{
    c.fgdir.MouseUp = nullptr; // fgdir has no handler, as in the window
    clic(c.fgdir, 7, 0);
    EXPECT_TRUE(paneles.textos.empty());
    EXPECT_EQ(c.fghex.Row(), 0);
}

} // namespace
} // namespace eeprog
