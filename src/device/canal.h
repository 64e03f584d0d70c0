#pragma once

#include "device/avance.h"
#include "device/leido.h"
#include "device/tramas.h"

#include <string>
#include <vector>

namespace eeprog {

// The line gave up in the middle of an operation: the board has gone, or every try of a
// frame came back wrong.
struct LineaRota {};

// What eeprog-cli does with the chip, by whichever protocol the board speaks; chosen once
// the board has been asked. The port is open and the board checked.
class Canal {
public:
    virtual ~Canal() = default;

    // How a run says which protocol it used.
    virtual std::string nombre() const = 0;
    // The whole chip, as a read of the window leaves it: its blocks as Intel HEX lines.
    virtual void leer(Leido& leido, const Avance& avance) = 0;
    // Writes the frames' bytes; each byte that did not take comes back, with what the board
    // saw there instead.
    virtual std::vector<Diferencia> escribir(const std::vector<Trama>& tramas, const Avance& avance) = 0;
    // Compares the chip with the frames' bytes.
    virtual std::vector<Diferencia> comparar(const std::vector<Trama>& tramas, const Avance& avance) = 0;
    // Turns the chip's software data protection on or off; false when the board did not
    // answer that it was done.
    virtual bool proteger(bool poner) = 0;
    // Leaves the board idle at 9600 baud, as the window expects it; false when it did not say so.
    virtual bool terminar() { return true; }
};

} // namespace eeprog
