#include "aplicacion.h"
#include "editor/cuadriculas.h"
#include "shell/qt/twips.h"
#include "shell/qt/vistarejilla.h"

#include <QScrollBar>
#include <QTest>

#include <gtest/gtest.h>

namespace eeprog {
namespace {

using namespace prueba;

// The widget of fghex over a grid built as at start-up, checked against the grid itself.
class VistaRejillaTest : public ::testing::Test {
protected:
    static void SetUpTestSuite() { crearaplicacion(); }

    VistaRejillaTest()
    {
        dibujareditor(c);
        vista.setGeometry(rectangulo(645, 1800, 5205, 3735));
        vista.show();
        c.fghex.EnterCell = [this] { ++entradas; };
        c.fghex.Scroll = [this] { ++desplazamientos; };
        c.fghex.MouseUp = [this] { ++sueltas; };
    }

    // The middle of a cell, in the coordinates of the widget that takes the mouse.
    QPoint centro(int fila, int columna) const
    {
        return vista.viewport()->mapFromParent(vista.rectangulocelda(fila, columna).center());
    }

    Cuadriculas c;
    VistaRejilla vista{c.fghex, VistaRejilla::Letras::texto, nullptr};
    int entradas = 0;
    int desplazamientos = 0;
    int sueltas = 0;
};

TEST_F(VistaRejillaTest, AClickMakesTheCellUnderThePointerCurrent)
{
    QTest::mouseClick(vista.viewport(), Qt::LeftButton, {}, centro(3, 7));
    EXPECT_EQ(c.fghex.Row(), 3);
    EXPECT_EQ(c.fghex.Col(), 7);
    EXPECT_EQ(entradas, 1);
    EXPECT_EQ(sueltas, 1);
    QTest::mouseClick(vista.viewport(), Qt::LeftButton, {}, centro(3, 7));
    EXPECT_EQ(entradas, 1) << "the same cell again is no new cell";
    EXPECT_EQ(sueltas, 2);
}

TEST_F(VistaRejillaTest, TheScrollBarAndTheGridsTopRowMoveTogether)
{
    QScrollBar* barra = vista.verticalScrollBar();
    EXPECT_EQ(barra->maximum(), c.fghex.maximotoprow());
    EXPECT_EQ(barra->pageStep(), c.fghex.filasvisibles());
    barra->setValue(100);
    EXPECT_EQ(c.fghex.TopRow(), 100);
    EXPECT_EQ(desplazamientos, 1);
    c.fghex.TopRow(300);
    EXPECT_EQ(barra->value(), 300);
    EXPECT_EQ(desplazamientos, 2) << "the bar following the grid raises nothing more";
    QTest::mouseClick(vista.viewport(), Qt::LeftButton, {}, centro(302, 0));
    EXPECT_EQ(c.fghex.Row(), 302);
}

TEST_F(VistaRejillaTest, CellsAreDrawnWhereTheGridPutsThem)
{
    c.fghex.BackColor({255, 0, 0});
    c.fghex.GridColor({0, 0, 0});
    c.fghex.TextMatrix(2, 3, "");
    const QImage imagen = vista.grab().toImage();
    const QRect celda = vista.rectangulocelda(2, 3);
    EXPECT_EQ(imagen.pixelColor(celda.center() + QPoint(0, 2)), QColor(255, 0, 0));
    EXPECT_EQ(imagen.pixelColor(celda.right(), celda.center().y()), QColor(0, 0, 0));
    EXPECT_EQ(imagen.pixelColor(celda.center().x(), celda.bottom()), QColor(0, 0, 0));
    const QRect siguiente = vista.rectangulocelda(2, 4);
    EXPECT_EQ(siguiente.left(), celda.right() + 1);
    EXPECT_EQ(siguiente.width(), pixeles(300));
}

} // namespace
} // namespace eeprog
