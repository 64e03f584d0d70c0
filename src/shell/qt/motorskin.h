#pragma once

#include "plataforma/skin.h"

#include <QPointer>
#include <QWidget>

#include <map>

namespace eeprog {

// The skin engine: it dresses the windows in the current skin's colours.
class MotorSkin : public Skin {
public:
    // The windows it may be asked to dress.
    void registrar(Formulario formulario, QWidget* ventana);

    void aplicar(Formulario formulario) override;
    Color color() const override;

private:
    Color fondo_ = colorinicial;
    std::map<Formulario, QPointer<QWidget>> ventanas_;
};

} // namespace eeprog
