#include "shell/frmsplash.h"

namespace eeprog {

void FrmSplash::Form_Load()
{
    cuentaticks_ = 0;
}

// The main window's start-up runs inside the first tick and may take a while; ticks are
// counted as they are served, so the second cannot come before it is over.
void FrmSplash::Timer1_Timer()
{
    ++cuentaticks_;
    if (cuentaticks_ == 1)
        arranque_.mostrarForm1();
    if (cuentaticks_ == 4)
        arranque_.descargar();
}

void FrmSplash::Form_KeyPress()
{
    cerrar();
}

void FrmSplash::Form_MouseUp()
{
    cerrar();
}

// Before the first tick this is what creates the main window; after it, showing the
// window again changes nothing.
void FrmSplash::cerrar()
{
    arranque_.descargar();
    arranque_.mostrarForm1();
}

} // namespace eeprog
