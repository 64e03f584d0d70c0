#include "shell/qt/vistarejilla.h"

#include "editor/glifos.h"
#include "shell/qt/twips.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>

#include <optional>

namespace eeprog {

namespace {

constexpr int margentexto = 2;
constexpr int grosorfoco = 2;

std::optional<Tecla> teclade(const QKeyEvent& evento)
{
    const bool control = evento.modifiers() & Qt::ControlModifier;
    switch (evento.key()) {
    case Qt::Key_Up:
        return Tecla::arriba;
    case Qt::Key_Down:
        return Tecla::abajo;
    case Qt::Key_Left:
        return Tecla::izquierda;
    case Qt::Key_Right:
        return Tecla::derecha;
    case Qt::Key_PageUp:
        return Tecla::paginaarriba;
    case Qt::Key_PageDown:
        return Tecla::paginaabajo;
    case Qt::Key_Home:
        return control ? Tecla::principio : Tecla::inicio;
    case Qt::Key_End:
        return control ? Tecla::final : Tecla::fin;
    default:
        return std::nullopt;
    }
}

Qt::Alignment alineacionqt(Alineacion alineacion)
{
    switch (alineacion) {
    case Alineacion::centro:
        return Qt::AlignHCenter | Qt::AlignVCenter;
    case Alineacion::derecha:
        return Qt::AlignRight | Qt::AlignVCenter;
    case Alineacion::general:
    case Alineacion::izquierda:
        break;
    }
    return Qt::AlignLeft | Qt::AlignVCenter;
}

} // namespace

VistaRejilla::VistaRejilla(Rejilla& rejilla, Letras letras, QWidget* padre)
    : QAbstractScrollArea(padre), rejilla_(rejilla), letras_(letras)
{
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setLineWidth(1);
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    rejilla_.alcambiar = [this](Cambio c) { cambio(c); };
    ajustarbarras();
}

// The window takes its grid widgets down before the grids themselves.
VistaRejilla::~VistaRejilla()
{
    rejilla_.alcambiar = nullptr;
}

void VistaRejilla::cambio(Cambio c)
{
    if (c == Cambio::forma || c == Cambio::posicion)
        ajustarbarras();
    viewport()->update();
}

// Setting the bars scrolls nothing of the grid's own: the grid already stands where the
// bars are put.
void VistaRejilla::ajustarbarras()
{
    ajustando_ = true;
    verticalScrollBar()->setRange(0, rejilla_.maximotoprow());
    verticalScrollBar()->setPageStep(rejilla_.filasvisibles());
    verticalScrollBar()->setValue(rejilla_.TopRow());
    horizontalScrollBar()->setRange(0, rejilla_.maximoleftcol());
    horizontalScrollBar()->setPageStep(1);
    horizontalScrollBar()->setValue(rejilla_.LeftCol());
    ajustando_ = false;
}

void VistaRejilla::informararea()
{
    rejilla_.areavisible(twipsde(viewport()->width()), twipsde(viewport()->height()));
}

void VistaRejilla::resizeEvent(QResizeEvent* evento)
{
    QAbstractScrollArea::resizeEvent(evento);
    informararea();
}

// The user moved a scroll bar, or turned the wheel: the grid scrolls, and raises Scroll.
void VistaRejilla::scrollContentsBy(int, int)
{
    if (!ajustando_) {
        rejilla_.TopRow(verticalScrollBar()->value());
        rejilla_.LeftCol(horizontalScrollBar()->value());
    }
    viewport()->update();
}

QRect VistaRejilla::rectanguloenvista(int fila, int columna) const
{
    const int origen = rejilla_.posicioncolumna(rejilla_.LeftCol());
    const int izquierda = pixeles(rejilla_.posicioncolumna(columna) - origen);
    const int derecha = pixeles(rejilla_.posicioncolumna(columna + 1) - origen);
    const int arriba = pixeles((fila - rejilla_.TopRow()) * rejilla_.RowHeight());
    const int abajo = pixeles((fila + 1 - rejilla_.TopRow()) * rejilla_.RowHeight());
    return {QPoint(izquierda, arriba), QPoint(derecha - 1, abajo - 1)};
}

QRect VistaRejilla::rectangulocelda(int fila, int columna) const
{
    return rectanguloenvista(fila, columna).translated(viewport()->geometry().topLeft());
}

std::pair<int, int> VistaRejilla::celdaen(QPoint punto) const
{
    return rejilla_.celdaen(twipsde(punto.x()), twipsde(punto.y()));
}

QString VistaRejilla::textocelda(int fila, int columna) const
{
    const std::string& bytes = rejilla_.TextMatrix(fila, columna);
    if (letras_ == Letras::texto)
        return QString::fromLatin1(bytes.data(), static_cast<qsizetype>(bytes.size()));
    QString texto;
    for (char c : bytes) {
        const char32_t glifo = eeprog::glifo(static_cast<unsigned char>(c));
        texto += QString::fromUcs4(&glifo, 1);
    }
    return texto;
}

void VistaRejilla::dibujarcelda(QPainter& pintor, int fila, int columna) const
{
    const QRect celda = rectanguloenvista(fila, columna);
    pintor.setPen(acolorqt(rejilla_.GridColor()));
    pintor.drawLine(celda.topRight(), celda.bottomRight());
    pintor.drawLine(celda.bottomLeft(), celda.bottomRight());
    // The cells' text is black in every skin: only the background follows the skin.
    pintor.setPen(QColor(Qt::black));
    pintor.drawText(celda.adjusted(margentexto, 0, -margentexto, 0),
                    alineacionqt(rejilla_.ColAlignment(columna)) | Qt::TextSingleLine, textocelda(fila, columna));
}

void VistaRejilla::paintEvent(QPaintEvent*)
{
    QPainter pintor(viewport());
    pintor.fillRect(viewport()->rect(), acolorqt(rejilla_.BackColor()));
    pintor.setFont(font());
    const int ultima = std::min(rejilla_.TopRow() + rejilla_.filasvisibles() + 1, rejilla_.Rows());
    for (int fila = rejilla_.TopRow(); fila < ultima; ++fila) {
        for (int columna = rejilla_.LeftCol(); columna < rejilla_.Cols(); ++columna) {
            dibujarcelda(pintor, fila, columna);
            if (rectanguloenvista(fila, columna).left() > viewport()->width())
                break;
        }
    }
    if (rejilla_.Rows() > 0 && rejilla_.Cols() > 0) {
        const QRect foco = rectanguloenvista(rejilla_.Row(), rejilla_.Col());
        pintor.setPen(QPen(QColor(Qt::black), grosorfoco));
        pintor.setBrush(Qt::NoBrush);
        pintor.drawRect(foco.adjusted(1, 1, -1, -1));
    }
}

void VistaRejilla::mousePressEvent(QMouseEvent* evento)
{
    setFocus(Qt::MouseFocusReason);
    const auto [fila, columna] = celdaen(evento->position().toPoint());
    rejilla_.pulsar(fila, columna);
}

// Only a drag moves the pointer's cell: its other readers come after a press or a release.
void VistaRejilla::mouseMoveEvent(QMouseEvent* evento)
{
    const auto [fila, columna] = celdaen(evento->position().toPoint());
    rejilla_.arrastrar(fila, columna);
}

void VistaRejilla::mouseReleaseEvent(QMouseEvent* evento)
{
    const auto [fila, columna] = celdaen(evento->position().toPoint());
    rejilla_.soltar(fila, columna);
}

// Keys that do not move the current cell are left to the base class, which passes them on
// to the window. Menu shortcuts never come here: Qt serves them before any key press.
void VistaRejilla::keyPressEvent(QKeyEvent* evento)
{
    if (const std::optional<Tecla> tecla = teclade(*evento))
        rejilla_.mover(*tecla);
    else
        QAbstractScrollArea::keyPressEvent(evento);
}

} // namespace eeprog
