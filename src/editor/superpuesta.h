#pragma once

#include "editor/cajacelda.h"
#include "editor/cuadriculas.h"
#include "editor/edicion.h"

namespace eeprog {

// What the two overlay editors share: the box follows the grid's current cell in edit mode,
// and a key moves the grid on to the next cell before it lands in the box.
class Superpuesta {
protected:
    Superpuesta(Rejilla& rejilla, Lugar lugar, CajaCelda& caja, Edicion& edicion);

    // In edit mode: the box is emptied and hidden, put over the current cell, given that
    // cell's text, coloured green, shown and given the focus.
    void entrarcelda();
    // The cell that the next commit writes is the far end of the selection; the grid moves
    // to the cell after it, and from column 15 to column 0 of the next row. The last row
    // has no next one: the current cell goes to its column 0.
    void siguientecelda();
    void marcarfila(int fila);

    Rejilla& rejilla_;
    Lugar lugar_;
    CajaCelda& caja_;
    Edicion& edicion_;
};

} // namespace eeprog
