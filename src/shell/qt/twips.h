#pragma once

#include "editor/cuadriculas.h"
#include "plataforma/color.h"

#include <QColor>
#include <QRect>

namespace eeprog {

// Lengths of the window are given in twips, 1/1440 inch, and drawn at the screen's DPI.
int pixeles(int twips);
// The other way: the twips that a length on the screen stands for.
int twipsde(int pixeles);
QRect rectangulo(int izquierda, int arriba, int ancho, int alto);
QRect rectangulo(Lugar lugar);

QColor acolorqt(Color color);

} // namespace eeprog
