#pragma once

#include "plataforma/boton.h"

#include <QFrame>

class QLabel;

namespace eeprog {

// A picture button of the command row: a framed square with its word at the bottom.
// At rest it lies flat with a thin border; while its operation runs it stands out.
class BotonImagen : public QFrame, public Boton {
    Q_OBJECT
public:
    BotonImagen(const QString& palabra, const QString& ayuda, QWidget* padre = nullptr);

    void ponerapariencia(Apariencia apariencia) override;
    void ponercolor(Color fondo) override;
    void habilitar(bool habilitado) override;

    Apariencia apariencia() const { return apariencia_; }

signals:
    void Click();

protected:
    void mouseReleaseEvent(QMouseEvent* evento) override;

private:
    void dibujarapariencia();

    QLabel* palabra_;
    Apariencia apariencia_ = Apariencia::plana;
};

} // namespace eeprog
