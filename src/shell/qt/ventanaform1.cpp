#include "shell/qt/ventanaform1.h"

#include "shell/qt/barra.h"
#include "shell/qt/barraestado.h"
#include "shell/qt/botonimagen.h"
#include "shell/qt/cajainforme.h"
#include "shell/qt/cajamensajes.h"
#include "shell/qt/dialogocomun.h"
#include "shell/qt/letras.h"
#include "link/qt/puertoserie.h"
#include "shell/qt/rejillas.h"
#include "shell/menuskin.h"
#include "shell/qt/twips.h"
#include "shell/qt/ventanaabout.h"
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

QAction* opcion(QWidget* menu, const char* nombre, const char* texto, const char* atajo = "")
{
    auto* accion = new QAction(QString::fromUtf8(texto), menu);
    accion->setObjectName(QString::fromUtf8(nombre));
    accion->setShortcut(QKeySequence(QString::fromUtf8(atajo)));
    menu->addAction(accion);
    return accion;
}

QMenu* menu(QMenuBar* barra, const char* nombre, const char* texto)
{
    QMenu* nuevo = barra->addMenu(QString::fromUtf8(texto));
    nuevo->setObjectName(QString::fromUtf8(nombre));
    nuevo->menuAction()->setObjectName(QString::fromUtf8(nombre));
    return nuevo;
}

