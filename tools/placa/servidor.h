#pragma once

#include "placa.h"

#include <csignal>
#include <ctime>
#include <optional>
#include <string>
#include <vector>

namespace eeprog {

// Serves a board on a pseudo-terminal, so the program can open it as its serial port.
// The emulator never holds the terminal's other side open itself: whether anyone has it
// open is how it tells one session of the program from the next.
class Servidor {
public:
    // With ritmo each reply keeps to the time a real 9600-baud line would take.
    Servidor(Placa& placa, bool ritmo);
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
    void vigilar();
    void comenzarsesion();
    bool atender(bool responder);
    void enviar(const std::string& respuestas, const timespec& plazo);

    Placa& placa;
    bool ritmo;
    int maestro = -1;
    std::string esclavo;
    bool conectado = false;
    std::vector<long> reacciones_;
    std::optional<timespec> respondido_;
    std::optional<timespec> ultimo_; // the last byte heard or answered, for the board's silence
};

} // namespace eeprog
