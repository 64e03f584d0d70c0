#include "shell/qt/botonimagen.h"

#include "shell/qt/twips.h"

#include <QAccessibleWidget>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>

#include <mutex>

namespace eeprog {

namespace {

// The picture button as a push button for screen readers and desktop automation: its
// word is its name, its tool tip its description, and "press" clicks it.
class BotonAccesible : public QAccessibleWidget {
public:
    explicit BotonAccesible(BotonImagen* boton) : QAccessibleWidget(boton, QAccessible::Button)
    {
        addControllingSignal(QStringLiteral("Click()"));
    }

    QStringList actionNames() const override { return {pressAction()}; }

    void doAction(const QString& accion) override
    {
        if (accion == pressAction())
            static_cast<BotonImagen*>(widget())->click();
    }
};

QAccessibleInterface* fabricaaccesible(const QString&, QObject* objeto)
{
    if (auto* boton = qobject_cast<BotonImagen*>(objeto))
        return new BotonAccesible(boton);
    return nullptr;
}

} // namespace

BotonImagen::BotonImagen(const QString& palabra, const QString& ayuda, const QPixmap& icono, QWidget* padre)
    : QFrame(padre), icono_(icono)
{
    static std::once_flag fabrica;
    std::call_once(fabrica, [] { QAccessible::installFactory(fabricaaccesible); });
    setToolTip(ayuda);
    setAccessibleName(palabra);
    setAccessibleDescription(ayuda);
    setAutoFillBackground(true);
    setFocusPolicy(Qt::TabFocus);
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

void BotonImagen::click()
{
    if (isEnabled())
        emit Click();
}

// A click is a left button let go over the button, as with any push button.
void BotonImagen::mouseReleaseEvent(QMouseEvent* evento)
{
    QFrame::mouseReleaseEvent(evento);
    if (evento->button() == Qt::LeftButton && rect().contains(evento->position().toPoint()))
        emit Click();
}

void BotonImagen::keyReleaseEvent(QKeyEvent* evento)
{
    if (evento->key() == Qt::Key_Space && !evento->isAutoRepeat())
        click();
    else
        QFrame::keyReleaseEvent(evento);
}

// A disabled button shows its icon greyed, as the style greys any disabled picture.
void BotonImagen::paintEvent(QPaintEvent* evento)
{
    QFrame::paintEvent(evento);
    QPainter pintor(this);
    QStyleOption opcion;
    opcion.initFrom(this);
    const QPixmap dibujo = isEnabled() ? icono_ : style()->generatedIconPixmap(QIcon::Disabled, icono_, &opcion);
    style()->drawItemPixmap(&pintor, contentsRect(), Qt::AlignCenter, dibujo);
    if (hasFocus()) {
        QStyleOptionFocusRect foco;
        foco.initFrom(this);
        foco.rect = contentsRect().adjusted(1, 1, -1, -1);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &foco, &pintor, this);
    }
}

} // namespace eeprog
