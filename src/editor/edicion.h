#pragma once

namespace eeprog {

// Edit mode of the memory editor and the hexadecimal digits typed so far. A change of
// skin ends edit mode and drops a pending digit, with no word to the user.
struct Edicion {
    bool edicionhabilitada = false;
    int cuentadigitos = 0;
};

} // namespace eeprog
