#pragma once

#include "records/imagen.h"

#include <string_view>

namespace eeprog {

// A text file read strictly as Intel HEX or as S-records, picked by its first character
// that is not white space (":", or "S" in either case); a text that starts with anything
// else is refused at that line.
LecturaImagen leertexto(std::string_view texto);

// A raw image: byte k at address k, every byte given. An empty file, or one longer than
// the chip, is refused.
LecturaImagen leerbinario(std::string_view datos);

} // namespace eeprog
