#include "shell/qt/motorskin.h"

#include "shell/qt/twips.h"

namespace eeprog {

void MotorSkin::registrar(Formulario formulario, QWidget* ventana)
{
    ventanas_[formulario] = ventana;
}

void MotorSkin::aplicar(Formulario formulario)
{
    auto encontrada = ventanas_.find(formulario);
    if (encontrada == ventanas_.end() || !encontrada->second)
        return;
    QWidget* ventana = encontrada->second;
    QPalette paleta = ventana->palette();
    paleta.setColor(QPalette::Window, acolorqt(fondo_));
    ventana->setPalette(paleta);
}

Color MotorSkin::color() const
{
    return fondo_;
}

} // namespace eeprog
