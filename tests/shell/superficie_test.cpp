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
#include "shell/qt/ventanaabout.h"
#include "shell/qt/ventanaform1.h"
#include "shell/qt/vistacaja.h"
#include "shell/qt/vistarejilla.h"

#include <QAccessible>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace eeprog {
namespace {

using namespace prueba;

// What a person can see of a window after a command: the log, the panels, the bar, the
// chip, and every look each button took on the way.
struct Resultado {
    std::string log;
    std::vector<std::string> paneles;
    int valor = 0;
    int maximo = 0;
    std::vector<unsigned char> chip;
    std::vector<std::vector<Apariencia>> aspectos;
    std::size_t avisos = 0;
    std::size_t dialogos = 0;
    friend bool operator==(const Resultado&, const Resultado&) = default;
};

void PrintTo(const Resultado& r, std::ostream* salida)
{
    *salida << "log " << testing::PrintToString(r.log) << " paneles " << testing::PrintToString(r.paneles) << " barra "
            << r.valor << "/" << r.maximo << " avisos " << r.avisos << " dialogos " << r.dialogos << " aspectos";
    for (const auto& vistos : r.aspectos) {
        *salida << " [";
        for (Apariencia a : vistos)
            *salida << static_cast<int>(a);
        *salida << "]";
    }
}

// Keeps each look a button shows: the look is painted at once when it changes.
class Mirador : public QObject {
public:
    explicit Mirador(BotonImagen& boton) : boton_(boton) { boton.installEventFilter(this); }
    std::vector<Apariencia> vistos;

protected:
    bool eventFilter(QObject*, QEvent* evento) override
    {
        if (evento->type() == QEvent::Paint && (vistos.empty() || vistos.back() != boton_.apariencia()))
            vistos.push_back(boton_.apariencia());
        return false;
    }

private:
    BotonImagen& boton_;
};

// The real window on the offscreen platform, with the board in the same process and the
// skins and documents of the source tree beside it.
class Ventana {
public:
    explicit Ventana(std::filesystem::path directorio = EEPROG_FUENTES)
    {
        auto avisos = std::make_unique<AvisosFalsos>();
        avisos_ = avisos.get();
        auto dialogo = std::make_unique<DialogoFalso>();
        dialogo_ = dialogo.get();
        auto abridor = std::make_unique<AbridorFalso>();
        abridor_ = abridor.get();
        auto puerto = std::make_unique<PuertoPlaca>(placa);
        puerto_ = puerto.get();
        ventana = std::make_unique<VentanaForm1>(
            Dependencias{std::move(puerto), std::move(avisos), std::make_unique<RelojFijo>(), std::move(dialogo),
                         std::make_unique<TimbreSistema>(), std::move(abridor), std::move(directorio)});
        ventana->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(ventana.get()));
        for (int i = 0; i < 8; ++i)
            miradores_.push_back(std::make_unique<Mirador>(ventana->boton(i)));
    }

    QAction& accion(const char* nombre) const
    {
        auto* hallada = ventana->findChild<QAction*>(QString::fromUtf8(nombre));
        EXPECT_NE(hallada, nullptr) << nombre;
        return *hallada;
    }

    Resultado resultado() const
    {
        Resultado r{ventana->txtinforme().texto(),
                    {},
                    ventana->ProgressBar1().value(),
                    ventana->ProgressBar1().maximum(),
                    {placa.chip().begin(), placa.chip().end()},
                    {},
                    avisos_->mostrados.size(),
                    dialogo_->mostrados.size()};
        for (int panel = 1; panel <= BarraEstado::cantidad; ++panel)
            r.paneles.push_back(ventana->StatusBar1().textopanel(panel).toStdString());
        for (const auto& mirador : miradores_)
            r.aspectos.push_back(mirador->vistos);
        return r;
    }

    QColor fondo(const QWidget& control, QPalette::ColorRole papel = QPalette::Window) const
    {
        return control.palette().color(papel);
    }

    Placa placa;
    std::unique_ptr<VentanaForm1> ventana;
    AvisosFalsos* avisos_ = nullptr;
    DialogoFalso* dialogo_ = nullptr;
    AbridorFalso* abridor_ = nullptr;
    PuertoPlaca* puerto_ = nullptr;

private:
    std::vector<std::unique_ptr<Mirador>> miradores_;
};

