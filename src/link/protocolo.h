#pragma once

#include <string>

namespace eeprog::protocolo {

// The three frames the board knows. The program is the master: it sends one byte and
// waits for the board's one reply, and the board never speaks first.
inline const std::string comprobar = "c"; // check: the board answers "c"
inline const std::string lectura = "r";   // read frame: count, address high, low, type, N pacing bytes
inline const std::string escritura = "w"; // write frame: count, address high, low, type, N data bytes
// Two more that the window never sends, for the chip's software data protection. Each is
// answered by a byte of its own once the chip's sequence is over, so that a board which only
// echoes what it does not know is told apart.
inline const std::string desproteger = "d"; // answered "D"
inline const std::string proteger = "p";    // answered "P"

inline constexpr int tamanochip = 8192; // AT28C64B: addresses 0x0000 to 0x1FFF
inline constexpr int tamanobloque = 16; // bytes a read frame of a whole-chip read carries
inline constexpr int tipodatos = 0;     // the record type of plain data

// Milliseconds of silence after which the board gives up a frame left half way and is idle.
inline constexpr int reposo = 500;

// The one-character text that carries a value on the wire; only its low byte counts.
std::string dato(int valor);

// The value a reply stands for: the code of its first character. Any further characters
// are dropped, and the time-out text "Error" stands for its "E", 0x45.
int valorde(const std::string& respuesta);

// The two address bytes of a frame, high first.
int direccionalta(int direccion);
int direccionbaja(int direccion);

} // namespace eeprog::protocolo
