#include "shell/qt/barraestado.h"

#include "shell/qt/twips.h"

#include <QHelpEvent>
#include <QLabel>
#include <QToolTip>

namespace eeprog {

namespace {

constexpr std::array<int, BarraEstado::cantidad> anchos{4500, 2000, 800, 700, 700};

QFont letrapanel()
{
    QFont letra("Terminal");
    letra.setStyleHint(QFont::TypeWriter);
    letra.setPointSize(9);
    return letra;
}

} // namespace

// The panels stand side by side from the left edge, each at its fixed width, as a row of
// their own rather than in the status bar's layout, which would squeeze or overlap them.
BarraEstado::BarraEstado(Repintado& repintado, QWidget* padre) : QStatusBar(padre), repintado_(repintado)
{
    int izquierda = 0;
    for (std::size_t i = 0; i < paneles_.size(); ++i) {
        auto* etiqueta = new QLabel(this);
        etiqueta->setFont(letrapanel());
        etiqueta->setFrameStyle(QFrame::Panel | QFrame::Sunken);
        etiqueta->setTextFormat(Qt::PlainText);
        etiqueta->setAccessibleDescription(QStringLiteral("Panel %1").arg(i + 1)); // its name is its text
        etiqueta->installEventFilter(this);
        const int ancho = pixeles(anchos[i]);
        etiqueta->setGeometry(izquierda, 0, ancho, altura());
        izquierda += ancho;
        paneles_[i] = etiqueta;
    }
}

int BarraEstado::altura() const
{
    return QFontMetrics(letrapanel()).height() + 4;
}

QSize BarraEstado::sizeHint() const
{
    return {QStatusBar::sizeHint().width(), altura()};
}

void BarraEstado::resizeEvent(QResizeEvent* evento)
{
    QStatusBar::resizeEvent(evento);
    for (QLabel* etiqueta : paneles_)
        etiqueta->setFixedHeight(height());
}

void BarraEstado::panel(int numero, const std::string& texto)
{
    if (numero < 1 || numero > cantidad)
        return;
    QLabel* etiqueta = paneles_[static_cast<std::size_t>(numero - 1)];
    etiqueta->setText(QString::fromStdString(texto));
    repintado_.pedir(*etiqueta);
}

// A panel's tip is its whole text, where the panel's width cuts it. It is made when asked
// for, as a read writes panel 1 some twenty thousand times.
bool BarraEstado::eventFilter(QObject* objeto, QEvent* evento)
{
    auto* etiqueta = qobject_cast<QLabel*>(objeto);
    if (evento->type() != QEvent::ToolTip || !etiqueta || etiqueta->text().isEmpty())
        return QStatusBar::eventFilter(objeto, evento);
    QToolTip::showText(static_cast<QHelpEvent*>(evento)->globalPos(), etiqueta->text(), etiqueta);
    return true;
}

QSize BarraEstado::minimumSizeHint() const
{
    return {0, altura()};
}

QString BarraEstado::textopanel(int numero) const
{
    return paneles_[static_cast<std::size_t>(numero - 1)]->text();
}

} // namespace eeprog
