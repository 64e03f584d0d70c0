#include "shell/aplicarskin.h"

namespace eeprog {

void aplicarskin(Skin& skin, Formulario formulario, Edicion& edicion)
{
    skin.aplicar(formulario);
    edicion.edicionhabilitada = false;
    edicion.cuentadigitos = 0;
}

} // namespace eeprog
