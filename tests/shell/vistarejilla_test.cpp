#include "ventanaprueba.h"

namespace eeprog::prueba {

// The grid widgets of the window, checked against the grids they show.
class VistaRejillaTest : public VentanaPrueba {};

// Moving fgascii's bar moves all three grids, whose rows then line up; a click makes the cell
// under the pointer current, once.
TEST_F(VistaRejillaTest, TheScrollBarAndTheGridsTopRowMoveTogetherAndAClickMakesACellCurrent)
{
    Rejillas& v = ventana->rejillas();
    v.fgascii().verticalScrollBar()->setValue(2048);
    for (VistaRejilla* vista : {&v.fgdir(), &v.fghex(), &v.fgascii()}) {
        EXPECT_EQ(std::pair(vista->rejilla().TopRow(), vista->verticalScrollBar()->value()), std::pair(2048, 2048));
        EXPECT_EQ(vista->rectangulocelda(2050, 0).top(), v.fgascii().rectangulocelda(2050, 0).top());
    }
    c().fghex.TopRow(300);
    EXPECT_EQ(v.fghex().verticalScrollBar()->value(), 300);
    int entradas = 0;
    c().fghex.EnterCell = [&] { ++entradas; };
    clic(c().fghex, 302, 7);
    clic(c().fghex, 302, 7);
    EXPECT_EQ(std::tuple(c().fghex.Row(), c().fghex.Col(), entradas), std::tuple(302, 7, 1));
}

TEST_F(VistaRejillaTest, CellsAreDrawnWhereTheGridPutsThem)
{
    VistaRejilla& fghex = ventana->rejillas().fghex();
    c().fghex.BackColor({255, 0, 0});
    c().fghex.GridColor({0, 0, 0});
    c().fghex.TextMatrix(2, 3, "");
    const QImage imagen = fghex.grab().toImage();
    const QRect celda = fghex.rectangulocelda(2, 3);
    EXPECT_EQ(imagen.pixelColor(celda.center() + QPoint(0, 2)), QColor(255, 0, 0));
    EXPECT_EQ(imagen.pixelColor(celda.right(), celda.center().y()), QColor(0, 0, 0));
    EXPECT_EQ(imagen.pixelColor(celda.center().x(), celda.bottom()), QColor(0, 0, 0));
}

} // namespace eeprog::prueba
