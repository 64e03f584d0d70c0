#pragma once

#include "protocolo.h"

#include <array>
#include <optional>

namespace eeprog {

// Faults a board can be made to show, so the program's failure paths can be tried.
struct OpcionesPlaca {
    bool muda = false;       // never answers: no board, or a dead one
    bool silenciosa = false; // answers the first check of a session, then hangs until reopened
    long ecoerroneo = 0;     // the Nth written data byte (from 1, over the board's life) is heard wrong
    bool protegido = false;  // the chip starts with its software data protection on
};

// The programmer board: the firmware's own protocol table over an AT28C64B held in memory,
// with the faults of the options around it. Its state lasts as long as the board: a frame
// left half way ends only by a silence, as on the real board.
class Placa {
public:
    static constexpr int tamano = TAMANOCHIP;

    explicit Placa(OpcionesPlaca opciones = {});

    // One byte from the program; the board answers with at most one.
    std::optional<unsigned char> recibir(unsigned char byte);
    // The port was opened. The board cannot see it, as the real one has no line to tell it:
    // a frame left half way goes on, and only the faults that count sessions start again.
    void conectar();
    // The line has been quiet for the board's idle time.
    void silencio();

    std::array<unsigned char, tamano>& chip();
    const std::array<unsigned char, tamano>& chip() const;
    bool protegido() const { return protegido_; }
    // The chip's write cycles so far, taken or ignored: what wears it.
    int ciclos() const { return ciclos_; }

private:
    std::optional<unsigned char> ensilencio(unsigned char byte);
    unsigned char atender(unsigned char byte);

    OpcionesPlaca opciones;
    std::array<unsigned char, tamano> memoria;
    bool protegido_;
    int ciclos_ = 0;
    struct protocolo protocolo_ {};
    bool oido = false;
    long datosoidos = 0;
};

} // namespace eeprog
