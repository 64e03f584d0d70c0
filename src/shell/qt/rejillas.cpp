#include "shell/qt/rejillas.h"

#include "shell/qt/letras.h"
#include "shell/qt/twips.h"
#include "shell/qt/vistarejilla.h"

namespace eeprog {

namespace {

VistaRejilla* rejilla(Rejilla& modelo, VistaRejilla::Letras letras, const QFont& fuente, const char* nombre,
                      QRect lugar, QWidget* ventana)
{
    auto* vista = new VistaRejilla(modelo, letras, ventana);
    vista->setObjectName(nombre);
    vista->setAccessibleName(nombre);
    vista->setFont(fuente);
    vista->setGeometry(lugar);
    return vista;
}

} // namespace

Rejillas::Rejillas(Cuadriculas& cuadriculas, QWidget* ventana)
{
    const QFont texto = courier(9);
    const QFont glifos = terminal(9);
    fgdir_ = rejilla(cuadriculas.fgdir, VistaRejilla::Letras::texto, texto, "fgdir", rectangulo(lugarfgdir), ventana);
    fghex_ = rejilla(cuadriculas.fghex, VistaRejilla::Letras::texto, texto, "fghex", rectangulo(lugarfghex), ventana);
    fgascii_ = rejilla(cuadriculas.fgascii, VistaRejilla::Letras::glifos, glifos, "fgascii", rectangulo(lugarfgascii),
                       ventana);
}

} // namespace eeprog
