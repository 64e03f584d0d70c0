#pragma once

#include <functional>

namespace eeprog {

// A device operation holds the window from its first byte to its last. Clicks and keys
// that the user gives meanwhile are dropped once it is over, not acted on afterwards: a
// second click on LEER during a read must not start another read half a minute later.
void bloquearentrada(const std::function<void()>& operacion);

} // namespace eeprog
