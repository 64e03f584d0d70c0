#include "link/enlace.h"

namespace eeprog {

Enlace::Enlace(Puerto& puerto) : puerto_(puerto) {}

bool Enlace::serial()
{
    sinrespuestas_ = 0;
    return puerto_.abrir();
}

void Enlace::cerrar()
{
    puerto_.cerrar();
}

void Enlace::descartar()
{
    puerto_.leer();
}

void Enlace::enviardato(const std::string& dato)
{
    puerto_.escribir(dato);
}

// The wait always pauses before it reads, and the first read that gives anything ends it.
// A reply that arrives after the last read stays in the port, and the next exchange takes
// it for its own: the two sides then run one behind, as the board has no way to resend.
std::string Enlace::recibirdato()
{
    for (int quedan = intentos; quedan > 0; --quedan) {
        puerto_.esperar(pausa);
        std::string respuesta = puerto_.leer();
        if (!respuesta.empty())
            return respuesta;
    }
    ++sinrespuestas_;
    return sinrespuesta;
}

std::string Enlace::intercambio(const std::string& dato)
{
    enviardato(dato);
    return recibirdato();
}

} // namespace eeprog
