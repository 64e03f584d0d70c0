#include "shell/form1.h"

#include "shell/aplicarskin.h"

namespace eeprog {

std::array<Boton*, 8> Botones::todos() const
{
    return {&abrir, &guardar, &leer, &borrar, &grabar, &verificar, &edit, &editado};
}

Form1::Form1(Controles controles, Servicios servicios)
    : controles_(controles), servicios_(servicios), enlace_(servicios.puerto),
      informe_(controles.txtinforme, servicios.reloj)
{}

// The log is set, not added to, by its first line: whatever the box held goes.
void Form1::Form_Load()
{
    aplicarskin(servicios_.skin, Formulario::Form1, edicion_);
    actualizar();
    controles_.StatusBar1.panel(1, encabezado);
    controles_.txtinforme.ponertexto(encabezado + std::string(saltolinea));
    const Reloj& reloj = servicios_.reloj;
    informe_.linea("Fecha : " + reloj.fecha() + "    Hora : " + reloj.hora() + "           Cesion Iniciada...");
    comprobarplaca();
    controles_.cuadriculas.dibujareditor();
    controles_.botones.editado.habilitar(false);
}

// The start-up check reports to the log only: no box, no panel. Nothing keeps its result,
// since every operation checks again for itself.
void Form1::comprobarplaca()
{
    enlace_.serial();
    informe_.linea(comprobarconexion(enlace_) ? conectado : noconectado);
    enlace_.cerrar();
}

// Each setting asks the skin for its colour anew.
void Form1::actualizar()
{
    Skin& skin = servicios_.skin;
    for (Boton* boton : controles_.botones.todos())
        boton->ponercolor(skin.color());
    controles_.txtinforme.ponercolor(skin.color());
    controles_.cuadriculas.ponercolor(skin.color());
    controles_.cuadriculas.ponercolorlineas(negro);
}

} // namespace eeprog
