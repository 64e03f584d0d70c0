#include "device/proteccion.h"

#include "link/protocolo.h"

namespace eeprog {

bool cambiarproteccion(Enlace& enlace, bool proteger)
{
    const std::string& orden = proteger ? protocolo::proteger : protocolo::desproteger;
    return enlace.intercambio(orden) == (proteger ? "P" : "D");
}

} // namespace eeprog
