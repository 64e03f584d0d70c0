#include "shell/qt/barraestado.h"

#include "shell/qt/twips.h"

#include <QLabel>

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
BarraEstado::BarraEstado(QWidget* padre) : QStatusBar(padre)
{
    int izquierda = 0;
    for (std::size_t i = 0; i < paneles_.size(); ++i) {
        auto* etiqueta = new QLabel(this);
        etiqueta->setFont(letrapanel());
        etiqueta->setFrameStyle(QFrame::Panel | QFrame::Sunken);
        etiqueta->setTextFormat(Qt::PlainText);
        etiqueta->setAccessibleDescription(QStringLiteral("Panel %1").arg(i + 1)); // its name is its text
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
    etiqueta->setToolTip(etiqueta->text()); // the whole text, where the panel's width cuts it
    repintado_.pedir(*this);
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
