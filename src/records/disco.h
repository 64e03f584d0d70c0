#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace eeprog {

// The whole content of a file, one character a byte; nothing when it cannot be read to
// its end (missing, a directory, no permission, a device rather than a file).
std::optional<std::string> leerarchivo(const std::string& nombre);

// Replaces the content of a file, writing into the file itself as the user: its links, owner
// and permissions stay, a symbolic link is written through, a file he may not write is refused.
// The room for a longer text is taken before anything is overwritten, so when the disk cannot
// take the text an existing file is left as it was; a file the failed save created is removed.
// False when the text could not be written.
bool escribirarchivo(const std::string& nombre, std::string_view texto);

// Whether a save to this name may go ahead, asked before the work that makes the text: an
// existing file must open for writing, and a new one needs a folder the user may write in.
bool sepuedeescribir(const std::string& nombre);

} // namespace eeprog
