#pragma once

#include <string>

namespace eeprog {

// What the program needs of the serial port that leads to the programmer board.
// Text is bytes: one char is one byte on the wire, 0 and 128-255 included.
class Puerto {
public:
    virtual ~Puerto() = default;

    // Opens the device with the fixed settings (9600 baud, 8N1, no flow control).
    // False when the device is absent, busy or forbidden; the port then stays closed.
    virtual bool abrir() = 0;
    virtual void cerrar() = 0;
    virtual bool abierto() const = 0;

    // The line's speed from now on, for the fast protocol and back; each open starts at 9600.
    virtual void velocidad(long baudios) = 0;

    // Puts the whole text on the line. A closed port sends nothing.
    virtual void escribir(const std::string& datos) = 0;

    // Everything that has arrived since the last read, at once; empty when nothing has.
    virtual std::string leer() = 0;

    // The pause before each read. It lasts the given milliseconds, unless input arrives
    // first: then it may end early, since that input is what the read after it waits for.
    virtual void esperar(int milisegundos) = 0;
};

} // namespace eeprog
