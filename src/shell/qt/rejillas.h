#pragma once

#include "editor/cuadriculas.h"

class QWidget;

namespace eeprog {

class VistaRejilla;

// The three grid widgets in their places on the window. They overlap: fgascii lies over
// fghex, and fghex over fgdir, so that only fgascii's vertical scroll bar is in sight.
class Rejillas {
public:
    Rejillas(Cuadriculas& cuadriculas, QWidget* ventana);

    VistaRejilla& fgdir() const { return *fgdir_; }
    VistaRejilla& fghex() const { return *fghex_; }
    VistaRejilla& fgascii() const { return *fgascii_; }

private:
    VistaRejilla* fgdir_;
    VistaRejilla* fghex_;
    VistaRejilla* fgascii_;
};

} // namespace eeprog