void separador(QMenu* menu, const char* nombre)
{
    menu->addSeparator()->setObjectName(QString::fromUtf8(nombre));
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

std::filesystem::path directorioprograma()
{
    return QCoreApplication::applicationDirPath().toStdString();
}

Dependencias dependenciasreales()
{
    return {std::make_unique<PuertoSerie>(), std::make_unique<CajaMensajes>(), std::make_unique<RelojSistema>(),
            std::make_unique<DialogoComun>()};
}

VentanaForm1::VentanaForm1(Dependencias dependencias, QWidget* padre)
    : QMainWindow(padre), dependencias_(std::move(dependencias)), puerto_(*dependencias_.puerto, repintado_)
{
    setWindowTitle(QString::fromStdString(titulo));
    auto* lienzo = new QWidget(this);
    setCentralWidget(lienzo);
    setWindowIcon(QIcon(QStringLiteral(":/iconos/eeprog-32.png")));
    crearcontroles(lienzo);
    skin_.registrar(Formulario::Form1, this);
    logica_.emplace(controles(),
                    Servicios{puerto_, *dependencias_.reloj, *dependencias_.avisos, skin_,
                              *dependencias_.CommonDialog1, *dependencias_.abridor, dependencias_.directorio});
    conectareditores();
    prepararordenes();
    conectarbotones();
    crearmenu();
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
    txtinforme_->setObjectName(QStringLiteral("txtinforme"));
    txtinforme_->setAccessibleName(QStringLiteral("txtinforme"));
    rejillas_ = std::make_unique<Rejillas>(cuadriculas_, lienzo);
    crearcajas(lienzo);
    ordenartabulacion();
    ProgressBar1_ = new Barra(repintado_, lienzo);
    ProgressBar1_->setGeometry(rectangulo(120, 5640, 8655, 255));
    ProgressBar1_->setToolTip(QStringLiteral("Barra que muestra el progreso del proceso que se haya elegido"));
    StatusBar1_ = new BarraEstado(repintado_, this);
    setStatusBar(StatusBar1_);
}

void VentanaForm1::crearbotones(QWidget* lienzo)
{
    for (std::size_t i = 0; i < botones.size(); ++i) {
        const QPixmap icono(QStringLiteral(":/iconos/%1.png").arg(QString::fromUtf8(botones[i].nombre)));
        auto* boton =
            new BotonImagen(QString::fromUtf8(botones[i].palabra), QString::fromUtf8(botones[i].ayuda), icono, lienzo);
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

// Tab runs through the grids, the log and the buttons, in that order. The overlay boxes
// hold their places in it but take the focus only from the program and the mouse, so Tab
// passes them by, and goes on from each to the control behind its place. A disabled
// EDITADO is passed by too.
void VentanaForm1::ordenartabulacion()
{
    const Rejillas& r = *rejillas_;
    std::vector<QWidget*> orden{&r.fgascii(), &r.fghex(), txtcelda_, &r.fgdir(), txtinforme_};
    orden.insert(orden.end(), botones_.begin(), botones_.end() - 1);
    orden.push_back(HEXcelda_);
    orden.push_back(botones_.back());
    for (std::size_t i = 1; i < orden.size(); ++i)
        QWidget::setTabOrder(orden[i - 1], orden[i]);
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

// A device operation holds the window from its first byte to its last: nothing in it serves
// the event loop, so the clicks and keys given meanwhile wait in the platform's queue and
// are served after it, in their order. A second operation asked for during the first starts
// when the first is over, never inside it.
void VentanaForm1::prepararordenes()
{
    Form1& f = *logica_;
    ordenes_ = {[&f] { f.abrir_Click(); },  [&f] { f.guardar_Click(); }, [&f] { f.leer_Click(); },
                [&f] { f.borrar_Click(); }, [&f] { f.grabar_Click(); },  [&f] { f.verificar_Click(); },
                [&f] { f.edit_Click(); },   [&f] { f.editado_Click(); }};
}

void VentanaForm1::conectarbotones()
{
    for (std::size_t i = 0; i < botones_.size(); ++i)
        connect(botones_[i], &BotonImagen::Click, this, [this, i] { ordenes_[i](); });
}

// A menu entry that matches a button does what the button does, its look included.
// Salir ends the run at once: no question, nothing saved. The entries with nothing
// connected stand in the menus, enabled, and do nothing.
void VentanaForm1::crearmenu()
{
    QMenuBar* barra = menuBar();
    auto orden = [this](QAction* accion, std::size_t boton) {
        connect(accion, &QAction::triggered, this, [this, boton] { ordenes_[boton](); });
    };
    QMenu* menuarchivo = menu(barra, "menuarchivo", "&Archivo");
    orden(opcion(menuarchivo, "opcionabrir", "&Abrir", "Ctrl+A"), 0);
    orden(opcion(menuarchivo, "opcionguardar", "&Guardar", "Ctrl+G"), 1);
    separador(menuarchivo, "lineaseparadora1");
    connect(opcion(menuarchivo, "Opcionsalir", "&Salir", "Ctrl+X"), &QAction::triggered, qApp,
            [] { QCoreApplication::exit(0); });

    QMenu* menueditor = menu(barra, "menueditor", "&Edicion");
    orden(opcion(menueditor, "opcioneditar", "&Editar", "Ctrl+E"), 6);
    connect(opcion(menueditor, "opcionlimpiar", "&Limpiar", "Ctrl+L"), &QAction::triggered, this,
            [this] { logica_->opcionlimpiar_Click(); });

    crearmenuver(menu(barra, "menuver", "&Ver"));

    QMenu* menudispositivo = menu(barra, "menudispositivo", "&Dispositivo");
    opcion(menudispositivo, "opcionseleccionar", "&Seleccionar", "Ctrl+S");
    opcion(menudispositivo, "opcioinformacion", "&Informacion", "Ctrl+I");
    separador(menudispositivo, "lineaseparadora2");
    orden(opcion(menudispositivo, "opcionleer", "Leer"), 2);
    orden(opcion(menudispositivo, "opcionborrar", "Borrar"), 3);
    orden(opcion(menudispositivo, "opcionverificar", "Verificar"), 5);
    orden(opcion(menudispositivo, "opciongravar", "Gravar"), 4);

    opcion(menu(barra, "menuprogramador", "&Programador"), "opcioncomunicacion", "Provar/Comunicacion");
    crearmenuskin(menu(barra, "menuskin", "&Skin"));
    opcion(barra, "opcioniraweb", "Ir a WEB");

    QMenu* menuayuda = menu(barra, "menuayuda", "Ay&uda");
    opcion(menuayuda, "opcpion_como_grabar", "Como_Grabar");
    opcion(menuayuda, "opcion_como_leer", "Como_Leer");
    opcion(menuayuda, "opcion_como_editar", "Como_Editar");
    connect(opcion(barra, "opcionacercade", "Acerca de"), &QAction::triggered, this,
            &VentanaForm1::opcionacercade_Click);
}

void VentanaForm1::crearmenuver(QMenu* menuver)
{
    connect(opcion(menuver, "opcionel_circuito", "El_circuito"), &QAction::triggered, this,
            [this] { logica_->opcionel_circuito_Click(); });
    separador(menuver, "a");
    opcion(menuver, "opcionplaca_arriba", "Placa_Arriba");
    opcion(menuver, "opcionplaca_abajo", "Placa_Abajo");
    separador(menuver, "b");
    connect(opcion(menuver, "opcionprograma", "Programa"), &QAction::triggered, this,
            [this] { logica_->opcionprograma_Click(); });
}

void VentanaForm1::crearmenuskin(QMenu* menuskin)
{
    for (std::size_t index = 0; index < skinsdelmenu.size(); ++index) {
        const std::string caption(skinsdelmenu[index].caption);
        QAction* entrada = opcion(menuskin, "MNUCamb", caption.c_str());
        connect(entrada, &QAction::triggered, this, [this, index] { logica_->MNUCamb_Click(static_cast<int>(index)); });
    }
}

// A box that stands open is only brought forward: loading it again would dress it again.
void VentanaForm1::opcionacercade_Click()
{
    if (!frmAbout_)
        frmAbout_ = new VentanaAbout(skin_, logica_->edicion(), this);
    frmAbout_->show();
    frmAbout_->raise();
    frmAbout_->activateWindow();
}

// The client area has a fixed size in twips; the window opens centred on the screen.
// The controls keep their places when it is resized; only the status bar follows. The
// status bar takes the height its font needs, which may be a little more than its share.
void VentanaForm1::dimensionar()
{
    const int barra = std::max(StatusBar1_->sizeHint().height(), pixeles(altocliente - arribabarraestado));
    StatusBar1_->setFixedHeight(barra);
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
