#pragma once

#include "placa.h"

#include <optional>
#include <string>

namespace eeprog {

// What the emulator was asked for on its command line.
struct Argumentos {
    OpcionesPlaca placa;
    std::string imagen;
    std::string volcado;
    std::string enlace;
    std::string reacciones;
    std::string estado;
    bool ritmo = false;
    long ciclo = 0; // microseconds of each write cycle, with ritmo
    bool ayuda = false;
};

// Nothing when the command line is wrong; the reason has then gone to the error output.
std::optional<Argumentos> leerargumentos(int argc, char* argv[]);

std::string uso();

} // namespace eeprog
