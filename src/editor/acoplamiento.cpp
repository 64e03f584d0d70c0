#include "editor/acoplamiento.h"
#include "editor/glifos.h"

#include "records/hexadecimal.h"

namespace eeprog {

Acoplamiento::Acoplamiento(Cuadriculas& cuadriculas, Paneles& paneles) : cuadriculas_(cuadriculas), paneles_(paneles) {}

// The top row is read again for the second grid: the nested handlers may have moved it.
void Acoplamiento::copiartoprow(const Rejilla& desde, Rejilla& primera, Rejilla& segunda)
{
    primera.TopRow(desde.TopRow());
    segunda.TopRow(desde.TopRow());
}

void Acoplamiento::fgdir_Scroll()
{
    copiartoprow(cuadriculas_.fgdir, cuadriculas_.fghex, cuadriculas_.fgascii);
}

void Acoplamiento::fghex_Scroll()
{
    copiartoprow(cuadriculas_.fghex, cuadriculas_.fgdir, cuadriculas_.fgascii);
}

void Acoplamiento::fgascii_Scroll()
{
    copiartoprow(cuadriculas_.fgascii, cuadriculas_.fgdir, cuadriculas_.fghex);
}

// A grid's own text comes from its current cell, the other grid's from the far end of the
// selection; after a drag the two are different cells.
void Acoplamiento::fghex_MouseUp()
{
    const Rejilla& fghex = cuadriculas_.fghex;
    const int fila = fghex.RowSel();
    const int columna = fghex.ColSel();
    mostrarbyte(fghex.Text(), cuadriculas_.fgascii.TextMatrix(fila, columna), fila, columna);
}

// fgascii then makes the cell under the pointer current, which ends its selection.
void Acoplamiento::fgascii_MouseUp()
{
    Rejilla& fgascii = cuadriculas_.fgascii;
    const int fila = fgascii.RowSel();
    const int columna = fgascii.ColSel();
    mostrarbyte(cuadriculas_.fghex.TextMatrix(fila, columna), fgascii.Text(), fila, columna);
    fgascii.Row(fgascii.MouseRow());
    fgascii.Col(fgascii.MouseCol());
}

void Acoplamiento::mostrarbyte(const std::string& hex, const std::string& ascii, int fila, int columna)
{
    paneles_.panel(3, "Dir= " + hexa(fila * 16L + columna));
    paneles_.panel(4, "Hex= " + hex);
    paneles_.panel(5, "Ascii= " + textovisible(ascii));
}

} // namespace eeprog
