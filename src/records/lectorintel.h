#pragma once

#include "records/imagen.h"

#include <string_view>

namespace eeprog {

// Intel HEX as the tools that write it mean it, every line checked. Record types 00 to 05;
// an end record (01) ends the reading, and a file without one is read to its end.
// Addresses from tamano on are refused.
LecturaImagen leerintel(std::string_view texto, int tamano);

} // namespace eeprog
