#include "shell/qt/twips.h"

#include <QGuiApplication>
#include <QScreen>

#include <cmath>

namespace eeprog {

namespace {

double puntosporpulgada()
{
    const QScreen* pantalla = QGuiApplication::primaryScreen();
    return pantalla ? pantalla->logicalDotsPerInch() : 96.0;
}

} // namespace

int pixeles(int twips)
{
    return static_cast<int>(std::lround(twips * puntosporpulgada() / 1440.0));
}

int twipsde(int pixeles)
{
    return static_cast<int>(std::lround(pixeles * 1440.0 / puntosporpulgada()));
}

QRect rectangulo(int izquierda, int arriba, int ancho, int alto)
{
    return {pixeles(izquierda), pixeles(arriba), pixeles(ancho), pixeles(alto)};
}

QRect rectangulo(Lugar lugar)
{
    return rectangulo(lugar.izquierda, lugar.arriba, lugar.ancho, lugar.alto);
}

QColor acolorqt(Color color)
{
    return QColor(color.rojo, color.verde, color.azul);
}

} // namespace eeprog
