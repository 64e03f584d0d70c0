#include "aplicacion.h"
#include "dialogofalso.h"
#include "pantallafalsa.h"
#include "placa.h"
#include "plataforma/informe.h"
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
#include <utility>

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

// A new line moves neither the view nor the caret: past what the box shows, the newest
// lines lie below until the user scrolls.
TEST_F(VentanaTest, ANewLogLineMovesNeitherTheViewNorTheCaret)
{
    Placa placa;
    auto ventana = abrir(placa);
    CajaInforme& log = ventana->txtinforme();
    RelojFijo reloj;
    Informe informe(log, reloj);
    for (int i = 0; i < 20; ++i)
        informe.linea("... Lectura Concluida!!!");
    QScrollBar& barra = *log.verticalScrollBar();
    ASSERT_GT(barra.maximum(), 5);
    EXPECT_EQ(barra.value(), 0);
    EXPECT_EQ(log.textCursor().position(), 0);

    barra.setValue(3);
    QTextCursor caret = log.textCursor();
    caret.setPosition(10);
    log.setTextCursor(caret);
    barra.setValue(3);
    informe.linea("... Programacion Concluida!!!");
    EXPECT_EQ(barra.value(), 3);
    EXPECT_EQ(log.textCursor().position(), 10);
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

// Tab and Shift+Tab run through the grids, the log and the buttons, passing by the
// overlay boxes and a disabled EDITADO; Space presses the button that has the focus.
TEST_F(VentanaTest, TabRunsThroughTheGridsTheLogAndTheButtonsAndSpacePressesOne)
{
    Placa placa;
    auto ventana = abrir(placa);
    ventana->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(ventana.get()));
    auto recorrer = [](int veces, Qt::KeyboardModifiers modo = {}) {
        std::vector<std::string> nombres;
        for (int i = 0; i < veces; ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab, modo);
            nombres.push_back(QApplication::focusWidget()->objectName().toStdString());
        }
        return nombres;
    };
    EXPECT_EQ(ventana->rejillas().fgascii().objectName(), "fgascii");
    EXPECT_TRUE(ventana->rejillas().fgascii().hasFocus());
    EXPECT_EQ(recorrer(12), (std::vector<std::string>{"fghex", "fgdir", "txtinforme", "abrir", "guardar", "leer",
                                                      "borrar", "grabar", "verificar", "edit", "fgascii", "fghex"}));
    EXPECT_EQ(recorrer(3, Qt::ShiftModifier), (std::vector<std::string>{"fgascii", "edit", "verificar"}));
    EXPECT_EQ(ventana->txtinforme().texto().find('\t'), std::string::npos);

    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    EXPECT_TRUE(ventana->boton(7).isEnabled()) << "EDITAR was pressed";
    EXPECT_EQ(recorrer(2), (std::vector<std::string>{"editado", "fgascii"}));
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

// A board that, on the first byte of an operation, has the user click on some buttons.
class PuertoImpaciente : public PuertoPlaca {
public:
    PuertoImpaciente(Placa& placa, Bitacora& bitacora) : PuertoPlaca(placa), bitacora_(bitacora) {}
    std::vector<QWidget*> botones;

    bool abrir() override
    {
        EXPECT_FALSE(abierto()) << "an operation started inside another";
        bitacora_.anotar("abrir");
        return PuertoPlaca::abrir();
    }
    void escribir(const std::string& datos) override
    {
        for (QWidget* boton : std::exchange(botones, {})) {
            const QPointF centro = QRectF(boton->rect()).center();
            for (QEvent::Type tipo : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease})
                QCoreApplication::postEvent(boton, new QMouseEvent(tipo, centro, boton->mapToGlobal(centro),
                                                                   Qt::LeftButton, Qt::LeftButton, Qt::NoModifier));
        }
        PuertoPlaca::escribir(datos);
    }

private:
    Bitacora& bitacora_;
};

TEST_F(VentanaTest, ClicksGivenWhileAnOperationRunsAreServedAfterItInTheirOrder)
{
    Placa placa;
    Bitacora bitacora;
    auto puerto = std::make_unique<PuertoImpaciente>(placa, bitacora);
    PuertoImpaciente& impaciente = *puerto;
    VentanaForm1 ventana(Dependencias{std::move(puerto), std::make_unique<AvisosFalsos>(),
                                      std::make_unique<RelojFijo>(), std::make_unique<DialogoFalso>(&bitacora)});
    ventana.show();
    bitacora.sucesos.clear();
    impaciente.botones = {&ventana.boton(1), &ventana.boton(2)}; // GUARDAR, then LEER again
    QTest::mouseClick(&ventana.boton(2), Qt::LeftButton);
    EXPECT_EQ(bitacora.sucesos, std::vector<std::string>{"abrir"});
    QCoreApplication::processEvents();
    EXPECT_EQ(bitacora.sucesos, (std::vector<std::string>{"abrir", "dialogo guardar", "abrir"}));
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
