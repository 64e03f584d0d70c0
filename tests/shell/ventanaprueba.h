#pragma once

#include "aplicacion.h"
#include "dialogofalso.h"
#include "pantallafalsa.h"
#include "puertoplaca.h"
#include "shell/qt/barra.h"
#include "shell/qt/barraestado.h"
#include "shell/qt/botonimagen.h"
#include "shell/qt/cajainforme.h"
#include "shell/qt/rejillas.h"
#include "shell/qt/ventanaform1.h"
#include "shell/qt/vistacaja.h"
#include "shell/qt/vistarejilla.h"

#include <QTest>
#include <QtWidgets>

#include <gtest/gtest.h>

namespace eeprog::prueba {

struct TimbreFalso : Timbre {
    int pitidos = 0;
    void Beep() override { ++pitidos; }
};

// The real main window on Qt's offscreen platform over recording fakes, with the board in
// the same process and the skins of the source tree beside it.
struct VentanaPrueba : ::testing::Test {
    static void SetUpTestSuite() { crearaplicacion(); }
    void SetUp() override { abrir(); }

    // A window over fresh fakes; without a port given, the fixture's board answers.
    std::unique_ptr<VentanaForm1> crear(std::unique_ptr<Puerto> otro = nullptr)
    {
        if (!otro)
            otro = std::make_unique<PuertoPlaca>(placa);
        auto nuevodialogo = std::make_unique<DialogoFalso>(&bitacora);
        auto nuevotimbre = std::make_unique<TimbreFalso>();
        dialogo = nuevodialogo.get(), timbre = nuevotimbre.get();
        return std::make_unique<VentanaForm1>(Dependencias{
            std::move(otro), std::make_unique<AvisosFalsos>(), std::make_unique<RelojFijo>(), std::move(nuevodialogo),
            std::move(nuevotimbre), std::make_unique<AbridorFalso>(), EEPROG_FUENTES});
    }
    // The window made, shown and active, in place of any before it.
    void abrir(std::unique_ptr<Puerto> otro = nullptr)
    {
        ventana = crear(std::move(otro));
        ventana->show(), ventana->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(ventana.get()));
    }

    void clic(QWidget& control) { QTest::mouseClick(&control, Qt::LeftButton); }
    void clic(const Rejilla& r, int fila, int columna)
    {
        VistaRejilla& v = &r == &c().fghex ? ventana->rejillas().fghex() : ventana->rejillas().fgascii();
        QTest::mouseClick(v.viewport(), Qt::LeftButton, {},
                          v.viewport()->mapFromParent(v.rectangulocelda(fila, columna).center()));
    }
    void tecla(Qt::Key cual, Qt::KeyboardModifiers modo = Qt::ControlModifier)
    {
        QTest::keyClick(QApplication::focusWidget(), cual, modo);
    }
    QAction& entrada(const char* nombre) { return *ventana->findChild<QAction*>(QString::fromUtf8(nombre)); }
    Cuadriculas& c() { return ventana->cuadriculas(); }

    Placa placa;
    Bitacora bitacora;
    std::unique_ptr<VentanaForm1> ventana;
    DialogoFalso* dialogo = nullptr;
    TimbreFalso* timbre = nullptr;
};

} // namespace eeprog::prueba
