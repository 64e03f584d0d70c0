#pragma once

#include "cli/opciones.h"
#include "device/tramas.h"

#include <string>
#include <variant>
#include <vector>

namespace eeprog {

// The frames that grabar and verificar send for the file they were given: a raw image, an
// Intel HEX or S-record file read strictly, or with --como-ventana the window's own intake.
// The whole file is read and judged before the board hears a byte. When it cannot be used,
// the one line that says why, naming the file.
std::variant<std::vector<Trama>, std::string> tramasdearchivo(const Opciones& opciones);

} // namespace eeprog
