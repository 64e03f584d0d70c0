#pragma once

#include "placa.h"

#include <time.h>

#include <csignal>
#include <deque>
#include <optional>
#include <string>
#include <vector>

namespace eeprog {

// Serves a board on a pseudo-terminal, so the program can open it as its serial port.
// The emulator never holds the terminal's other side open itself: whether anyone has it
// open is how it tells one session of the program from the next.
class Servidor {
public:
    // With ritmo each byte keeps to the time a real line at the board's speed would take, in
    // and out, and each write cycle of the chip takes ciclo microseconds.
    Servidor(Placa& placa, bool ritmo, long ciclo = 0);
    ~Servidor();
    Servidor(const Servidor&) = delete;
    Servidor& operator=(const Servidor&) = delete;

    // Creates the terminal and leaves it raw. False when the system refuses one.
    bool abrir();
    // The device the program must open.
    const std::string& ruta() const;
    // Answers the program until terminar is set by a signal.
    void servir(const volatile std::sig_atomic_t& terminar);
    // The program's reaction to each reply, in microseconds: from the reply written to the
    // next byte heard, within a session.
    const std::vector<long>& reacciones() const { return reacciones_; }

private:
    // A byte of a reply and when the line has carried it whole.
    struct Saliente {
        char byte;
        timespec cuando;
    };

    void vigilar();
    void comenzarsesion();
    bool atender(bool responder);
    void pasartiempo(const timespec& llegada);
    void responderbyte(unsigned char byte, timespec& entrada, bool responder);
    void enviarvencidos();

    Placa& placa;
    bool ritmo;
    long ciclo;
    int maestro = -1;
    std::string esclavo;
    bool conectado = false;
    std::vector<long> reacciones_;
    std::optional<timespec> respondido_;
    std::optional<timespec> ultimo_; // the last byte heard or answered, for the board's silence
    std::deque<Saliente> cola_;
    timespec lineaentrada_{}; // when the line from the program is free
    timespec lineasalida_{};  // and the line to it
    timespec chiplibre_{};    // when the chip's last write cycle ends
};

} // namespace eeprog
