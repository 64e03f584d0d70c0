#pragma once

#include "editor/cajacelda.h"

#include <QLineEdit>

namespace eeprog {

// The overlay box of a cell editor. A character key is offered to KeyPress before it
// has any effect; unless the handler cancels it, it is then put in at the caret. Keys
// that make no character (arrows, Home, End, Delete) act on the box's text alone. No
// character reaches the text any other way: a composed one is a key press like any
// other, and paste, undo, redo and drops do nothing.
class VistaCaja : public QLineEdit, public CajaCelda {
public:
    enum class Letras { texto, glifos };

    // With Letras::glifos the box shows each byte by its code-page glyph, as fgascii does,
    // and a typed character is the byte whose glyph it is.
    VistaCaja(Letras letras, QWidget* padre);

    std::string Text() const override;
    void Text(const std::string& texto) override;
    void colocar(int izquierda, int arriba, int ancho, int alto) override;
    void BackColor(Color color) override;
    void Visible(bool visible) override;
    void SetFocus() override;

protected:
    bool event(QEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void inputMethodEvent(QInputMethodEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;

private:
    void pulsar(char32_t letra);
    int codigo(char32_t letra) const;
    QString mostrar(const std::string& bytes) const;

    Letras letras_;
};

} // namespace eeprog
