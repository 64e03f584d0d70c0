#pragma once

#include "plataforma/skin.h"
#include "shell/tema.h"

#include <QPointer>
#include <QWidget>

#include <map>

namespace eeprog {

// The skin engine: it holds the current skin and dresses the windows in its palette,
// their menus included. The title bars belong to the desktop and keep its look.
class MotorSkin : public Skin {
public:
    // The windows it may be asked to dress.
    void registrar(Formulario formulario, QWidget* ventana);

    void cargar(const std::string& ruta) override;
    void aplicar(Formulario formulario) override;
    Color color() const override;

private:
    Tema tema_ = temainicial();
    std::map<Formulario, QPointer<QWidget>> ventanas_;
};

// The palette of the windows of a skin.
QPalette paletade(const Tema& tema);

} // namespace eeprog
