#pragma once

#include "plataforma/color.h"

namespace eeprog {

// The three grids of the memory editor: row addresses, bytes in hexadecimal, the same
// bytes as characters.
class Cuadriculas {
public:
    virtual ~Cuadriculas() = default;
    // Builds the grids once, at start-up: shape, widths and first cell texts.
    virtual void dibujareditor() = 0;
    // The background follows the skin; the grid lines are set apart, so they can stay black.
    virtual void ponercolor(Color fondo) = 0;
    virtual void ponercolorlineas(Color lineas) = 0;
};

} // namespace eeprog
