#pragma once

#include "averias.h"
#include "chipmodelo.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace eeprog {

// What the simulated board was asked for on its command line.
struct Opciones {
    std::string firmware; // empty: the one found beside the program
    std::string enlace;
    std::string imagen;
    std::string volcado;
    std::string faltas;
    std::string estado;
    std::string tiempos;
    bool protegido = false;
    bool muerto = false;
    const TipoChip* chip = &tiposchip[0]; // what the socket holds
    std::vector<Averia> averias;          // the wiring's faults between the microcontroller and the socket
    bool sinchip = false;
    std::int64_t ciclo = 1000; // the chip's write cycle, in microseconds
    long ruido = 0;            // the byte from the program heard with a framing error, from 1
    bool ayuda = false;
};

// Nothing when the command line is wrong; the reason has then gone to the error output.
std::optional<Opciones> leeropciones(int argc, char* argv[]);

std::string usosimulada();

} // namespace eeprog
