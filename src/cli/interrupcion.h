#pragma once

namespace eeprog {

// Thrown at the next byte of an operation after Ctrl+C or SIGTERM, so that the operation's
// frame closes the port and no file is written.
struct Interrupcion {};

// From here on the two signals are only noted; the operations look at the note byte by byte.
void vigilarinterrupciones();
bool interrumpido();

} // namespace eeprog
