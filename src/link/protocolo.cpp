#include "link/protocolo.h"

namespace eeprog::protocolo {

std::string dato(int valor)
{
    return std::string(1, static_cast<char>(valor & 0xFF));
}

int valorde(const std::string& respuesta)
{
    return respuesta.empty() ? 0 : static_cast<unsigned char>(respuesta.front());
}

int direccionalta(int direccion)
{
    return (direccion >> 8) & 0xFF;
}

int direccionbaja(int direccion)
{
    return direccion & 0xFF;
}

} // namespace eeprog::protocolo
