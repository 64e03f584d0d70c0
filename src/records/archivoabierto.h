#pragma once

#include <string>

namespace eeprog {

// The file that was read last: its whole text, one character a byte, its full path and its
// name alone. The three are replaced together, and only when a file has been read.
struct ArchivoAbierto {
    std::string textoarchivo;
    std::string nombrearchivo;
    std::string tituloarchivo;
};

} // namespace eeprog
