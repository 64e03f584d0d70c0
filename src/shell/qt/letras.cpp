#include "shell/qt/letras.h"

namespace eeprog {

namespace {

QFont letra(const QStringList& familias, double puntos, QFont::StyleHint estilo = QFont::Monospace)
{
    QFont fuente;
    fuente.setFamilies(familias);
    fuente.setStyleHint(estilo);
    fuente.setPointSizeF(puntos);
    return fuente;
}

} // namespace

QFont courier(double puntos, bool negrita)
{
    QFont fuente = letra(QStringList{"Courier New", "Liberation Mono", "DejaVu Sans Mono"}, puntos);
    fuente.setBold(negrita);
    return fuente;
}

QFont terminal(double puntos)
{
    return letra(QStringList{"Terminal", "DejaVu Sans Mono", "Liberation Mono"}, puntos);
}

QFont comic(double puntos)
{
    QFont fuente = letra(QStringList{"Comic Sans MS", "Comic Neue", "Liberation Sans"}, puntos, QFont::SansSerif);
    fuente.setBold(true);
    return fuente;
}

QFont sansserif(double puntos)
{
    return letra(QStringList{"MS Sans Serif", "Liberation Sans", "DejaVu Sans"}, puntos, QFont::SansSerif);
}

} // namespace eeprog
