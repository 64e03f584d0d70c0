#pragma once

#include "protocolo.h"
#include "rapido.h"

#include <string>
#include <vector>

namespace eeprog {

// Faults a board can be made to show, so the program's failure paths can be tried.
struct OpcionesPlaca {
    bool muda = false;           // never answers: no board, or a dead one
    bool silenciosa = false;     // answers the first check of a session, then hangs until reopened
    long ecoerroneo = 0;         // the Nth written data byte (from 1, over the board's life) is heard wrong
    bool protegido = false;      // the chip starts with its software data protection on
    bool lenta = false;          // an older firmware: the fast protocol's question is echoed
    long byteerroneo = 0;        // the Nth byte heard in the fast protocol (from 1) has a bit changed
    long respuestaerronea = 0;   // and the Nth byte sent in it
    int zocalo = MODELOAT28C64B; // the chip in the socket, as the firmware's table numbers it
};

// The programmer board: the firmware's own protocol table over a chip held in memory, with
// the faults of the options around it. Its state lasts as long as the board: a frame left
// half way ends only by a silence, as on the real board. An operation for a chip with fewer
// address lines than the socket's leaves the upper ones low; one for a chip with more
// reaches the socket's through the lines it has.
class Placa {
public:
    explicit Placa(OpcionesPlaca opciones = {});

    // One byte from the program, and what the board answers to it: one byte in the old
    // protocol, a whole frame or nothing in the fast one.
    std::string recibir(unsigned char byte);
    // The port was opened. The board cannot see it, as the real one has no line to tell it:
    // a frame left half way goes on, and only the faults that count sessions start again.
    void conectar();
    // The line has been quiet for the board's idle time: back to 9600 baud and idle.
    void silencio();
    // The line has been quiet for the fast protocol's gap: a frame half in is dropped.
    void hueco();
    // The line's speed now: 9600, or the fast protocol's.
    long baudios() const { return enrapido ? BAUDIOSRAPIDO : 9600; }

    std::vector<unsigned char>& chip() { return memoria; }
    const std::vector<unsigned char>& chip() const { return memoria; }
    bool protegido() const { return protegido_; }
    // The chip's write cycles so far, taken or ignored: what wears it.
    int ciclos() const { return ciclos_; }

private:
    std::string ensilencio(unsigned char byte);
    std::string atender(unsigned char byte);
    std::string rapido(unsigned char byte);
    ::chip bus();
    std::size_t celda(unsigned direccion) const;

    OpcionesPlaca opciones;
    std::vector<unsigned char> memoria;
    const struct modelo* elegido = &::modelos[MODELOAT28C64B];
    bool protegido_;
    int ciclos_ = 0;
    struct protocolo protocolo_ {};
    struct rapido rapido_ {};
    bool enrapido = false;
    bool oido = false;
    long datosoidos = 0;
    long oidosrapido = 0;
    long dichosrapido = 0;
};

} // namespace eeprog
