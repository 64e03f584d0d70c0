#pragma once

#include <string>

namespace eeprog {

// The simulated board's serial line: a pseudo-terminal the program opens as its port. As with
// eeprog-placa, the other side is never held open here, so a hang-up tells that the program
// has closed it.
class Puente {
public:
    Puente() = default;
    ~Puente();
    Puente(const Puente&) = delete;
    Puente& operator=(const Puente&) = delete;

    // Creates the terminal, raw at 9600 baud. False when the system refuses one.
    bool abrir();
    // The device the program must open.
    const std::string& ruta() const { return esclavo; }
    // What the program has sent, waiting up to milisegundos for it; empty when nothing came.
    std::string recibir(int milisegundos);
    void enviar(const std::string& datos);
    // The speed the program has set on its side of the terminal, in baud.
    long baudios() const;
    // Someone has the terminal open and has spoken in it since it was last closed.
    bool conectado() const { return conectado_; }

private:
    int maestro = -1;
    std::string esclavo;
    bool conectado_ = false;
};

} // namespace eeprog
