#pragma once

#include <string>

namespace eeprog {

// A fixed name for the terminal, whose own name changes from run to run, so the program
// can be pointed at the same path every time.

// Makes enlace point at destino. A link left behind by an earlier run is replaced; any
// other file in the way is left alone and the result is false.
bool enlazar(const std::string& enlace, const std::string& destino);

// Removes enlace if it still points at destino, so a later run's link is never taken away.
void desenlazar(const std::string& enlace, const std::string& destino);

} // namespace eeprog
