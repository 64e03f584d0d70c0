#include "device/recorrido.h"

namespace eeprog {

void recorrerregistros(const Registros& registros, const std::function<void(int)>& inicio,
                       const std::function<void(int)>& paso)
{
    const auto& vector = registros.vector;
    int i = 0;
    while (i <= registros.totalvector && vector[static_cast<std::size_t>(i)] != 0) {
        const int cuenta = vector[static_cast<std::size_t>(i)];
        if (cuenta < 0) {
            i += cuenta + 6;
            continue;
        }
        inicio(i);
        const int ultimo = i + cuenta + 3;
        for (int j = i; j <= ultimo; ++j)
            paso(j);
        i = ultimo + 1 + 2;
    }
}

} // namespace eeprog
