#pragma once

#include "records/imagen.h"

#include <string_view>

namespace eeprog {

// A text file read strictly as Intel HEX or as S-records, picked by its first character
// that is not white space (":", or "S" in either case); a text that starts with anything
// else is refused at that line. Data at an address from tamano on, past the chip, is refused.
LecturaImagen leertexto(std::string_view texto, int tamano);

// A raw image: byte k at address k, every byte given. An empty file, or one longer than
// the chip, is refused.
LecturaImagen leerbinario(std::string_view datos, int tamano);

} // namespace eeprog
