#pragma once

#include "device/avance.h"
#include "link/enlace.h"
#include "records/imagen.h"
#include "records/registros.h"

#include <vector>

namespace eeprog {

// One frame of programming or verifying as it goes on the wire behind its command: the
// count, the address high and low bytes, the type, then the data bytes.
struct Trama {
    std::vector<int> valores;

    // The address the board takes for the first data byte.
    int direccion() const { return valores[1] * 256 + valores[2]; }
    int datos() const { return static_cast<int>(valores.size()) - 4; }
};

// The bytes an image gives, in address order, as frames of up to 16 consecutive bytes that
// never cross a 16-byte block: a whole image goes out in the blocks of a whole-chip read.
std::vector<Trama> tramasdeimagen(const Imagen& imagen);

// The frames the window sends when it programs its record buffer, in the order of its walk.
std::vector<Trama> tramasderegistros(const Registros& registros);

int bytesde(const std::vector<Trama>& tramas);

// A reply that is not the value expected: the echo of a value written, or a byte read. The
// address is that of the data byte; a header value stands 4 to 1 below its frame's address.
struct Diferencia {
    int direccion;
    int esperado;
    int obtenido;
};

// Write frames, each value's echo compared with the value sent. The port must be open and
// the board checked.
std::vector<Diferencia> escribirtramas(Enlace& enlace, const std::vector<Trama>& tramas, const Avance& avance);

// Read frames offering the expected bytes as pacing bytes, after one more check, as the
// window verifies. The port must be open and the board checked.
std::vector<Diferencia> comparartramas(Enlace& enlace, const std::vector<Trama>& tramas, const Avance& avance);

} // namespace eeprog
