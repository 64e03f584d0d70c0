#pragma once

#include "editor/superpuesta.h"

namespace eeprog {

// Typing characters into fgascii, one a cell. Every key moves the grid to the next cell
// first, so the character lands in front of that cell's text in the box; the box's Change
// then finds two characters, stores the first in the cell that was left (and its code in
// fghex), and keeps the second. In front of an empty cell nothing is stored.
class EditorAscii : private Superpuesta {
public:
    EditorAscii(Cuadriculas& cuadriculas, CajaCelda& txtcelda, Edicion& edicion);

    void fgascii_EnterCell();
    // Every key that makes a character is taken alike; none is refused.
    void txtcelda_KeyPress(int& tecla);
    void txtcelda_Change();

private:
    Cuadriculas& cuadriculas_;
};

} // namespace eeprog
