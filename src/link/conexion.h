#pragma once

#include "link/enlace.h"
#include "plataforma/avisos.h"
#include "plataforma/boton.h"
#include "plataforma/informe.h"
#include "plataforma/paneles.h"

#include <functional>
#include <string>

namespace eeprog {

// The log lines of one device operation's frame, on success and on failure.
struct PalabrasMarco {
    std::string exito;
    std::string falla;
};

namespace palabras {
inline const PalabrasMarco leer{"... Coneccion Exitosa!!!........Leyendo", "... Coneccion Erronea!!!"};
inline const PalabrasMarco grabar{"... Coneccion Exitosa .........Gravando!!!",
                                  "... Coneccion Erronea No existe Comunicacion"};
inline const PalabrasMarco verificar{"... Coneccion Exitosa!!!........Verificando", "... Coneccion Erronea!!!"};
inline const PalabrasMarco editado{"... Coneccion Exitosa .........Gravando del Editor!!!",
                                   "... Coneccion Erronea .....Fallo Grabar del editor!!! "};
} // namespace palabras

inline const std::string panelexito = "C o n e c c i o n    E X I T O S A ...";
inline const std::string panelfalla = "E R R O R  en la  C O N E C C I O N ...";

// The check that opens every talk with the board: one "c" out, and only the one-character
// reply "c" passes. A "C", "cc" or the time-out all fail, and the causes are not told apart.
bool comprobarconexion(Enlace& enlace);

// The advice shown when the board does not answer the check.
Aviso falla();
void mostrarfalla(Avisos& avisos);

// What the frame reports to: panel 1, the log, the message box and the skin colour
// that the button's look takes.
struct PantallaMarco {
    Paneles& paneles;
    Informe& informe;
    Avisos& avisos;
    const Skin& skin;
};

// The frame of every device operation: no byte reaches the chip before the board has
// answered the check, and whatever happens the port is closed at the end.
class Marco {
public:
    Marco(Enlace& enlace, PantallaMarco pantalla);

    void ejecutar(Boton& boton, const PalabrasMarco& palabras, const std::function<void()>& operacion);

private:
    Enlace& enlace_;
    PantallaMarco pantalla_;
};

} // namespace eeprog
