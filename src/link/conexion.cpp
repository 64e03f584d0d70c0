#include "link/conexion.h"

#include "link/protocolo.h"

#include <array>

namespace eeprog {

bool comprobarconexion(Enlace& enlace)
{
    return enlace.intercambio(protocolo::comprobar) == protocolo::comprobar;
}

Aviso falla()
{
    static const std::array<std::string_view, 7> lineas{
        "                  Posibles Causas",
        "-  Pueve que el dispositivo este conectado a la Pc",
        "-  Prueve que este devidamente alimentado",
        "                   Posibles soluciones",
        "* Apage el dispositivo y vuelva a encenderlo",
        "* Revise la linea de coneccion con el puerto Serial",
        "* Revise el armado del circuito  ",
    };
    Aviso aviso{"", "Error de Comunicacion con el dispositivo ", Icono::exclamacion};
    for (std::string_view linea : lineas) {
        if (!aviso.texto.empty())
            aviso.texto.append(saltolinea);
        aviso.texto.append(linea);
    }
    return aviso;
}

void mostrarfalla(Avisos& avisos)
{
    avisos.mostrar(falla());
}

Marco::Marco(Enlace& enlace, PantallaMarco pantalla) : enlace_(enlace), pantalla_(pantalla) {}

// The box of a failed check comes up while the port is still open; it is closed only
// once the user has read the advice.
void Marco::ejecutar(Boton& boton, const PalabrasMarco& palabras, const std::function<void()>& operacion)
{
    aspectopresionado(boton, pantalla_.skin);
    enlace_.serial();
    if (comprobarconexion(enlace_)) {
        pantalla_.paneles.panel(1, panelexito);
        pantalla_.informe.lineaconhora(palabras.exito);
        operacion();
    } else {
        pantalla_.paneles.panel(1, panelfalla);
        pantalla_.informe.lineaconhora(palabras.falla);
        mostrarfalla(pantalla_.avisos);
    }
    enlace_.cerrar();
    aspectonormal(boton, pantalla_.skin);
}

} // namespace eeprog
