#pragma once

#include "plataforma/avisos.h"
#include "plataforma/dialogo.h"
#include "plataforma/informe.h"

#include <string>

namespace eeprog {

inline const std::string filtroguardar = "Archivo de ATMEL|*.hex|Archivo de MOTOROLA|*.obj";

// What saving writes: the Intel HEX lines of the last read and one CR LF behind them.
std::string textoguardado(const std::string& textoleido);

// Saves the last read of the chip, whatever filter or extension is chosen: its Intel HEX
// lines and one CR LF behind them. Before any read that is the CR LF alone. A cancelled
// dialog does nothing at all; a file that cannot be written brings up a box and a log line.
void guardararchivo(Dialogo& CommonDialog1, const std::string& textoleido, Informe& informe, Avisos& avisos);

} // namespace eeprog
