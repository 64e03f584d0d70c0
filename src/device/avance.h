#pragma once

#include <functional>

namespace eeprog {

// Called as the data bytes of an operation go by, with the count done so far. It may throw
// to end the operation; the caller's frame then closes the port.
using Avance = std::function<void(int hechos)>;

} // namespace eeprog
