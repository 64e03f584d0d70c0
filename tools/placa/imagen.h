#pragma once

#include <string>
#include <vector>

namespace eeprog {

// A chip image is the chip's bytes, raw, from address 0.

// A shorter file fills the chip from address 0 and leaves the rest as it was; a longer one
// is cut at the chip's end. False when the file cannot be read.
bool cargarimagen(const std::string& ruta, std::vector<unsigned char>& chip);

// Writes the whole chip. False when the file cannot be written.
bool volcarimagen(const std::string& ruta, const std::vector<unsigned char>& chip);

// The chip's software data protection as the board leaves it, one line: "protegido" or
// "desprotegido". False when the file cannot be written.
bool escribirproteccion(const std::string& ruta, bool protegido);

} // namespace eeprog
