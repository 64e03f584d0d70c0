#pragma once

#include "chipmodelo.h"

#include <array>
#include <cstdint>
#include <optional>
#include <random>
#include <string_view>
#include <vector>

namespace eeprog {

// A line between the microcontroller and the socket: an address line A0-A14 or a data line
// D0-D7.
struct Linea {
    bool dato = false;
    int numero = 0;
};

// How the wiring of one line is broken: cut (the side that does not drive it floats), tied to
// 0 V or to 5 V, joined to another line (both carry the AND of what drives them, as a line
// driven low pulls down one it is shorted to), or swapped with another.
struct Averia {
    enum class Tipo { abierta, cero, uno, unida, cruzada };
    Tipo tipo;
    Linea linea;
    Linea otra{};
};

// "A3=abierta", "D5=0", "D5=1", "A3=unida:A4", "D0=cruzada:D1"; nothing for anything else,
// or for a line joined or swapped with one of the other group or with itself.
std::optional<Averia> leeraveria(std::string_view texto);

// The wires between the microcontroller's port pins and the socket's, as the faults leave
// them, and the socket empty or not. A line cut, and the bus of an empty socket, float: each
// reading of them is a new random level.
class Cableado {
public:
    explicit Cableado(const std::vector<Averia>& averias = {}, bool sinchip = false);

    bool sinchip() const { return sinchip_; }
    // The chip's pins as the microcontroller's reach them.
    Patas alchip(const Patas& micro);
    // The data pins as the microcontroller reads them: where it drives, its own levels (a line
    // tied to a rail wins); elsewhere what the chip puts on its side.
    std::uint8_t almicro(std::uint8_t delchip, std::uint8_t propio, std::uint8_t conducidos);

private:
    // One side's pin k as the other side's pins make it, for every pin of a group.
    struct Hilo {
        int fuente;     // the pin of the other side it is wired to
        int unida = -1; // a pin of the other side shorted to it
        std::optional<bool> fijo;
        bool abierta = false;
    };
    template <std::size_t N> static void aplicar(std::array<Hilo, N>& hilos, const Averia& averia);
    template <std::size_t N>
    unsigned traer(const std::array<Hilo, N>& hilos, unsigned niveles, unsigned conducidos, unsigned& llegan);

    std::array<Hilo, 15> direcciones;
    std::array<Hilo, 8> datos;
    bool sinchip_;
    std::minstd_rand azar{20261124};
};

} // namespace eeprog