class SuperficieTest : public ::testing::Test {
protected:
    static void SetUpTestSuite() { crearaplicacion(); }
};

// Each button and the menu entry that matches it, tried on two windows alike: the log,
// panels, bar, chip, dialogs and the looks of the buttons on the way come out the same.
TEST_F(SuperficieTest, EachButtonAndItsMenuEntryGiveTheSameResult)
{
    const std::string archivo = testing::TempDir() + "superficie.hex";
    std::ofstream(archivo, std::ios::binary) << ":0400100001020304E2\r\n:00000001FF\r\n";
    const std::vector<std::pair<int, const char*>> pares{
        {0, "opcionabrir"},  {1, "opcionguardar"},   {2, "opcionleer"},  {3, "opcionborrar"},
        {4, "opciongravar"}, {5, "opcionverificar"}, {6, "opcioneditar"}};
    for (const auto& [boton, entrada] : pares) {
        Ventana porboton;
        Ventana pormenu;
        for (Ventana* v : {&porboton, &pormenu}) {
            v->dialogo_->elegir = archivo;
            v->placa.chip()[0x10] = 0x55;
        }
        QTest::mouseClick(&porboton.ventana->boton(boton), Qt::LeftButton);
        pormenu.accion(entrada).trigger();
        const Resultado r = porboton.resultado();
        EXPECT_EQ(r, pormenu.resultado()) << entrada;
        // EDITAR stays pressed; the others come back to rest.
        const std::vector<Apariencia> esperados = boton == 6
                                                      ? std::vector{Apariencia::tridimensional}
                                                      : std::vector{Apariencia::tridimensional, Apariencia::plana};
        EXPECT_EQ(r.aspectos[static_cast<std::size_t>(boton)], esperados) << entrada;
    }
}

TEST_F(SuperficieTest, TheEntriesWithNothingBehindThemAndADisabledEditadoChangeNothing)
{
    Ventana v;
    v.ventana->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(v.ventana.get()));
    const Resultado antes = v.resultado();
    const int aperturas = v.puerto_->aperturas();
    for (const char* nombre :
         {"opcionplaca_arriba", "opcionplaca_abajo", "opcionseleccionar", "opcioinformacion", "opcioncomunicacion",
          "opcioniraweb", "opcpion_como_grabar", "opcion_como_leer", "opcion_como_editar"}) {
        QAction& accion = v.accion(nombre);
        EXPECT_TRUE(accion.isEnabled() && accion.isVisible()) << nombre;
        accion.trigger();
    }
    QTest::keyClick(v.ventana.get(), Qt::Key_S, Qt::ControlModifier);
    QTest::keyClick(v.ventana.get(), Qt::Key_I, Qt::ControlModifier);
    QTest::mouseClick(&v.ventana->boton(7), Qt::LeftButton);
    EXPECT_EQ(v.resultado(), antes);
    EXPECT_EQ(v.puerto_->aperturas(), aperturas);
    EXPECT_TRUE(v.abridor_->abiertos.empty());
    EXPECT_EQ(v.ventana->frmAbout(), nullptr);
}

TEST_F(SuperficieTest, TheMenuBarHasItsEntriesInOrderWithTheirAccessKeys)
{
    Ventana v;
    QStringList barra;
    for (QAction* accion : v.ventana->menuBar()->actions())
        barra << accion->text();
    EXPECT_EQ(barra, (QStringList{"&Archivo", "&Edicion", "&Ver", "&Dispositivo", "&Programador", "&Skin", "Ir a WEB",
                                  "Ay&uda", "Acerca de"}));
    QStringList skins;
    for (QAction* accion : v.ventana->findChild<QMenu*>(QStringLiteral("menuskin"))->actions())
        skins << accion->text();
    EXPECT_EQ(skins, (QStringList{"B-Studio", "Galaxy", "Green", "Mac", "Media", "Metallic", "Paper", "TopSecret",
                                  "Web-II", "winaqua", "Zhelezo"}));
    EXPECT_EQ(v.accion("opcionlimpiar").shortcut(), QKeySequence(QStringLiteral("Ctrl+L")));
    EXPECT_EQ(v.accion("opcioinformacion").shortcut(), QKeySequence(QStringLiteral("Ctrl+I")));
}

