#include "tiempos.h"

#include <fstream>
#include <iomanip>

namespace eeprog {

void Tiempos::oido(std::int64_t ahora)
{
    if (ensesion)
        return;
    ensesion = true;
    desde = hasta = ahora;
    ciclos = chip.ciclos();
}

bool Tiempos::cerrada()
{
    if (!ensesion || ruta.empty())
        return true;
    ensesion = false;
    std::ofstream salida(ruta, std::ios::app);
    salida << std::fixed << std::setprecision(6) << static_cast<double>(hasta - desde) / 1e9 << ' '
           << chip.ciclos() - ciclos << '\n';
    return static_cast<bool>(salida);
}

} // namespace eeprog
