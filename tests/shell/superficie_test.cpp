#include "ventanaprueba.h"

#include <fstream>

namespace eeprog::prueba {

struct SuperficieTest : VentanaPrueba {
    // What a person sees: the log, the chip, the panels, the bar, the dialogs, the buttons' looks.
    std::string resultado()
    {
        std::string r = ventana->txtinforme().texto() + std::string(placa.chip().begin(), placa.chip().end());
        for (int panel = 1; panel <= BarraEstado::cantidad; ++panel)
            r += '|' + ventana->StatusBar1().textopanel(panel).toStdString();
        r += std::to_string(ventana->ProgressBar1().value()) + std::to_string(dialogo->mostrados.size());
        for (int boton = 0; boton < 8; ++boton)
            r += std::to_string(static_cast<int>(ventana->boton(boton).apariencia()));
        return r;
    }
};

// Everything the window offers, as a user reads it: each button's word, tool tip and state,
// then the menu bar left to right with each entry's caption and shortcut; "-" is a separator.
TEST_F(SuperficieTest, TheButtonsAndTheMenuBarOfferEveryCommand)
{
    std::string superficie;
    for (int boton = 0; boton < 8; ++boton) {
        BotonImagen& b = ventana->boton(boton);
        superficie += b.objectName().toStdString() + ' ' + b.toolTip().toStdString() +
                      (b.isEnabled() ? "\n" : " (disabled)\n");
    }
    auto linea = [&](const QAction* a, const char* sangria) {
        superficie += sangria + a->objectName().toStdString() + ' ' +
                      (a->isSeparator() ? std::string("-") : a->text().toStdString()) +
                      (a->shortcut().isEmpty() ? "" : ' ' + a->shortcut().toString().toStdString()) + '\n';
    };
    for (const QAction* a : ventana->menuBar()->actions()) {
        linea(a, "");
        if (a->menu())
            for (const QAction* b : a->menu()->actions())
                linea(b, "  ");
    }
    EXPECT_EQ(superficie, "abrir Carger el Archivo HEX o OBJ para Programar\n"
                          "guardar Guardar el Archivo leido\n"
                          "leer Leer del Circuito Integrado\n"
                          "borrar Borrar el contenido del Dispositivo\n"
                          "grabar Programar el dispositivo\n"
                          "verificar Verificar el dispositivo\n"
                          "edit Editar  el programa\n"
                          "editado Editar  el programa (disabled)\n"
                          "menuarchivo &Archivo\n"
                          "  opcionabrir &Abrir Ctrl+A\n  opcionguardar &Guardar Ctrl+G\n"
                          "  lineaseparadora1 -\n  Opcionsalir &Salir Ctrl+X\n"
                          "menueditor &Edicion\n"
                          "  opcioneditar &Editar Ctrl+E\n  opcionlimpiar &Limpiar Ctrl+L\n"
                          "menuver &Ver\n"
                          "  opcionel_circuito El_circuito\n  a -\n  opcionplaca_arriba Placa_Arriba\n"
                          "  opcionplaca_abajo Placa_Abajo\n  b -\n  opcionprograma Programa\n"
                          "menudispositivo &Dispositivo\n"
                          "  opcionseleccionar &Seleccionar Ctrl+S\n  opcioinformacion &Informacion Ctrl+I\n"
                          "  lineaseparadora2 -\n  opcionleer Leer\n  opcionborrar Borrar\n"
                          "  opcionverificar Verificar\n  opciongravar Gravar\n"
                          "menuprogramador &Programador\n  opcioncomunicacion Provar/Comunicacion\n"
                          "menuskin &Skin\n"
                          "  MNUCamb B-Studio\n  MNUCamb Galaxy\n  MNUCamb Green\n  MNUCamb Mac\n"
                          "  MNUCamb Media\n  MNUCamb Metallic\n  MNUCamb Paper\n  MNUCamb TopSecret\n"
                          "  MNUCamb Web-II\n  MNUCamb winaqua\n  MNUCamb Zhelezo\n"
                          "opcioniraweb Ir a WEB\n"
                          "menuayuda Ay&uda\n"
                          "  opcpion_como_grabar Como_Grabar\n  opcion_como_leer Como_Leer\n"
                          "  opcion_como_editar Como_Editar\n"
                          "opcionacercade Acerca de\n");
}

TEST_F(SuperficieTest, EachButtonAndItsMenuEntryGiveTheSameResult)
{
    const std::string archivo = testing::TempDir() + "superficie.hex";
    std::ofstream(archivo, std::ios::binary) << ":0400100001020304E2\r\n:00000001FF\r\n";
    const char* entradas[] = {"opcionabrir",  "opcionguardar",   "opcionleer",  "opcionborrar",
                              "opciongravar", "opcionverificar", "opcioneditar"};
    for (int boton = 0; boton < 7; ++boton) {
        std::string resultados[2];
        for (const bool pormenu : {false, true}) {
            placa = Placa{}, abrir(); // a fresh board and window
            dialogo->elegir = archivo;
            pormenu ? entrada(entradas[boton]).trigger() : clic(ventana->boton(boton));
            resultados[pormenu] = resultado();
        }
        EXPECT_TRUE(resultados[0] == resultados[1]) << entradas[boton];
    }
}

// Not modal; loaded once while it stands open, and only its loading ends edit mode.
TEST_F(SuperficieTest, TheAboutBoxLoadsOnceAndClosesByAceptarEnterOrEsc)
{
    Form1& form = ventana->logica();
    for (const auto& [manera, cual] : {std::pair{"Aceptar", Qt::Key_unknown}, std::pair{"Enter", Qt::Key_Return},
                                       std::pair{"Esc", Qt::Key_Escape}}) {
        form.edit_Click();
        entrada("opcionacercade").trigger();
        QPointer<VentanaAbout> caja = ventana->frmAbout();
        ASSERT_TRUE(caja && caja->isVisible() && !caja->isModal() && !form.edicion().edicionhabilitada);
        form.edit_Click();
        entrada("opcionacercade").trigger();
        EXPECT_TRUE(ventana->frmAbout() == caja && form.edicion().edicionhabilitada);
        cual == Qt::Key_unknown ? caja->cmdOK().click() : QTest::keyClick(caja, cual);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_FALSE(caja) << manera;
    }
}

TEST_F(SuperficieTest, AssistiveTechnologyPressesAButton)
{
    QAccessibleInterface* leer = QAccessible::queryAccessibleInterface(&ventana->boton(2));
    ASSERT_TRUE(leer && leer->actionInterface());
    EXPECT_EQ(leer->text(QAccessible::Name), "LEER");
    leer->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_NE(ventana->txtinforme().texto().find("... Lectura Concluida!!!"), std::string::npos);
}

} // namespace eeprog::prueba
