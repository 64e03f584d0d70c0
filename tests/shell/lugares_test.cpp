#include "shell/qt/programa.h"
#include "shell/qt/ventanaabout.h"
#include "shell/qt/ventanasplash.h"
#include "ventanaprueba.h"

namespace eeprog::prueba {

// On a screen of 1440 dots per inch a pixel is a twip, so each control must stand on the very
// twip its window's layout gives it: a place one twip off, which rounds away at 96, shows here.
// The screen is set before the program's QApplication is made.
const bool pantalla =
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" EEPROG_FUENTES "/tests/shell/pantalla1440.json");
using LugaresTest = VentanaPrueba;

// The place of each control shown, in the order they were made, then the size of the whole.
std::string lugares(const QWidget& ventana)
{
    QString todos;
    for (const QWidget* w : ventana.findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        if (!w->isHidden() && !qobject_cast<const QSizeGrip*>(w))
            todos += QStringLiteral("%1 %2 %3 %4 | ").arg(w->x()).arg(w->y()).arg(w->width()).arg(w->height());
    return QStringLiteral("%1in %2 %3").arg(todos).arg(ventana.width()).arg(ventana.height()).toStdString();
}

TEST_F(LugaresTest, EveryControlStandsOnItsTwip)
{
    EXPECT_EQ(lugares(*ventana->centralWidget()),
              "1080 120 750 750 | 1920 120 750 750 | 2760 120 750 750 | 3600 120 750 750 | 4440 120 750 750 | "
              "5280 120 750 750 | 6120 120 750 750 | 6960 120 750 750 | 120 960 8775 735 | "
              "120 1800 900 3735 | 645 1800 5205 3735 | 5475 1800 3420 3735 | 120 5640 8655 255 | in 9045 5970");
    EXPECT_EQ(lugares(ventana->StatusBar1()),
              "0 0 4500 255 | 4500 0 2000 255 | 6500 0 800 255 | 7300 0 700 255 | 8000 0 700 255 | in 9045 255");
    EXPECT_EQ(ventana->rejillas().fghex().rectangulocelda(0, 0), QRect(1, 1, 300, 270)); // inside a 1-pixel frame
    const QPoint fuera = ventana->frameGeometry().center() - ventana->screen()->availableGeometry().center();
    EXPECT_LE(fuera.manhattanLength(), 4) << "the window opens centred, to a frame's width";
    ventana->opcionacercade_Click();
    // The about box at its place on the screen, its size fixed.
    const QWidget& caja = *ventana->frmAbout();
    EXPECT_EQ(QRect(caja.geometry().topLeft(), caja.maximumSize()), QRect(2340, 1935, 6780, 3255));
    EXPECT_EQ(lugares(caja), "5160 1080 1500 345 | 5160 1560 1485 345 | 120 120 6495 375 | 5400 600 1215 375 | "
                             "240 960 4815 1335 | 2760 2520 3855 495 | in 6780 3255");
    Programa programa{[this] { return crear(); }};
    EXPECT_EQ(lugares(*programa.frmSplash()), "1320 240 3135 375 | 1800 480 2055 255 | in 5775 915");
}

} // namespace eeprog::prueba
