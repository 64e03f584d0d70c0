#pragma once

#include "editor/cuadriculas.h"
#include "plataforma/paneles.h"

namespace eeprog {

// Holds the three grids at the same first visible row, and shows the byte under the
// pointer in panels 3 to 5 when a mouse button is released over fghex or fgascii.
// The grids keep their own current cells.
class Acoplamiento {
public:
    Acoplamiento(Cuadriculas& cuadriculas, Paneles& paneles);
    Acoplamiento(const Acoplamiento&) = delete;
    Acoplamiento& operator=(const Acoplamiento&) = delete;

    // Each copies its own top row to the other two. The writes raise Scroll in those
    // grids in turn; the chain stops at the first grid that already shows that row.
    void fgdir_Scroll();
    void fghex_Scroll();
    void fgascii_Scroll();

    void fghex_MouseUp();
    void fgascii_MouseUp();

private:
    static void copiartoprow(const Rejilla& desde, Rejilla& primera, Rejilla& segunda);
    void mostrarbyte(const std::string& hex, const std::string& ascii, int fila, int columna);

    Cuadriculas& cuadriculas_;
    Paneles& paneles_;
};

} // namespace eeprog
