#include "editor/superpuesta.h"

#include <algorithm>

namespace eeprog {

Superpuesta::Superpuesta(Rejilla& rejilla, Lugar lugar, CajaCelda& caja, Edicion& edicion)
    : rejilla_(rejilla), lugar_(lugar), caja_(caja), edicion_(edicion)
{}

void Superpuesta::entrarcelda()
{
    if (!edicion_.edicionhabilitada)
        return;
    caja_.Text("");
    caja_.Visible(false);
    caja_.colocar(lugar_.izquierda + rejilla_.CellLeft(), lugar_.arriba + rejilla_.CellTop(), rejilla_.CellWidth(),
                  rejilla_.CellHeight());
    caja_.Text(rejilla_.Text());
    caja_.BackColor(verde);
    caja_.Visible(true);
    caja_.SetFocus();
}

// Each write of Row or Col raises EnterCell in the grid before it returns, so by the end
// the box stands over the next cell and holds its text.
void Superpuesta::siguientecelda()
{
    edicion_.celdafila = rejilla_.RowSel();
    edicion_.celdacolumna = rejilla_.ColSel();
    if (rejilla_.ColSel() == columnasrejilla - 1) {
        if (rejilla_.RowSel() != filasrejilla - 1)
            rejilla_.Row(rejilla_.RowSel() + 1);
        rejilla_.Col(0);
    } else {
        rejilla_.Row(rejilla_.RowSel());
        rejilla_.Col(rejilla_.ColSel() + 1);
    }
}

void Superpuesta::marcarfila(int fila)
{
    edicion_.filaeditada = std::max(edicion_.filaeditada, fila);
}

} // namespace eeprog
