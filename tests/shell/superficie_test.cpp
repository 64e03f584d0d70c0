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
