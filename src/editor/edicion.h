#pragma once

#include <string>

namespace eeprog {

// The state of the cell editors. Edit mode gates only whether moving to a cell of fghex or
// fgascii brings up its overlay box; a change of skin ends it and drops a pending digit,
// with no word to the user.
struct Edicion {
    bool edicionhabilitada = false;
    // Hexadecimal digits typed so far for the current byte (0 or 1 between keys) and
    // their text.
    int cuentadigitos = 0;
    std::string textocelda;
    // The cell that the next commit of either overlay writes.
    int celdafila = 0;
    int celdacolumna = 0;
    // The highest grid row edited so far; never lowered. Programming from the editor sends
    // rows 0 to this one.
    int filaeditada = 0;
};

} // namespace eeprog
