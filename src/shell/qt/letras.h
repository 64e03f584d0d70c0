#pragma once

#include <QFont>
#include <QStringList>

namespace eeprog {

// The fonts of the program's windows. Courier New is served by Liberation Mono where it
// is missing; Terminal, a Windows bitmap font, by DejaVu Sans Mono, which has a glyph for
// each of the 256 codes of the code page.
QFont courier(double puntos, bool negrita = false);
QFont terminal(double puntos);
// The about box's title lines and its notice of rights.
QFont comic(double puntos);
QFont sansserif(double puntos);

} // namespace eeprog