// A dark skin: the buttons, the log and the grids take its colour, the lines stay black,
// the window and its menus wear the skin, edit mode ends, and nothing the user had changes.
TEST_F(SuperficieTest, ASkinChangeRecoloursTheWindowAndEndsEditMode)
{
    Ventana v;
    Cuadriculas& c = v.ventana->cuadriculas();
    v.ventana->logica().edit_Click();
    c.fgascii.TextMatrix(3, 4, "Z");
    const std::string log = v.ventana->txtinforme().texto();

    v.accion("MNUCamb").trigger(); // the first of them: B-Studio
    const auto entradas = v.ventana->findChild<QMenu*>(QStringLiteral("menuskin"))->actions();
    entradas.at(7)->trigger(); // TopSecret

    const QColor color(0x7E, 0x8A, 0x6E);
    EXPECT_FALSE(v.ventana->logica().edicion().edicionhabilitada);
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(v.fondo(v.ventana->boton(i)), color) << i;
    EXPECT_EQ(v.ventana->boton(6).apariencia(), Apariencia::tridimensional);
    EXPECT_TRUE(v.ventana->boton(7).isEnabled());
    EXPECT_EQ(v.fondo(v.ventana->txtinforme(), QPalette::Base), color);
    EXPECT_EQ(v.fondo(v.ventana->txtinforme(), QPalette::Text), QColor(Qt::black));
    for (const Rejilla* r : {&c.fgdir, &c.fghex, &c.fgascii}) {
        EXPECT_EQ(r->BackColor(), (Color{0x7E, 0x8A, 0x6E}));
        EXPECT_EQ(r->GridColor(), negro);
    }
    EXPECT_EQ(v.fondo(*v.ventana), QColor(0x3F, 0x46, 0x34));
    EXPECT_EQ(v.fondo(*v.ventana->findChild<QMenu*>(QStringLiteral("menuarchivo"))), QColor(0x3F, 0x46, 0x34));
    EXPECT_EQ(v.ventana->txtinforme().texto(), log);
    EXPECT_EQ(c.fgascii.TextMatrix(3, 4), "Z");

    // Edit mode has ended: a click on a cell brings up no box.
    VistaRejilla& fghex = v.ventana->rejillas().fghex();
    QTest::mouseClick(fghex.viewport(), Qt::LeftButton, {},
                      fghex.viewport()->mapFromParent(fghex.rectangulocelda(2, 2).center()));
    EXPECT_FALSE(v.ventana->HEXcelda().isVisible());
}

// Without the file the skin stays as it was, the steps after the load still run, and the
// window goes on working.
TEST_F(SuperficieTest, AMissingSkinFileKeepsTheSkinAndTheWindowUsable)
{
    const std::filesystem::path vacio = std::filesystem::path(testing::TempDir()) / "sinskins";
    std::filesystem::create_directories(vacio);
    Ventana v(vacio);
    v.ventana->logica().edit_Click();
    v.ventana->findChild<QMenu*>(QStringLiteral("menuskin"))->actions().at(2)->trigger();
    EXPECT_FALSE(v.ventana->logica().edicion().edicionhabilitada);
    EXPECT_EQ(v.fondo(v.ventana->boton(0)), QColor(221, 247, 224));
    QTest::mouseClick(&v.ventana->boton(2), Qt::LeftButton);
    EXPECT_NE(v.ventana->txtinforme().texto().find("... Lectura Concluida!!!"), std::string::npos);
}

// The documents are the desktop's to show: nothing of the program changes, and the port
// stays shut.
TEST_F(SuperficieTest, TheCircuitEntriesHandTheDocumentsToTheDesktopAndLoadNothing)
{
    Ventana v("/opt/eeprog");
    const Resultado antes = v.resultado();
    const int aperturas = v.puerto_->aperturas();
    v.accion("opcionel_circuito").trigger();
    v.accion("opcionprograma").trigger();
    EXPECT_EQ(v.abridor_->abiertos,
              (std::vector<std::string>{"/opt/eeprog/circuito/Eeprog.bmp", "/opt/eeprog/circuito/at28c64b.hex"}));
    EXPECT_EQ(v.resultado(), antes);
    EXPECT_EQ(v.puerto_->aperturas(), aperturas);
    EXPECT_EQ(v.ventana->logica().registros().totalvector, 0);
    EXPECT_EQ(v.ventana->cuadriculas().fghex.TextMatrix(0, 0), "FF");
}

