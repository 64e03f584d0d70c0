#include "aplicacion.h"
#include "dialogofalso.h"
#include "pantallafalsa.h"
#include "placa.h"
#include "puertoplaca.h"
#include "shell/qt/barra.h"
#include "shell/qt/barraestado.h"
#include "shell/qt/botonimagen.h"
#include "shell/qt/cajainforme.h"
#include "shell/qt/rejillas.h"
#include "shell/qt/twips.h"
#include "shell/qt/ventanaform1.h"
#include "shell/qt/vistarejilla.h"

#include <QApplication>
#include <QFrame>
#include <QMenuBar>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <fstream>

namespace eeprog {
namespace {

using namespace prueba;

// The real window on Qt's offscreen platform, with the board in the same process.
class VentanaTest : public ::testing::Test {
protected:
    static void SetUpTestSuite() { crearaplicacion(); }

    std::unique_ptr<VentanaForm1> abrir(Placa& placa, bool abrible = true)
    {
        auto puerto = std::make_unique<PuertoPlaca>(placa, abrible);
        puerto_ = puerto.get();
        auto avisos = std::make_unique<AvisosFalsos>();
        avisos_ = avisos.get();
        auto dialogo = std::make_unique<DialogoFalso>();
        dialogo_ = dialogo.get();
        auto ventana = std::make_unique<VentanaForm1>(
            Dependencias{std::move(puerto), std::move(avisos), std::make_unique<RelojFijo>(), std::move(dialogo)});
        ventana->show();
        return ventana;
    }

