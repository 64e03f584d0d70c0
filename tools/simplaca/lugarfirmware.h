#pragma once

#include <string>

namespace eeprog {

// The board's firmware when --firmware names none: where the build tree puts it beside this
// program, else where an install puts it. Both places are found from the program's own path,
// so a tree moved whole still finds it. Empty, and said in one line naming both places, when
// neither holds it.
std::string buscarfirmware();

} // namespace eeprog