// The box is loaded once while it stands open: only its loading ends edit mode.
TEST_F(SuperficieTest, AcercaDeEndsEditModeOnlyWhenTheBoxIsLoaded)
{
    Ventana v;
    Form1& form = v.ventana->logica();
    QAction& acercade = v.accion("opcionacercade");
    form.edit_Click();
    acercade.trigger();
    QPointer<VentanaAbout> caja = v.ventana->frmAbout();
    ASSERT_TRUE(caja);
    EXPECT_TRUE(caja->isVisible());
    EXPECT_FALSE(caja->isModal());
    EXPECT_FALSE(form.edicion().edicionhabilitada);

    form.edit_Click();
    acercade.trigger();
    EXPECT_EQ(v.ventana->frmAbout(), caja);
    EXPECT_TRUE(form.edicion().edicionhabilitada);

    caja->cmdOK().click();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(caja);
    acercade.trigger();
    EXPECT_FALSE(form.edicion().edicionhabilitada);
}

TEST_F(SuperficieTest, TheAboutBoxShowsItsFixedTextsAndClosesByAceptarEnterOrEsc)
{
    Ventana v;
    v.accion("opcionacercade").trigger();
    VentanaAbout* caja = v.ventana->frmAbout();
    ASSERT_NE(caja, nullptr);
    EXPECT_EQ(caja->windowTitle(), "Acerca del Programador de Varnimo");
    QStringList textos;
    for (QLabel* etiqueta : caja->findChildren<QLabel*>())
        textos << etiqueta->text();
    EXPECT_TRUE(textos.contains("Programador de Memorias EEPROM AT28C64B"));
    EXPECT_TRUE(textos.contains("Vercion 2.0"));
    EXPECT_TRUE(textos.contains(QString::fromUtf8(consejos)));
    EXPECT_EQ(std::string(consejos).find("Consulte Ver"), 89U);
    EXPECT_EQ(caja->palette().color(QPalette::Window), QColor(221, 247, 224));

    caja->iraweb().click();
    EXPECT_TRUE(caja->isVisible());
    for (Qt::Key tecla : {Qt::Key_Return, Qt::Key_Escape}) {
        QPointer<VentanaAbout> abierta = v.ventana->frmAbout();
        QTest::keyClick(abierta, tecla);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_FALSE(abierta) << tecla;
        v.accion("opcionacercade").trigger();
    }
}

// Screen readers and desktop automation see the buttons as push buttons they can press,
// the panels by their text, the log as editable text and the bar by its value.
TEST_F(SuperficieTest, AssistiveTechnologyReachesTheButtonsPanelsLogAndBar)
{
    Ventana v;
    QAccessibleInterface* leer = QAccessible::queryAccessibleInterface(&v.ventana->boton(2));
    ASSERT_NE(leer, nullptr);
    EXPECT_EQ(leer->role(), QAccessible::Button);
    EXPECT_EQ(leer->text(QAccessible::Name), "LEER");
    EXPECT_EQ(leer->text(QAccessible::Description), "Leer del Circuito Integrado");
    ASSERT_NE(leer->actionInterface(), nullptr);
    leer->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_NE(v.ventana->txtinforme().texto().find("... Lectura Concluida!!!"), std::string::npos);

    QAccessibleInterface* editado = QAccessible::queryAccessibleInterface(&v.ventana->boton(7));
    EXPECT_TRUE(editado->state().disabled);

    auto* panel1 = v.ventana->StatusBar1().findChildren<QLabel*>().at(0);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(panel1)->text(QAccessible::Name), "8192  Bytes leidos = 2000H");
    QAccessibleInterface* log = QAccessible::queryAccessibleInterface(&v.ventana->txtinforme());
    EXPECT_EQ(log->role(), QAccessible::EditableText);
    ASSERT_NE(log->textInterface(), nullptr);
    QAccessibleInterface* barra = QAccessible::queryAccessibleInterface(&v.ventana->ProgressBar1());
    EXPECT_EQ(barra->role(), QAccessible::ProgressBar);
    EXPECT_EQ(barra->valueInterface()->currentValue().toInt(), v.ventana->ProgressBar1().value());
    EXPECT_GT(v.ventana->ProgressBar1().value(), 0);
}

} // namespace
} // namespace eeprog
