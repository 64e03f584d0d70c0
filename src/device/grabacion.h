#pragma once

#include "device/pantallaoperacion.h"
#include "link/enlace.h"
#include "records/registros.h"

namespace eeprog {

// Writes the records of the buffer to the chip, one write frame a record, in file order.
// The board's echo of each byte is the only check: a wrong one shows in panel 1 until the
// next byte, and the run goes on. The port must be open and the board checked.
void grabacion(Enlace& enlace, const Registros& registros, PantallaOperacion pantalla);

} // namespace eeprog
