#pragma once

#include "device/avance.h"
#include "device/leido.h"
#include "device/pantallaoperacion.h"
#include "link/enlace.h"

namespace eeprog {

// Reads the whole chip, 16 bytes a read frame from address 0 up: 512 frames after one more
// "c". Each block becomes 16 entries of vectorleido and one Intel HEX line of textoleido,
// with its checksum. A reply that never comes reads as 0x45, the "E" of "Error"; the read
// goes on to its end whatever it meets. The port must be open and the board checked.
void lectura(Enlace& enlace, Leido& leido, PantallaOperacion pantalla);

// The Intel HEX line of a block of 16 bytes of vectorleido, as a read writes it in textoleido.
std::string linealeida(const Leido& leido, int bloque);

// The same read with nothing shown but the count of bytes read, after each byte, and the end
// of each frame.
void leerchip(Enlace& enlace, Leido& leido, const Avance& avance);

} // namespace eeprog
