#include "ventanaprueba.h"

#include <fstream>
#include <set>

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
        superficie += b.objectName().toStdString() + ' ' + b.accessibleName().toStdString() + ": " +
                      b.toolTip().toStdString() + (b.isEnabled() ? "\n" : " (-)\n");
    }
    auto entrada = [](const QAction* a) {
        return a->objectName().toStdString() + ' ' + (a->isSeparator() ? std::string("-") : a->text().toStdString()) +
               (a->shortcut().isEmpty() ? "" : ' ' + a->shortcut().toString().toStdString());
    };
    for (const QAction* a : ventana->menuBar()->actions()) {
        superficie += entrada(a) + ':';
        for (const QAction* b : a->menu() ? a->menu()->actions() : QList<QAction*>{})
            superficie += ' ' + entrada(b) + ',';
        superficie += '\n';
    }
    EXPECT_EQ(
        superficie,
        "abrir ABRIR: Carger el Archivo HEX o OBJ para Programar\nguardar GUARDAR: Guardar el Archivo leido\n"
        "leer LEER: Leer del Circuito Integrado\nborrar BORRAR: Borrar el contenido del Dispositivo\n"
        "grabar GRABAR: Programar el dispositivo\nverificar VERIFICAR: Verificar el dispositivo\n"
        "edit EDITAR: Editar  el programa\neditado EDITADO: Editar  el programa (-)\n"
        "menuarchivo &Archivo: opcionabrir &Abrir Ctrl+A, opcionguardar &Guardar Ctrl+G, lineaseparadora1 -, "
        "Opcionsalir &Salir Ctrl+X,\nmenueditor &Edicion: opcioneditar &Editar Ctrl+E, opcionlimpiar &Limpiar Ctrl+L,\n"
        "menuver &Ver: opcionel_circuito El_circuito, a -, opcionplaca_arriba Placa_Arriba, "
        "opcionplaca_abajo Placa_Abajo, b -, opcionprograma Programa,\n"
        "menudispositivo &Dispositivo: opcionseleccionar &Seleccionar Ctrl+S, opcioinformacion &Informacion Ctrl+I, "
        "lineaseparadora2 -, opcionleer Leer, opcionborrar Borrar, opcionverificar Verificar, opciongravar Gravar,\n"
        "menuprogramador &Programador: opcioncomunicacion Provar/Comunicacion,\nmenuskin &Skin: MNUCamb B-Studio, "
        "MNUCamb Galaxy, MNUCamb Green, MNUCamb Mac, MNUCamb Media, MNUCamb Metallic, MNUCamb Paper, "
        "MNUCamb TopSecret, MNUCamb Web-II, MNUCamb winaqua, MNUCamb Zhelezo,\nopcioniraweb Ir a WEB:\n"
        "menuayuda Ay&uda: opcpion_como_grabar Como_Grabar, opcion_como_leer Como_Leer, "
        "opcion_como_editar Como_Editar,\nopcionacercade Acerca de:\n");
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
    placa = Placa{}, abrir();
    clic(ventana->boton(2)); // LEER
    EXPECT_EQ(ventana->StatusBar1().textopanel(1).toStdString(), "8192  Bytes leidos = 2000H");
}

// Each button shows its picture, enabled or not: far more colours than a bare frame has.
TEST_F(SuperficieTest, EachButtonShowsItsPicture)
{
    for (int boton = 0; boton < 8; ++boton) {
        const QImage imagen = ventana->boton(boton).grab().toImage();
        std::set<QRgb> colores;
        for (int y = 0; y < imagen.height(); ++y)
            for (int x = 0; x < imagen.width(); ++x)
                colores.insert(imagen.pixel(x, y));
        EXPECT_GT(colores.size(), 8u) << boton;
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
        QTest::keyClick(caja, Qt::Key_A); // another key leaves it open
        ASSERT_TRUE(caja && caja->isVisible() && !caja->isModal() && !form.edicion().edicionhabilitada);
        form.edit_Click();
        entrada("opcionacercade").trigger();
        EXPECT_TRUE(ventana->frmAbout() == caja && form.edicion().edicionhabilitada);
        cual == Qt::Key_unknown ? caja->cmdOK().click() : QTest::keyClick(caja, cual);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_FALSE(caja) << manera;
    }
}

TEST_F(SuperficieTest, AssistiveTechnologyPressesAButtonWhichThenLooksAsBefore)
{
    QAccessibleInterface* leer = QAccessible::queryAccessibleInterface(&ventana->boton(2));
    ASSERT_TRUE(leer && leer->actionInterface());
    EXPECT_EQ(leer->text(QAccessible::Name), "LEER");
    leer->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_NE(ventana->txtinforme().texto().find("... Lectura Concluida!!!"), std::string::npos);
    const BotonImagen& boton = ventana->boton(2); // flat again, with its thin border
    EXPECT_EQ(std::pair(boton.frameStyle(), boton.lineWidth()), std::pair(QFrame::Box | QFrame::Plain, 1));
}

} // namespace eeprog::prueba
