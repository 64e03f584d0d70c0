#pragma once

#include "editor/rejilla.h"

namespace eeprog {

// The memory editor: three grids side by side that read as one table. fgdir shows the
// address of each row, fghex the row's sixteen bytes in hexadecimal, fgascii the same
// bytes as characters. Byte address A is row A / 16, column A % 16 of fghex and fgascii.
// Their cells are the editor's only store of bytes.
struct Cuadriculas {
    Rejilla fgdir;
    Rejilla fghex;
    Rejilla fgascii;
};

// Where each grid stands on the main window, in twips. They overlap: fgascii lies over
// fghex, and fghex over fgdir.
struct Lugar {
    int izquierda;
    int arriba;
    int ancho;
    int alto;
};
inline constexpr Lugar lugarfgdir{120, 1800, 900, 3735};
inline constexpr Lugar lugarfghex{645, 1800, 5205, 3735};
inline constexpr Lugar lugarfgascii{5475, 1800, 3420, 3735};

inline constexpr int filasrejilla = 4096;
inline constexpr int columnasrejilla = 16;

// Builds the grids, once, at start-up: shape, widths, and the cells of an erased chip.
void dibujareditor(Cuadriculas& cuadriculas);

// The background follows the skin; the grid lines stay black whatever the skin.
void colorearcuadriculas(Cuadriculas& cuadriculas, Color fondo, Color lineas);

// fghex and fgascii show byte value at row, column; the fgascii cell holds the byte itself.
void ponerbyte(Cuadriculas& cuadriculas, int fila, int columna, int valor);

} // namespace eeprog
