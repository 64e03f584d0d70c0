#pragma once

#include "plataforma/skin.h"

namespace eeprog {

enum class Apariencia { plana = 0, tridimensional = 1 };

// A picture button of the command row.
class Boton {
public:
    virtual ~Boton() = default;
    virtual void ponerapariencia(Apariencia apariencia) = 0;
    virtual void ponercolor(Color fondo) = 0;
    virtual void habilitar(bool habilitado) = 0;
};

// While its operation runs a button stands out from the row. Each change of look takes
// the skin colour anew, as the look and the colour are two settings of the button.
void aspectopresionado(Boton& boton, const Skin& skin);
void aspectonormal(Boton& boton, const Skin& skin);

} // namespace eeprog