    PuertoPlaca* puerto_ = nullptr;
    AvisosFalsos* avisos_ = nullptr;
    DialogoFalso* dialogo_ = nullptr;
};

const std::string cabecera = "Programador de memorias EEPROM AT28c64b por Varnimo\r\n"
                             "Fecha : 23/11/2026    Hora : 10:11:12           Cesion Iniciada...\r\n";

TEST_F(VentanaTest, OpensWithItsTitleThreeLogLinesAndTheHeadingInPanelOne)
{
    Placa placa;
    auto ventana = abrir(placa);
    EXPECT_EQ(ventana->windowTitle().toStdString(), "Programador de Memorias EEPROM AT28c64b       por       Varnimo");
    EXPECT_EQ(ventana->txtinforme().texto(), cabecera + "Programador..... C O N E C T A D O !!!!\r\n");
    EXPECT_EQ(ventana->StatusBar1().textopanel(1).toStdString(), "Programador de memorias EEPROM AT28c64b por Varnimo");
    for (int panel = 2; panel <= 5; ++panel)
        EXPECT_TRUE(ventana->StatusBar1().textopanel(panel).isEmpty());
}

TEST_F(VentanaTest, StartUpRunsOnceHoweverOftenTheWindowIsShown)
{
    Placa placa;
    auto ventana = abrir(placa);
    ventana->hide();
    ventana->show();
    EXPECT_EQ(puerto_->aperturas(), 1);
}

TEST_F(VentanaTest, ControlsStandWhereTheirTwipsPutThem)
{
    Placa placa;
    auto ventana = abrir(placa);
    EXPECT_EQ(ventana->boton(0).geometry(), rectangulo(1080, 120, 750, 750));
    EXPECT_EQ(ventana->boton(7).geometry(), rectangulo(6960, 120, 750, 750));
    EXPECT_EQ(ventana->txtinforme().geometry(), rectangulo(120, 960, 8775, 735));
    EXPECT_EQ(ventana->rejillas().fgascii().geometry(), rectangulo(5475, 1800, 3420, 3735));
    EXPECT_EQ(ventana->centralWidget()->width(), pixeles(9045));
}

TEST_F(VentanaTest, StatusPanelsStandSideBySideAtTheirWidthsAndKeepTheWholeTextAtHand)
{
    Placa placa;
    auto ventana = abrir(placa);
    BarraEstado& barra = ventana->StatusBar1();
    const int medio = barra.height() / 2;
    const std::vector<std::pair<int, const char*>> lugares{{4400, "Panel 1"}, {4600, "Panel 2"}, {6400, "Panel 2"},
                                                           {6600, "Panel 3"}, {7400, "Panel 4"}, {8100, "Panel 5"}};
    for (const auto& [twips, nombre] : lugares) {
        QWidget* panel = barra.childAt(pixeles(twips), medio);
        ASSERT_NE(panel, nullptr) << twips;
        EXPECT_EQ(panel->accessibleDescription().toStdString(), nombre) << twips;
    }
    EXPECT_EQ(barra.childAt(pixeles(100), medio)->toolTip().toStdString(),
              "Programador de memorias EEPROM AT28c64b por Varnimo");
}

TEST_F(VentanaTest, TheGridsLieOneOverTheOtherWithFgasciiOnTop)
{
    Placa placa;
    auto ventana = abrir(placa);
    const Rejillas& r = ventana->rejillas();
    ASSERT_TRUE(r.fgascii().isVisible());
    QWidget* lienzo = ventana->centralWidget();
    const QPoint solapado(pixeles(5600), pixeles(2500)); // inside both fghex and fgascii
    EXPECT_TRUE(r.fgascii().isAncestorOf(lienzo->childAt(solapado)));
    const QPoint dirhex(pixeles(700), pixeles(2500)); // inside both fgdir and fghex
    EXPECT_TRUE(r.fghex().isAncestorOf(lienzo->childAt(dirhex)));
}

TEST_F(VentanaTest, EditadoIsDisabledAndTheOtherButtonsLieFlatInTheSkinColour)
{
    Placa placa;
    auto ventana = abrir(placa);
    for (int i = 0; i < 7; ++i) {
        EXPECT_TRUE(ventana->boton(i).isEnabled()) << i;
        EXPECT_EQ(ventana->boton(i).apariencia(), Apariencia::plana);
        EXPECT_EQ(ventana->boton(i).palette().color(QPalette::Window), QColor(221, 247, 224));
    }
    EXPECT_FALSE(ventana->boton(7).isEnabled());
    EXPECT_EQ(ventana->boton(6).toolTip().toStdString(), "Editar  el programa");
    EXPECT_EQ(ventana->boton(6).accessibleName().toStdString(), "EDITAR");
}

TEST_F(VentanaTest, TheLogKeepsWhatTheUserTypesAndTheNextLineFollowsIt)
{
    Placa placa;
    auto ventana = abrir(placa);
    CajaInforme& log = ventana->txtinforme();
    log.moveCursor(QTextCursor::End);
    QTest::keyClicks(&log, "hola");
    EXPECT_EQ(log.texto(), cabecera + "Programador..... C O N E C T A D O !!!!\r\nhola");
}

TEST_F(VentanaTest, TheAbrirButtonShowsTheFilesBytesInTheGridsAndNamesItInTheStatusBar)
{
    Placa placa;
    auto ventana = abrir(placa);
    const std::string nombre = testing::TempDir() + "ventana.hex";
    std::ofstream(nombre, std::ios::binary) << ":0300300002337A1E\r\n:00000001FF\r\n";
    dialogo_->elegir = nombre;
    QTest::mouseClick(&ventana->boton(0), Qt::LeftButton);
    const Cuadriculas& c = ventana->cuadriculas();
    EXPECT_EQ(c.fghex.TextMatrix(3, 2), "7A");
    EXPECT_EQ(c.fgascii.TextMatrix(3, 2), "z");
    EXPECT_EQ(ventana->StatusBar1().textopanel(1).toStdString(), nombre);
    EXPECT_EQ(ventana->StatusBar1().textopanel(2).toStdString(), "50 Bytes = 32 Hexa");
    EXPECT_TRUE(ventana->txtinforme().texto().ends_with(
        "10:11:12... Archivo = ventana.hex      Tamaño = 50 Bytes = 32 Hexa\r\n"));
    EXPECT_EQ(ventana->boton(0).apariencia(), Apariencia::plana);
}

TEST_F(VentanaTest, TheKeyboardStartsInFgasciiAndTabGoesOnToFghexThenFgdir)
{
    Placa placa;
    auto ventana = abrir(placa);
    ventana->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(ventana.get()));
    Rejillas& r = ventana->rejillas();
    EXPECT_TRUE(r.fgascii().hasFocus());
    QTest::keyClick(&r.fgascii(), Qt::Key_Down);
    EXPECT_EQ(r.fgascii().rejilla().Row(), 1);
    QTest::keyClick(&r.fgascii(), Qt::Key_Tab);
    EXPECT_TRUE(r.fghex().hasFocus());
    QTest::keyClick(&r.fghex(), Qt::Key_Tab);
    EXPECT_TRUE(r.fgdir().hasFocus());
}

TEST_F(VentanaTest, CtrlAAndCtrlGShowTheOpenAndTheSaveDialog)
{
    Placa placa;
    auto ventana = abrir(placa);
    ventana->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(ventana.get()));
    QTest::keyClick(ventana.get(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(ventana.get(), Qt::Key_G, Qt::ControlModifier);
    ASSERT_EQ(dialogo_->mostrados.size(), 2u);
    EXPECT_FALSE(dialogo_->mostrados[0].guardar);
    EXPECT_TRUE(dialogo_->mostrados[1].guardar);
}

TEST_F(VentanaTest, FgasciisScrollBarMovesTheRowsOfAllThreeGrids)
{
    Placa placa;
    auto ventana = abrir(placa);
    Rejillas& r = ventana->rejillas();
    r.fgascii().verticalScrollBar()->setValue(2048);
    for (VistaRejilla* vista : {&r.fgdir(), &r.fghex(), &r.fgascii()}) {
        EXPECT_EQ(vista->rejilla().TopRow(), 2048);
        EXPECT_EQ(vista->verticalScrollBar()->value(), 2048);
    }
    EXPECT_EQ(r.fgdir().rectangulocelda(2048, 0).top(), r.fgascii().rectangulocelda(2048, 0).top())
        << "the rows line up across the grids";
}

TEST_F(VentanaTest, AClickOnAByteShowsItInPanelsThreeToFive)
{
    Placa placa;
    auto ventana = abrir(placa);
    ponerbyte(ventana->cuadriculas(), 2, 1, 0x41);
    VistaRejilla& fghex = ventana->rejillas().fghex();
    const QPoint punto = fghex.viewport()->mapFromParent(fghex.rectangulocelda(2, 1).center());
    QTest::mouseClick(fghex.viewport(), Qt::LeftButton, {}, punto);
    EXPECT_EQ(ventana->StatusBar1().textopanel(3).toStdString(), "Dir= 21");
    EXPECT_EQ(ventana->StatusBar1().textopanel(4).toStdString(), "Hex= 41");
    EXPECT_EQ(ventana->StatusBar1().textopanel(5).toStdString(), "Ascii= A");
}

TEST_F(VentanaTest, TheLeerButtonReadsTheChipIntoTheGridsWithThePanelAndTheBarAtTheirEnd)
{
    Placa placa;
    for (int direccion = 0; direccion < Placa::tamano; ++direccion)
        placa.chip()[static_cast<std::size_t>(direccion)] = static_cast<unsigned char>(direccion * 7);
    auto ventana = abrir(placa);
    QTest::mouseClick(&ventana->boton(2), Qt::LeftButton);
    const Cuadriculas& c = ventana->cuadriculas();
    EXPECT_EQ(c.fghex.TextMatrix(0, 1), "07");
    EXPECT_EQ(c.fgascii.TextMatrix(511, 15), std::string(1, static_cast<char>(8191 * 7)));
    EXPECT_EQ(c.fghex.TextMatrix(512, 0), "FF");
    EXPECT_EQ(ventana->StatusBar1().textopanel(1).toStdString(), "8192  Bytes leidos = 2000H");
    EXPECT_EQ(ventana->ProgressBar1().maximum(), 512);
    EXPECT_EQ(ventana->ProgressBar1().value(), 511);
    EXPECT_EQ(ventana->boton(2).apariencia(), Apariencia::plana);
    EXPECT_FALSE(puerto_->abierto());
}

// A board that, on the first byte of an operation, has the user click LEER again.
class PuertoImpaciente : public PuertoPlaca {
public:
    using PuertoPlaca::PuertoPlaca;
    QWidget* boton = nullptr;
    void escribir(const std::string& datos) override
    {
        if (boton != nullptr) {
            const QPointF centro = QRectF(boton->rect()).center();
            for (QEvent::Type tipo : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease})
                QCoreApplication::postEvent(boton, new QMouseEvent(tipo, centro, boton->mapToGlobal(centro),
                                                                   Qt::LeftButton, Qt::LeftButton, Qt::NoModifier));
            boton = nullptr;
        }
        PuertoPlaca::escribir(datos);
    }
};

TEST_F(VentanaTest, ClicksGivenWhileAnOperationRunsAreDroppedNotReplayed)
{
    Placa placa;
    auto puerto = std::make_unique<PuertoImpaciente>(placa);
    PuertoImpaciente& impaciente = *puerto;
    VentanaForm1 ventana(Dependencias{std::move(puerto), std::make_unique<AvisosFalsos>(),
                                      std::make_unique<RelojFijo>(), std::make_unique<DialogoFalso>()});
    ventana.show();
    impaciente.boton = &ventana.boton(2);
    QTest::mouseClick(&ventana.boton(2), Qt::LeftButton);
    QCoreApplication::processEvents();
    EXPECT_EQ(impaciente.aperturas(), 2) << "the start-up check and one read";
    QTest::mouseClick(&ventana.boton(2), Qt::LeftButton);
    EXPECT_EQ(impaciente.aperturas(), 3) << "the button works again afterwards";
}

TEST_F(VentanaTest, AProgressBarWithNothingToCountShowsEmptyRatherThanBusy)
{
    Placa placa;
    auto ventana = abrir(placa);
    Barra& barra = ventana->ProgressBar1();
    barra.maximo(512);
    barra.valor(600);
    EXPECT_EQ(barra.value(), 512);
    barra.maximo(0);
    EXPECT_GT(barra.maximum(), barra.minimum());
    EXPECT_EQ(barra.value(), barra.minimum());
}

// Salir and the close box both end the run with no question; the event loop returning
// is the proof, and a timer fails the test if it does not.
int correrhasta(const std::function<void()>& accion)
{
    bool agotado = false;
    QTimer::singleShot(0, accion);
    QTimer::singleShot(5000, [&] {
        agotado = true;
        QCoreApplication::exit(99);
    });
    const int codigo = QCoreApplication::exec();
    EXPECT_FALSE(agotado);
    return codigo;
}

TEST_F(VentanaTest, CtrlXEndsTheRunFromTheLog)
{
    Placa placa;
    auto ventana = abrir(placa);
    ventana->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(ventana.get()));
    ventana->txtinforme().setFocus();
    EXPECT_EQ(correrhasta([&] { QTest::keyClick(&ventana->txtinforme(), Qt::Key_X, Qt::ControlModifier); }), 0);
}

TEST_F(VentanaTest, TheCloseBoxEndsTheRun)
{
    Placa placa;
    auto ventana = abrir(placa);
    correrhasta([&] { ventana->close(); });
    EXPECT_FALSE(ventana->isVisible());
}

} // namespace
} // namespace eeprog
