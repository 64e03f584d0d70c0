#include "shell/qt/ventanaform1.h"

#include "shell/qt/barra.h"
#include "shell/qt/barraestado.h"
#include "shell/qt/bloqueo.h"
#include "shell/qt/botonimagen.h"
#include "shell/qt/cajainforme.h"
#include "shell/qt/cajamensajes.h"
#include "shell/qt/dialogocomun.h"
#include "shell/qt/letras.h"
#include "shell/qt/puertoserie.h"
#include "shell/qt/rejillas.h"
#include "shell/qt/twips.h"
#include "shell/qt/vistacaja.h"
#include "shell/qt/vistarejilla.h"

#include <QApplication>
#include <QMenuBar>
#include <QScreen>

namespace eeprog {

namespace {

constexpr int anchocliente = 9045;
constexpr int altocliente = 6225;
constexpr int arribabarraestado = 5970;

struct Palabras {
    const char* nombre;
    const char* palabra;
    const char* ayuda;
};

// The command row, left to right.
constexpr std::array<Palabras, 8> botones{{
    {"abrir", "ABRIR", "Carger el Archivo HEX o OBJ para Programar"},
    {"guardar", "GUARDAR", "Guardar el Archivo leido"},
    {"leer", "LEER", "Leer del Circuito Integrado"},
    {"borrar", "BORRAR", "Borrar el contenido del Dispositivo"},
    {"grabar", "GRABAR", "Programar el dispositivo"},
    {"verificar", "VERIFICAR", "Verificar el dispositivo"},
    {"edit", "EDITAR", "Editar  el programa"},
    {"editado", "EDITADO", "Editar  el programa"},
}};

QAction* opcion(QMenu* menu, const char* nombre, const char* texto, const char* atajo)
{
    QAction* accion = menu->addAction(QString::fromUtf8(texto));
    accion->setObjectName(QString::fromUtf8(nombre));
    accion->setShortcut(QKeySequence(QString::fromUtf8(atajo)));
    return accion;
}

VistaCaja* caja(VistaCaja::Letras letras, const QFont& fuente, const char* nombre, QWidget* lienzo)
{
    auto* nueva = new VistaCaja(letras, lienzo);
    nueva->setObjectName(QString::fromUtf8(nombre));
    nueva->setAccessibleName(QString::fromUtf8(nombre));
    nueva->setFont(fuente);
    return nueva;
}

} // namespace

Dependencias dependenciasreales()
{
    return {std::make_unique<PuertoSerie>(), std::make_unique<CajaMensajes>(), std::make_unique<RelojSistema>(),
            std::make_unique<DialogoComun>()};
}

VentanaForm1::VentanaForm1(Dependencias dependencias, QWidget* padre)
    : QMainWindow(padre), dependencias_(std::move(dependencias))
{
    setWindowTitle(QString::fromStdString(titulo));
    auto* lienzo = new QWidget(this);
    setCentralWidget(lienzo);
    crearcontroles(lienzo);
    crearmenu();
    skin_.registrar(Formulario::Form1, this);
    logica_.emplace(controles(), Servicios{*dependencias_.puerto, *dependencias_.reloj, *dependencias_.avisos, skin_,
                                           *dependencias_.CommonDialog1});
    conectareditores();
    conectarbotones();
    dimensionar();
}

// The widgets go before the grids and the logic they show.
VentanaForm1::~VentanaForm1()
{
    delete takeCentralWidget();
}

void VentanaForm1::crearcontroles(QWidget* lienzo)
{
    crearbotones(lienzo);
    txtinforme_ = new CajaInforme(lienzo);
    txtinforme_->setGeometry(rectangulo(120, 960, 8775, 735));
    txtinforme_->setAccessibleName(QStringLiteral("txtinforme"));
    rejillas_ = std::make_unique<Rejillas>(cuadriculas_, lienzo);
    crearcajas(lienzo);
    ProgressBar1_ = new Barra(lienzo);
    ProgressBar1_->setGeometry(rectangulo(120, 5640, 8655, 255));
    ProgressBar1_->setToolTip(QStringLiteral("Barra que muestra el progreso del proceso que se haya elegido"));
    StatusBar1_ = new BarraEstado(this);
    setStatusBar(StatusBar1_);
}

void VentanaForm1::crearbotones(QWidget* lienzo)
{
    for (std::size_t i = 0; i < botones.size(); ++i) {
        auto* boton =
            new BotonImagen(QString::fromUtf8(botones[i].palabra), QString::fromUtf8(botones[i].ayuda), lienzo);
        boton->setObjectName(QString::fromUtf8(botones[i].nombre));
        boton->setGeometry(rectangulo(1080 + 840 * static_cast<int>(i), 120, 750, 750));
        botones_[i] = boton;
    }
}

// The overlay boxes lie above the three grids and are not in the tab order.
void VentanaForm1::crearcajas(QWidget* lienzo)
{
    HEXcelda_ = caja(VistaCaja::Letras::texto, courier(9, true), "HEXcelda", lienzo);
    txtcelda_ = caja(VistaCaja::Letras::glifos, terminal(12), "txtcelda", lienzo);
}

void VentanaForm1::conectareditores()
{
    Edicion& edicion = logica_->edicion();
    editorhex_.emplace(cuadriculas_, *HEXcelda_, edicion, *dependencias_.timbre);
    editorascii_.emplace(cuadriculas_, *txtcelda_, edicion);
    cuadriculas_.fghex.EnterCell = [this] { editorhex_->fghex_EnterCell(); };
    cuadriculas_.fgascii.EnterCell = [this] { editorascii_->fgascii_EnterCell(); };
    HEXcelda_->KeyPress = [this](int& tecla) { editorhex_->HEXcelda_KeyPress(tecla); };
    HEXcelda_->Change = [this] { editorhex_->HEXcelda_Change(); };
    txtcelda_->KeyPress = [this](int& tecla) { editorascii_->txtcelda_KeyPress(tecla); };
    txtcelda_->Change = [this] { editorascii_->txtcelda_Change(); };
}

void VentanaForm1::conectarbotones()
{
    connect(botones_[0], &BotonImagen::Click, this, [this] { logica_->abrir_Click(); });
    connect(botones_[1], &BotonImagen::Click, this, [this] { logica_->guardar_Click(); });
    connect(botones_[2], &BotonImagen::Click, this, [this] { bloquearentrada([this] { logica_->leer_Click(); }); });
    connect(botones_[3], &BotonImagen::Click, this, [this] { logica_->borrar_Click(); });
    connect(botones_[4], &BotonImagen::Click, this, [this] { bloquearentrada([this] { logica_->grabar_Click(); }); });
    connect(botones_[5], &BotonImagen::Click, this,
            [this] { bloquearentrada([this] { logica_->verificar_Click(); }); });
    connect(botones_[6], &BotonImagen::Click, this, [this] { logica_->edit_Click(); });
    connect(botones_[7], &BotonImagen::Click, this, [this] { bloquearentrada([this] { logica_->editado_Click(); }); });
}

// A menu entry does what its button does, the button's look included. Salir ends the run
// at once: no question, nothing saved.
void VentanaForm1::crearmenu()
{
    QMenu* menuarchivo = menuBar()->addMenu(QStringLiteral("&Archivo"));
    connect(opcion(menuarchivo, "opcionabrir", "&Abrir", "Ctrl+A"), &QAction::triggered, this,
            [this] { logica_->abrir_Click(); });
    connect(opcion(menuarchivo, "opcionguardar", "&Guardar", "Ctrl+G"), &QAction::triggered, this,
            [this] { logica_->guardar_Click(); });
    menuarchivo->addSeparator()->setObjectName(QStringLiteral("lineaseparadora1"));
    connect(opcion(menuarchivo, "Opcionsalir", "&Salir", "Ctrl+X"), &QAction::triggered, qApp,
            [] { QCoreApplication::exit(0); });

    QMenu* menueditor = menuBar()->addMenu(QStringLiteral("&Edicion"));
    connect(opcion(menueditor, "opcioneditar", "&Editar", "Ctrl+E"), &QAction::triggered, this,
            [this] { logica_->edit_Click(); });
    connect(opcion(menueditor, "opcionlimpiar", "&Limpiar", "Ctrl+L"), &QAction::triggered, this,
            [this] { logica_->opcionlimpiar_Click(); });

    // Seleccionar and Informacion have no work behind them.
    QMenu* menudispositivo = menuBar()->addMenu(QStringLiteral("&Dispositivo"));
    opcion(menudispositivo, "opcionseleccionar", "&Seleccionar", "Ctrl+S");
    opcion(menudispositivo, "opcioinformacion", "&Informacion", "Ctrl+I");
    menudispositivo->addSeparator()->setObjectName(QStringLiteral("lineaseparadora2"));
    connect(opcion(menudispositivo, "opcionleer", "Leer", ""), &QAction::triggered, this,
            [this] { bloquearentrada([this] { logica_->leer_Click(); }); });
    connect(opcion(menudispositivo, "opcionborrar", "Borrar", ""), &QAction::triggered, this,
            [this] { logica_->borrar_Click(); });
    connect(opcion(menudispositivo, "opcionverificar", "Verificar", ""), &QAction::triggered, this,
            [this] { bloquearentrada([this] { logica_->verificar_Click(); }); });
    connect(opcion(menudispositivo, "opciongravar", "Gravar", ""), &QAction::triggered, this,
            [this] { bloquearentrada([this] { logica_->grabar_Click(); }); });
}

// The client area has a fixed size in twips; the window opens centred on the screen.
// The controls keep their places when it is resized; only the status bar follows. The
// status bar takes the height its font needs, which may be a little more than its share.
void VentanaForm1::dimensionar()
{
    const int barra = std::max(StatusBar1_->sizeHint().height(), pixeles(altocliente - arribabarraestado));
    const int alto = menuBar()->sizeHint().height() + pixeles(arribabarraestado) + barra;
    resize(pixeles(anchocliente), alto);
    if (const QScreen* pantalla = screen())
        move(pantalla->availableGeometry().center() - rect().center());
}

Controles VentanaForm1::controles()
{
    Botones b{*botones_[0], *botones_[1], *botones_[2], *botones_[3],
              *botones_[4], *botones_[5], *botones_[6], *botones_[7]};
    return {*txtinforme_, *StatusBar1_, *ProgressBar1_, b, cuadriculas_};
}

// The window's start-up runs when it is first shown, before it is on the screen.
void VentanaForm1::showEvent(QShowEvent* evento)
{
    if (!cargada_) {
        cargada_ = true;
        logica_->Form_Load();
        // fgascii comes first in the tab order, so the keyboard starts there.
        rejillas_->fgascii().setFocus(Qt::OtherFocusReason);
    }
    QMainWindow::showEvent(evento);
}

} // namespace eeprog
