#include "shell/qt/rejillas.h"

#include "shell/qt/twips.h"

#include <QFrame>

namespace eeprog {

namespace {

QFrame* rejilla(QWidget* ventana, const char* nombre, QRect lugar)
{
    auto* marco = new QFrame(ventana);
    marco->setObjectName(nombre);
    marco->setAccessibleName(nombre);
    marco->setFrameStyle(QFrame::Box | QFrame::Plain);
    marco->setAutoFillBackground(true);
    marco->setGeometry(lugar);
    marco->hide();
    return marco;
}

void colorear(QFrame* marco, QPalette::ColorRole papel, Color color)
{
    QPalette paleta = marco->palette();
    paleta.setColor(papel, acolorqt(color));
    marco->setPalette(paleta);
}

} // namespace

Rejillas::Rejillas(QWidget* ventana)
    : fgdir_(rejilla(ventana, "fgdir", rectangulo(120, 1800, 900, 3735))),
      fghex_(rejilla(ventana, "fghex", rectangulo(645, 1800, 5205, 3735))),
      fgascii_(rejilla(ventana, "fgascii", rectangulo(5475, 1800, 3420, 3735)))
{}

void Rejillas::dibujareditor()
{
    for (QFrame* marco : {fgdir_, fghex_, fgascii_}) {
        marco->show();
        marco->raise();
    }
}

void Rejillas::ponercolor(Color fondo)
{
    for (QFrame* marco : {fgdir_, fghex_, fgascii_})
        colorear(marco, QPalette::Window, fondo);
}

void Rejillas::ponercolorlineas(Color lineas)
{
    for (QFrame* marco : {fgdir_, fghex_, fgascii_})
        colorear(marco, QPalette::WindowText, lineas);
}

} // namespace eeprog
