#pragma once

#include "plataforma/boton.h"

#include <QFrame>

namespace eeprog {

// A picture button of the command row: a framed square holding its 48 x 48 icon, whose
// lower part shows the word. At rest it lies flat with a thin border; while its operation
// runs it stands out. It takes the focus from the keyboard alone, by Tab, shows it with a
// dotted rectangle, and Space presses it then, as a push button. Assistive technology sees
// a push button named by its word.
class BotonImagen : public QFrame, public Boton {
    Q_OBJECT
public:
    BotonImagen(const QString& palabra, const QString& ayuda, const QPixmap& icono, QWidget* padre = nullptr);

    void ponerapariencia(Apariencia apariencia) override;
    void ponercolor(Color fondo) override;
    void habilitar(bool habilitado) override;

    Apariencia apariencia() const { return apariencia_; }
    // What a click does, for the keyboard of assistive technology too.
    void click();

signals:
    void Click();

protected:
    void mouseReleaseEvent(QMouseEvent* evento) override;
    void keyReleaseEvent(QKeyEvent* evento) override;
    void paintEvent(QPaintEvent* evento) override;

private:
    void dibujarapariencia();

    QPixmap icono_;
    Apariencia apariencia_ = Apariencia::plana;
};

} // namespace eeprog
