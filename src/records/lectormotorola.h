#pragma once

#include "records/imagen.h"

#include <string_view>

namespace eeprog {

// Motorola S-records as the tools that write them mean them, every line checked: S1, S2
// and S3 give data; S0 and the counts S5 and S6 are checked and left aside; S7, S8 and S9
// end the reading, and a file without one is read to its end.
LecturaImagen leermotorola(std::string_view texto, int tamano);

} // namespace eeprog
