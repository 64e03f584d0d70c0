#include "records/cargarhex.h"

#include "records/par.h"

namespace eeprog {

void cargarhex(std::string_view textoarchivo, Registros& registros)
{
    Escritura escritura(registros);
    std::size_t posicion = 0;
    while (posicion < textoarchivo.size()) {
        if (textoarchivo[posicion] == ':') {
            if (textoarchivo.substr(posicion + 1, 2) == "00") {
                escritura.terminar();
                break;
            }
            ++posicion;
            continue;
        }
        if (!escritura.poner(valorpar(textoarchivo, posicion)))
            break;
        posicion += 2;
    }
    escritura.cerrar();
}

} // namespace eeprog
