#include "shell/qt/rejillas.h"

#include "shell/qt/twips.h"
#include "shell/qt/vistarejilla.h"

namespace eeprog {

namespace {

// Courier New is served by Liberation Mono where it is missing. Terminal, a Windows
// bitmap font, by DejaVu Sans Mono, which has a glyph for each of the 256 codes.
QFont letra(QStringList familias)
{
    QFont fuente;
    fuente.setFamilies(familias);
    fuente.setStyleHint(QFont::Monospace);
    fuente.setPointSize(9);
    return fuente;
}

VistaRejilla* rejilla(Rejilla& modelo, VistaRejilla::Letras letras, const QFont& fuente, const char* nombre,
                      QRect lugar, QWidget* ventana)
{
    auto* vista = new VistaRejilla(modelo, letras, ventana);
    vista->setObjectName(nombre);
    vista->setAccessibleName(nombre);
    vista->setFont(fuente);
    vista->setGeometry(lugar);
    vista->raise();
    return vista;
}

} // namespace

Rejillas::Rejillas(Cuadriculas& cuadriculas, QWidget* ventana)
{
    const QFont courier = letra({"Courier New", "Liberation Mono", "DejaVu Sans Mono"});
    const QFont terminal = letra({"Terminal", "DejaVu Sans Mono", "Liberation Mono"});
    fgdir_ = rejilla(cuadriculas.fgdir, VistaRejilla::Letras::texto, courier, "fgdir", rectangulo(lugarfgdir),
                     ventana);
    fghex_ = rejilla(cuadriculas.fghex, VistaRejilla::Letras::texto, courier, "fghex",
                     rectangulo(lugarfghex), ventana);
    fgascii_ = rejilla(cuadriculas.fgascii, VistaRejilla::Letras::glifos, terminal, "fgascii",
                       rectangulo(lugarfgascii), ventana);
    QWidget::setTabOrder(fgascii_, fghex_);
    QWidget::setTabOrder(fghex_, fgdir_);
}

} // namespace eeprog
