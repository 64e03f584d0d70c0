#include "device/canallento.h"

#include "device/lectura.h"
#include "device/proteccion.h"

namespace eeprog {

void CanalLento::leer(Leido& leido, const Avance& avance)
{
    leerchip(enlace_, leido, avance);
}

std::vector<Diferencia> CanalLento::escribir(const std::vector<Trama>& tramas, const Avance& avance)
{
    return escribirtramas(enlace_, tramas, avance);
}

std::vector<Diferencia> CanalLento::comparar(const std::vector<Trama>& tramas, const Avance& avance)
{
    return comparartramas(enlace_, tramas, avance);
}

bool CanalLento::proteger(bool poner)
{
    return cambiarproteccion(enlace_, poner);
}

} // namespace eeprog
