#pragma once

#include "records/registros.h"

#include <string_view>

namespace eeprog {

// Motorola S-record intake, into the same layout as the Intel HEX intake. It walks the
// text in pairs and knows two line types: S1, whose count becomes the number of data
// bytes (the count less 3) and which gets a made-up type 0, and S9, which ends the
// intake. Line types are seen only on a pair's place: a one-character line end puts the
// next line off step. Anything else, an S0 header included, is taken pair by pair.
void cargarobj(std::string_view textoarchivo, Registros& registros);

} // namespace eeprog
