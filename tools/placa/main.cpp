// eeprog-placa: the programmer board, emulated on a pseudo-terminal, for trying eeprog
// without the hardware.

#include "argumentos.h"
#include "enlacesimbolico.h"
#include "imagen.h"
#include "orden.h"
#include "plataforma/senales.h"
#include "placa.h"
#include "servidor.h"

#include <csignal>
#include <fstream>
#include <iostream>

namespace {

int servir(eeprog::Placa& placa, const eeprog::Argumentos& argumentos, const volatile std::sig_atomic_t& terminar)
{
    eeprog::Servidor servidor(placa, argumentos.ritmo, argumentos.ciclo);
    if (!servidor.abrir()) {
        std::cerr << "eeprog-placa: el sistema no da un pseudoterminal\n";
        return 1;
    }
    if (!eeprog::anunciar("eeprog-placa", servidor.ruta(), argumentos.enlace)) {
        return 1;
    }
    servidor.servir(terminar);
    if (!argumentos.enlace.empty()) {
        eeprog::desenlazar(argumentos.enlace, servidor.ruta());
    }
    if (!argumentos.reacciones.empty()) {
        std::ofstream archivo(argumentos.reacciones);
        for (const long microsegundos : servidor.reacciones())
            archivo << microsegundos << '\n';
    }
    return 0;
}

// What the chip holds and how it is protected, where the command line asked for them.
bool volcar(const eeprog::Placa& placa, const eeprog::Argumentos& argumentos)
{
    bool bien = true;
    if (!argumentos.volcado.empty() && !eeprog::volcarimagen(argumentos.volcado, placa.chip())) {
        std::cerr << "eeprog-placa: no se puede escribir el volcado " << argumentos.volcado << '\n';
        bien = false;
    }
    if (!argumentos.estado.empty() && !eeprog::escribirproteccion(argumentos.estado, placa.protegido())) {
        std::cerr << "eeprog-placa: no se puede escribir el estado " << argumentos.estado << '\n';
        bien = false;
    }
    return bien;
}

} // namespace

int main(int argc, char* argv[])
{
    auto argumentos = eeprog::leerargumentos(argc, argv);
    if (!argumentos) {
        std::cerr << eeprog::uso();
        return 2;
    }
    if (argumentos->ayuda) {
        std::cout << eeprog::uso();
        return 0;
    }
    eeprog::Placa placa(argumentos->placa);
    if (!argumentos->imagen.empty() && !eeprog::cargarimagen(argumentos->imagen, placa.chip())) {
        std::cerr << "eeprog-placa: no se puede leer la imagen " << argumentos->imagen << '\n';
        return 1;
    }
    int resultado = servir(placa, *argumentos, eeprog::vigilarsenales({SIGINT, SIGTERM, SIGHUP}));
    if (resultado == 0 && !volcar(placa, *argumentos)) {
        resultado = 1;
    }
    return resultado;
}
