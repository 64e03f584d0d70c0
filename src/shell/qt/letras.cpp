#include "shell/qt/letras.h"

namespace eeprog {

namespace {

QFont letra(const QStringList& familias, int puntos)
{
    QFont fuente;
    fuente.setFamilies(familias);
    fuente.setStyleHint(QFont::Monospace);
    fuente.setPointSize(puntos);
    return fuente;
}

} // namespace

QFont courier(int puntos, bool negrita)
{
    QFont fuente = letra(QStringList{"Courier New", "Liberation Mono", "DejaVu Sans Mono"}, puntos);
    fuente.setBold(negrita);
    return fuente;
}

QFont terminal(int puntos)
{
    return letra(QStringList{"Terminal", "DejaVu Sans Mono", "Liberation Mono"}, puntos);
}

} // namespace eeprog
