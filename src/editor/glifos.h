#pragma once

#include <string>
#include <string_view>

namespace eeprog {

// How a byte of fgascii looks: the glyph that code page 437 gives it, so that control
// codes and high codes show as something (a smiling face, a box corner) rather than as
// nothing. Code 0 and code 255 are blank there, as they were on the screens of that page.
char32_t glifo(unsigned char codigo);

// The code whose glyph this is, or -1 if the code page has none such. A blank is the space,
// 32, though codes 0 and 255 look the same.
int codigode(char32_t glifo);

// The bytes of a cell as UTF-8 text of their glyphs, for a status panel.
std::string textovisible(std::string_view bytes);

} // namespace eeprog
