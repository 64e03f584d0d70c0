#pragma once

namespace eeprog {

// Ctrl+C, SIGTERM or a closed terminal: thrown at the end of the frame under way, so the board
// is idle when the operation's frame closes the port, and no file is written.
struct Interrupcion {};

// A second one: thrown at the next byte, leaving the board inside its frame until the line has
// been quiet for the board's idle time.
struct Abandono {};

// From here on the signals are only counted; the operations look at the count as they go.
void vigilarinterrupciones();
bool interrumpido();
bool abandonado();

} // namespace eeprog
