#pragma once

#include "records/registros.h"

#include <string_view>

namespace eeprog {

// Intel HEX intake. It does not parse lines: it walks the text two characters at a time
// and makes an entry of every pair, skipping a ":" and ending at a ":" that has "00"
// behind it. The record layout of the buffer falls out of that walk; a CR LF pair gives
// the line-end entry. Checksums and record types are kept and never looked at.
void cargarhex(std::string_view textoarchivo, Registros& registros);

} // namespace eeprog
