#include "plataforma/boton.h"

namespace eeprog {

void aspectopresionado(Boton& boton, const Skin& skin)
{
    boton.ponerapariencia(Apariencia::tridimensional);
    boton.ponercolor(skin.color());
}

void aspectonormal(Boton& boton, const Skin& skin)
{
    boton.ponerapariencia(Apariencia::plana);
    boton.ponercolor(skin.color());
}

} // namespace eeprog
