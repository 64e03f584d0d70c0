#pragma once

#include <string>
#include <string_view>

namespace eeprog {

// The value of a hexadecimal text, as decimal text. Only "0"-"9" and "A"-"F" are digits;
// any other character counts nothing but keeps its place, so the digits on its left keep
// their weight ("7G" is 112, "1f" is 16). It never fails: a text without digits gives "0".
// The file intake relies on that: a pair of line-break characters reads as "0".
std::string hexadecimal(std::string_view texto);

// A number in uppercase hexadecimal, no prefix, no leading zeros. A negative number is a
// 16-bit value and renders as the four digits of its two's complement: -4 is FFFC.
std::string hexa(long valor);

// hexa with a "0" put in front of a single digit; a longer result is not cut.
std::string doscifras(long valor);

// hexa with zeros put in front up to four digits, for addresses 0 to 65535.
std::string cuatrocifras(long valor);

} // namespace eeprog
