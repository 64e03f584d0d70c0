// eeprog-cli: the programmer on the command line, for scripts and makefiles.

#include "cli/interrupcion.h"
#include "cli/programador.h"
#include "link/qt/puertoserie.h"

#include <QCoreApplication>

#include <unistd.h>

int main(int argc, char* argv[])
{
    const auto pedido = eeprog::interpretar(argc, argv);
    if (const auto* respuesta = std::get_if<eeprog::Respuesta>(&pedido)) {
        std::fputs(respuesta->texto.c_str(), respuesta->estado == 0 ? stdout : stderr);
        return respuesta->estado;
    }
    const auto& opciones = std::get<eeprog::Opciones>(pedido);
    const QCoreApplication aplicacion(argc, argv); // the serial port's notifiers need one
    const std::string dispositivo = opciones.puerto.empty() ? eeprog::nombrepuerto() : opciones.puerto;
    eeprog::PuertoSerie puerto(dispositivo);
    eeprog::Progreso progreso(!opciones.silencioso && isatty(STDERR_FILENO) ? stderr : nullptr);
    eeprog::vigilarinterrupciones();
    return eeprog::Programador(puerto, dispositivo, opciones, {stdout, stderr, progreso}).ejecutar();
}
