#pragma once

#include "device/avance.h"
#include "device/canal.h"
#include "link/modelo.h"

#include <string>
#include <vector>

namespace eeprog {

// What the board's test of its own wiring found: a line of text per fault, and how many of the
// bytes it touched are not back as they were.
struct Prueba {
    std::vector<std::string> averias;
    int tocados = 0;
    int sinreponer = 0;
};

// Writes patterns that tell every data line and every address line apart, reads them back and
// names the lines that do not behave: cut, stuck at 0 or 1, joined to another, or an offset
// line that reaches the chip as a page line. The bytes it touches are read first and written
// back at the end.
Prueba probarlineas(Canal& canal, const Modelo& modelo, const Avance& avance);

// The data line in which every one of two or more differences lies, alone: -1 when there is
// none.
int lineacomun(const std::vector<Diferencia>& diferencias);

// The bytes the test moves at most, for a progress bar.
int bytesdeprueba(const Modelo& modelo);

} // namespace eeprog
