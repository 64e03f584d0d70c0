#pragma once

#include "plataforma/dialogo.h"

namespace eeprog {

// The open and save dialog of the desktop. The filter entries become name filters
// ("Archivos tipo OBJETO (*.obj)"); the dialog starts on the entry FilterIndex names,
// in the folder and on the name of FileName.
class DialogoComun : public Dialogo {
public:
    bool ShowOpen() override;
    bool ShowSave() override;

private:
    bool mostrar(bool guardar);
};

} // namespace eeprog
