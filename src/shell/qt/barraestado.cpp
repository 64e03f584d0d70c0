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

BarraEstado::BarraEstado(QWidget* padre) : QStatusBar(padre)
{
    for (int i = 0; i < cantidad; ++i) {
        auto* etiqueta = new QLabel(this);
        etiqueta->setFont(letrapanel());
        etiqueta->setFrameStyle(QFrame::Panel | QFrame::Sunken);
        etiqueta->setFixedWidth(pixeles(anchos[static_cast<std::size_t>(i)]));
        etiqueta->setTextFormat(Qt::PlainText);
        etiqueta->setAccessibleName(QStringLiteral("Panel %1").arg(i + 1));
        addWidget(etiqueta);
        paneles_[static_cast<std::size_t>(i)] = etiqueta;
    }
}

void BarraEstado::panel(int numero, const std::string& texto)
{
    if (numero < 1 || numero > cantidad)
        return;
    QLabel* etiqueta = paneles_[static_cast<std::size_t>(numero - 1)];
    etiqueta->setText(QString::fromStdString(texto));
    repintado_.pedir(*this);
}

QSize BarraEstado::minimumSizeHint() const
{
    return {0, QStatusBar::minimumSizeHint().height()};
}

QString BarraEstado::textopanel(int numero) const
{
    return paneles_[static_cast<std::size_t>(numero - 1)]->text();
}

} // namespace eeprog
