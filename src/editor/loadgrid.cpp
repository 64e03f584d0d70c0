#include "editor/loadgrid.h"

namespace eeprog {

namespace {

constexpr int filaschip = 512;

} // namespace

void loadgrid(Cuadriculas& cuadriculas, const std::array<std::int16_t, 65536>& vectorleido)
{
    std::size_t k = 0;
    for (int fila = 0; fila < filaschip; ++fila)
        for (int columna = 0; columna < columnasrejilla; ++columna)
            ponerbyte(cuadriculas, fila, columna, vectorleido[k++] & 0xFF);
}

} // namespace eeprog
