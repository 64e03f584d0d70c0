#include "records/cargarobj.h"

#include "records/par.h"

namespace eeprog {

namespace {

// Count, address high, address low, type: the four leading entries of an S1 line.
// False once the buffer is full. The position is left on the line's last pair read.
bool lineas1(std::string_view texto, std::size_t& posicion, Escritura& escritura)
{
    posicion += 2;
    if (!escritura.poner(valorpar(texto, posicion) - 3))
        return false;
    posicion += 2;
    if (!escritura.poner(valorpar(texto, posicion)))
        return false;
    posicion += 2;
    return escritura.poner(valorpar(texto, posicion)) && escritura.poner(0);
}

} // namespace

void cargarobj(std::string_view textoarchivo, Registros& registros)
{
    Escritura escritura(registros);
    for (std::size_t posicion = 0; posicion < textoarchivo.size(); posicion += 2) {
        const std::string_view par = textoarchivo.substr(posicion, 2);
        if (par == "S9") {
            escritura.terminar();
            break;
        }
        const bool cabe = par == "S1" ? lineas1(textoarchivo, posicion, escritura)
                                      : escritura.poner(valorpar(textoarchivo, posicion));
        if (!cabe)
            break;
    }
    escritura.cerrar();
}

} // namespace eeprog
