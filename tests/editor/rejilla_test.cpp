#include "editor/rejilla.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace eeprog {
namespace {

// A grid of 100 rows by 4 columns, 10 rows in sight, that records its events in order.
class RejillaTest : public ::testing::Test {
protected:
    RejillaTest()
    {
        rejilla.Cols(4);
        rejilla.Rows(100);
        rejilla.areavisible(4 * 960, 10 * 270);
        rejilla.Scroll = [this] { sucesos.push_back("Scroll " + std::to_string(rejilla.TopRow())); };
        rejilla.EnterCell = [this] {
            sucesos.push_back("EnterCell " + std::to_string(rejilla.Row()) + "," + std::to_string(rejilla.Col()));
        };
        rejilla.MouseUp = [this] { sucesos.push_back("MouseUp"); };
    }

    Rejilla rejilla;
    std::vector<std::string> sucesos;
};

using Sucesos = std::vector<std::string>;

TEST_F(RejillaTest, WritingRowOrColRaisesEnterCellOnlyWhenTheCellChanges)
{
    rejilla.Row(0);
    rejilla.Col(0);
    EXPECT_TRUE(sucesos.empty());
    rejilla.Row(5);
    rejilla.Col(2);
    rejilla.Col(2);
    EXPECT_EQ(sucesos, (Sucesos{"EnterCell 5,0", "EnterCell 5,2"}));
}

TEST_F(RejillaTest, WritingTheCurrentCellStillCollapsesADragSelection)
{
    rejilla.pulsar(2, 1);
    rejilla.arrastrar(6, 3);
    ASSERT_EQ(rejilla.RowSel(), 6);
    rejilla.Row(2);
    EXPECT_EQ(rejilla.RowSel(), 2);
    EXPECT_EQ(rejilla.ColSel(), 1);
    EXPECT_EQ(sucesos, (Sucesos{"EnterCell 2,1"}));
}

TEST_F(RejillaTest, TopRowRaisesScrollOnlyOnAChangeAndStopsWhereTheLastRowIsInSight)
{
    rejilla.TopRow(0);
    EXPECT_TRUE(sucesos.empty());
    rejilla.TopRow(40);
    rejilla.TopRow(40);
    rejilla.TopRow(500);
    rejilla.TopRow(-3);
    EXPECT_EQ(sucesos, (Sucesos{"Scroll 40", "Scroll 90", "Scroll 0"}));
    EXPECT_EQ(rejilla.maximotoprow(), 90);
}

TEST_F(RejillaTest, TheKeyboardScrollsTheCellIntoSightBeforeEnteringIt)
{
    for (int i = 0; i < 10; ++i)
        rejilla.mover(Tecla::abajo);
    EXPECT_EQ(sucesos.back(), "EnterCell 10,0");
    EXPECT_EQ(sucesos[sucesos.size() - 2], "Scroll 1");
    rejilla.mover(Tecla::paginaabajo);
    EXPECT_EQ(rejilla.Row(), 20);
    EXPECT_EQ(rejilla.TopRow(), 11);
    rejilla.mover(Tecla::final);
    EXPECT_EQ(rejilla.Row(), 99);
    EXPECT_EQ(rejilla.Col(), 3);
    EXPECT_EQ(rejilla.TopRow(), 90);
    rejilla.mover(Tecla::derecha);
    rejilla.mover(Tecla::abajo);
    EXPECT_EQ(sucesos.back(), "EnterCell 99,3") << "no cell past the last";
    rejilla.mover(Tecla::principio);
    EXPECT_EQ(rejilla.TopRow(), 0);
    EXPECT_EQ(sucesos.back(), "EnterCell 0,0");
}

TEST_F(RejillaTest, CellsHoldBytesAndAnEmptyTextAndNothingOutsideTheGrid)
{
    rejilla.TextMatrix(1, 1, std::string(1, '\0'));
    rejilla.TextMatrix(1, 2, "\xFF");
    rejilla.TextMatrix(100, 0, "X");
    rejilla.TextMatrix(0, 4, "X");
    EXPECT_EQ(rejilla.TextMatrix(1, 1), std::string(1, '\0'));
    EXPECT_EQ(rejilla.TextMatrix(1, 2), "\xFF");
    EXPECT_EQ(rejilla.TextMatrix(100, 0), "");
    EXPECT_EQ(rejilla.TextMatrix(-1, 0), "");
    rejilla.Row(1);
    rejilla.Col(1);
    EXPECT_EQ(rejilla.Text(), std::string(1, '\0'));
}

TEST_F(RejillaTest, OnlyWritesToRowsInSightAskForDrawing)
{
    int avisos = 0;
    rejilla.alcambiar = [&](Cambio c) { avisos += c == Cambio::celdas; };
    rejilla.TopRow(20);
    rejilla.TextMatrix(19, 0, "A");
    rejilla.TextMatrix(31, 0, "A");
    EXPECT_EQ(avisos, 0);
    rejilla.TextMatrix(20, 0, "A");
    rejilla.TextMatrix(30, 3, "A");
    EXPECT_EQ(avisos, 2);
}

TEST_F(RejillaTest, ThePointGivesTheCellUnderItAndTheNearestOneOutside)
{
    rejilla.ColWidth(0, 500);
    rejilla.TopRow(10);
    EXPECT_EQ(rejilla.celdaen(0, 0), (std::pair{10, 0}));
    EXPECT_EQ(rejilla.celdaen(499, 269), (std::pair{10, 0}));
    EXPECT_EQ(rejilla.celdaen(500, 270), (std::pair{11, 1}));
    EXPECT_EQ(rejilla.celdaen(500 + 960 * 3 + 10, -5), (std::pair{10, 3}));
    EXPECT_EQ(rejilla.celdaen(-5, 270 * 200), (std::pair{99, 0}));
}

TEST_F(RejillaTest, TheCurrentCellsRectangleIsMeasuredFromTheFirstCellInSight)
{
    rejilla.ColWidth(0, 500);
    rejilla.Row(14);
    rejilla.Col(2);
    rejilla.TopRow(10);
    EXPECT_EQ(rejilla.CellTop(), 4 * 270);
    EXPECT_EQ(rejilla.CellLeft(), 500 + 960);
    EXPECT_EQ(rejilla.CellWidth(), 960);
    EXPECT_EQ(rejilla.CellHeight(), 270);
    rejilla.areavisible(1500, 10 * 270);
    rejilla.LeftCol(1);
    EXPECT_EQ(rejilla.CellLeft(), 960);
}

} // namespace
} // namespace eeprog
