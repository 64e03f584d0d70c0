#pragma once

#include <cstddef>
#include <string_view>

namespace eeprog {

// The value of the two characters at a position, by the rule of hexadecimal(): a
// character that is no uppercase digit counts 0 in its place. Past the end of the text
// a pair is shorter, or empty, and worth what is left of it.
int valorpar(std::string_view texto, std::size_t posicion);

} // namespace eeprog
