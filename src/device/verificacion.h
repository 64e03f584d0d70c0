#pragma once

#include "device/pantallaoperacion.h"
#include "link/enlace.h"
#include "records/registros.h"

#include <string>

namespace eeprog {

// Compares the chip with the records of the buffer, one read frame a record, offering
// each expected byte as the pacing byte. Every difference, header echoes included, goes to
// panel 1 and to the log with its address, and the run goes on to the end. The port must
// be open and the board checked.
void verificacion(Enlace& enlace, const Registros& registros, PantallaOperacion pantalla);

// How a difference is reported: the address in four digits (FFFC for -4), the expected value
// and the value read.
std::string diferencia(int direccion, int esperado, int leido);

} // namespace eeprog
