#pragma once

#include "editor/cuadriculas.h"

class QFrame;
class QWidget;

namespace eeprog {

// The three grids of the memory editor in their places on the window. They overlap:
// fgascii lies over fghex, and fghex over fgdir, so only fgascii's scroll bar shows.
// For now each is a framed area in the skin colour; the cells come with the editor.
class Rejillas : public Cuadriculas {
public:
    explicit Rejillas(QWidget* ventana);

    void dibujareditor() override;
    void ponercolor(Color fondo) override;
    void ponercolorlineas(Color lineas) override;

    QFrame* fgdir() const { return fgdir_; }
    QFrame* fghex() const { return fghex_; }
    QFrame* fgascii() const { return fgascii_; }

private:
    QFrame* fgdir_;
    QFrame* fghex_;
    QFrame* fgascii_;
};

} // namespace eeprog
