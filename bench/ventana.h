#pragma once

#include "aplicacion.h"
#include "dialogofalso.h"
#include "pantallafalsa.h"
#include "placa.h"
#include "puertoplaca.h"
#include "shell/qt/ventanaform1.h"

#include <QCoreApplication>

#include <memory>

namespace eeprog::banco {

// The real window on Qt's offscreen platform, with the board in the same process so that
// the start-up check answers at once, and a file dialog the benchmark chooses for.
struct Ventana {
    Placa placa;
    prueba::DialogoFalso* dialogo = nullptr;
    std::unique_ptr<VentanaForm1> ventana;

    // Builds the window and shows it; the first showing runs Form_Load, and the events
    // that follow draw it once.
    void abrir()
    {
        prueba::crearaplicacion();
        auto nuevo = std::make_unique<prueba::DialogoFalso>();
        dialogo = nuevo.get();
        ventana = std::make_unique<VentanaForm1>(Dependencias{std::make_unique<PuertoPlaca>(placa),
                                                              std::make_unique<prueba::AvisosFalsos>(),
                                                              std::make_unique<prueba::RelojFijo>(), std::move(nuevo)});
        ventana->show();
        QCoreApplication::processEvents();
    }
};

} // namespace eeprog::banco
