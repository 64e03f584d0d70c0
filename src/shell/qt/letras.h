#pragma once

#include <QFont>
#include <QStringList>

namespace eeprog {

// The fonts of the grids and their boxes. Courier New is served by Liberation Mono where it
// is missing; Terminal, a Windows bitmap font, by DejaVu Sans Mono, which has a glyph for
// each of the 256 codes of the code page.
QFont courier(int puntos, bool negrita = false);
QFont terminal(int puntos);

} // namespace eeprog
