#pragma once

#include "editor/cuadriculas.h"

#include <array>
#include <cstdint>

namespace eeprog {

// Shows a whole read of the chip: entry k of vectorleido goes to row k / 16, column k % 16
// of fghex and fgascii, for the chip's 8192 bytes. Rows 512 and up, fgdir, the current
// cells, the selections and the scroll position are left as they are.
void loadgrid(Cuadriculas& cuadriculas, const std::array<std::int16_t, 65536>& vectorleido);

} // namespace eeprog
