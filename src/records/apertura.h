#pragma once

#include "plataforma/avisos.h"
#include "plataforma/dialogo.h"
#include "plataforma/informe.h"
#include "records/archivoabierto.h"
#include "records/registros.h"

#include <string>

namespace eeprog {

inline const std::string filtroabrir = "Archivos tipo OBJETO|*.obj|Archivos tipo HEXADECIMAL|*.hex";

// Shows the open dialog and reads the chosen file whole. A cancelled dialog reads again
// the file it names already, if any; with no name at all nothing is read. A file that
// cannot be read leaves everything as it was and says so in the log: false then, and
// opening goes no further.
bool abrirarchivo(Dialogo& CommonDialog1, ArchivoAbierto& archivo, Informe& informe);

// Chooses the intake by the text's first character alone: ":" Intel HEX, "S" Motorola.
// An empty text does nothing; any other text is refused with a box, and the buffer keeps
// the records it had.
void ponerenvector(const ArchivoAbierto& archivo, Registros& registros, Avisos& avisos);

} // namespace eeprog
