#pragma once

#include "device/pantallaoperacion.h"
#include "editor/cuadriculas.h"
#include "link/enlace.h"

namespace eeprog {

// Writes the editor's bytes to the chip: one 16-byte write frame a grid row, rows 0 to
// filaeditada, edited or not. Each row goes to the address its fgdir label shows, and
// each byte is the fgascii cell as it stands. The board's echoes are not looked at. The
// port must be open and the board checked.
void grabaredit(Enlace& enlace, const Cuadriculas& cuadriculas, int filaeditada, PantallaOperacion pantalla);

// The bytes the log says were written. Row 0 goes out even when nothing was edited, yet
// then the count is 0: filaeditada starts at 0, so an edit of row 0 alone is told as none.
int bytesgrabados(int filaeditada);

} // namespace eeprog
