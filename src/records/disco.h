#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace eeprog {

// The whole content of a file, one character a byte; nothing when it cannot be read to
// its end (missing, a directory, no permission, a device rather than a file).
std::optional<std::string> leerarchivo(const std::string& nombre);

// Replaces the content of a file. The new text goes into a file beside it first and takes
// the old one's place only once it is whole, so a failed write leaves the old file as it
// was. False when the text could not be written.
bool escribirarchivo(const std::string& nombre, std::string_view texto);

} // namespace eeprog
