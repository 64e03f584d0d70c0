#pragma once

#include "shell/qt/ventanaform1.h"
#include "shell/qt/ventanasplash.h"

#include <QPointer>

#include <functional>
#include <memory>

namespace eeprog {

// A run of the program: the splash first, which brings up the main window.
class Programa {
public:
    using Creador = std::function<std::unique_ptr<VentanaForm1>()>;

    // The main window is made by crear when the splash first asks for it.
    explicit Programa(Creador crear = [] { return std::make_unique<VentanaForm1>(); });
    ~Programa();
    Programa(const Programa&) = delete;
    Programa& operator=(const Programa&) = delete;

    // Null until the splash has brought it up.
    VentanaForm1* Form1() const { return Form1_.get(); }
    // Null once it has gone.
    VentanaSplash* frmSplash() const { return frmSplash_; }

private:
    void mostrarForm1();

    Creador crear_;
    std::unique_ptr<QObject> findecorrida_;
    QPointer<VentanaSplash> frmSplash_;
    std::unique_ptr<VentanaForm1> Form1_;
};

// The look shared by every window of the program, before any skin is applied: the Fusion
// style, which draws every part in the palette it is given.
void prepararaplicacion();

} // namespace eeprog
