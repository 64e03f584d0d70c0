#pragma once

#include "plataforma/barraprogreso.h"
#include "shell/qt/repintado.h"

#include <QProgressBar>

namespace eeprog {

class Barra : public QProgressBar, public BarraProgreso {
public:
    Barra(Repintado& repintado, QWidget* padre);

    void maximo(double valor) override;
    void valor(double valor) override;

private:
    Repintado& repintado_;
};

} // namespace eeprog
