#include "shell/qt/programa.h"

#include "shell/qt/ventanasplash.h"

#include <QApplication>

namespace eeprog {

void prepararaplicacion()
{
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/iconos/eeprog-48.png")));
}

Programa::Programa(Creador crear) : crear_(std::move(crear))
{
    frmSplash_ = new VentanaSplash([this] { mostrarForm1(); });
    frmSplash_->show();
    frmSplash_->activateWindow();
}

// A run may end while the splash still stands.
Programa::~Programa()
{
    delete frmSplash_;
}

// The window runs its start-up as it is first shown, inside this call.
void Programa::mostrarForm1()
{
    if (!Form1_)
        Form1_ = crear_();
    Form1_->show();
}

} // namespace eeprog
