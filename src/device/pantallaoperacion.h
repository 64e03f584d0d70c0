#pragma once

#include "plataforma/barraprogreso.h"
#include "plataforma/informe.h"
#include "plataforma/paneles.h"

namespace eeprog {

// Where a device operation shows how far it has gone: panel 1 and the progress bar, and
// the log for what it finds on the way.
struct PantallaOperacion {
    Paneles& StatusBar1;
    BarraProgreso& ProgressBar1;
    Informe& informe;
};

} // namespace eeprog
