#pragma once

#include "link/puerto.h"

#include <string>

namespace eeprog {

// The lowest layer of the talk with the board: one value out, then a poll for the reply.
// Every byte to and from the board passes through intercambio.
class Enlace {
public:
    static constexpr int intentos = 100; // reads before a reply is given up
    static constexpr int pausa = 1;      // milliseconds before each read
    static inline const std::string sinrespuesta = "Error";

    explicit Enlace(Puerto& puerto);

    // Opens the port for one operation; the caller closes it with cerrar when it is over.
    // A port that cannot be opened stays closed: every exchange then times out, so the
    // connection check fails as if no board were there. False then.
    bool serial();
    void cerrar();

    // Drops what has arrived unasked, such as the reply to the last byte of a program that
    // died before reading it.
    void descartar();

    void enviardato(const std::string& dato);
    std::string recibirdato();
    std::string intercambio(const std::string& dato);

    // Replies given up since the port was opened.
    int sinrespuestas() const { return sinrespuestas_; }

private:
    Puerto& puerto_;
    int sinrespuestas_ = 0;
};

} // namespace eeprog
