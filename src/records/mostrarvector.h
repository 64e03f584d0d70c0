#pragma once

#include "editor/cuadriculas.h"
#include "plataforma/informe.h"
#include "plataforma/paneles.h"
#include "records/archivoabierto.h"
#include "records/registros.h"

namespace eeprog {

// Where mostrarvector shows a file.
struct PantallaArchivo {
    Cuadriculas& cuadriculas;
    Paneles& StatusBar1;
    Informe& informe;
};

// Copies the records of the buffer into the cells of fghex and fgascii, in file order,
// so that a later record over the same address stands. Cells that no record covers keep
// what they held. Then names the file in the status bar and the log with its figure: the
// address of the last byte of the last record in the file, 8191 for a full chip.
void mostrarvector(const Registros& registros, const ArchivoAbierto& archivo, PantallaArchivo pantalla);

} // namespace eeprog
