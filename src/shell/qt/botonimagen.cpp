#include "shell/qt/botonimagen.h"

#include "shell/qt/twips.h"

#include <QLabel>
#include <QMouseEvent>
#include <QVBoxLayout>

namespace eeprog {

BotonImagen::BotonImagen(const QString& palabra, const QString& ayuda, QWidget* padre)
    : QFrame(padre), palabra_(new QLabel(palabra, this))
{
    setToolTip(ayuda);
    setAccessibleName(palabra);
    setAccessibleDescription(ayuda);
    setAutoFillBackground(true);
    QFont letra = font();
    letra.setPointSize(6);
    letra.setBold(true);
    palabra_->setFont(letra);
    palabra_->setAlignment(Qt::AlignHCenter | Qt::AlignBottom);
    auto* disposicion = new QVBoxLayout(this);
    disposicion->setContentsMargins(1, 1, 1, 2);
    disposicion->addWidget(palabra_);
    dibujarapariencia();
}

// The look changes in the middle of a blocking operation, so it is painted at once.
void BotonImagen::ponerapariencia(Apariencia apariencia)
{
    apariencia_ = apariencia;
    dibujarapariencia();
    if (isVisible())
        repaint();
}

void BotonImagen::dibujarapariencia()
{
    if (apariencia_ == Apariencia::tridimensional) {
        setFrameStyle(QFrame::Panel | QFrame::Raised);
        setLineWidth(2);
    } else {
        setFrameStyle(QFrame::Box | QFrame::Plain);
        setLineWidth(1);
    }
}

void BotonImagen::ponercolor(Color fondo)
{
    QPalette paleta = palette();
    paleta.setColor(QPalette::Window, acolorqt(fondo));
    setPalette(paleta);
}

void BotonImagen::habilitar(bool habilitado)
{
    setEnabled(habilitado);
}

// A click is a left button let go over the button, as with any push button.
void BotonImagen::mouseReleaseEvent(QMouseEvent* evento)
{
    QFrame::mouseReleaseEvent(evento);
    if (evento->button() == Qt::LeftButton && rect().contains(evento->position().toPoint()))
        emit Click();
}

} // namespace eeprog
