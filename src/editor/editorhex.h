#pragma once

#include "editor/superpuesta.h"
#include "plataforma/timbre.h"

namespace eeprog {

// Typing bytes into fghex as pairs of hexadecimal digits. The second digit moves the grid
// to the next cell first, so it lands in front of that cell's text in the box; the box's
// Change then finds three characters, stores the pair in the cell that was left, and keeps
// the next cell's two. A digit that lands in front of a shorter text stores nothing.
class EditorHex : private Superpuesta {
public:
    EditorHex(Cuadriculas& cuadriculas, CajaCelda& HEXcelda, Edicion& edicion, Timbre& timbre);

    void fghex_EnterCell();
    // Only "0"-"9" and "A"-"F" are digits; any other key sounds the warning and is lost.
    void HEXcelda_KeyPress(int& tecla);
    void HEXcelda_Change();

private:
    Cuadriculas& cuadriculas_;
    Timbre& timbre_;
};

} // namespace eeprog
