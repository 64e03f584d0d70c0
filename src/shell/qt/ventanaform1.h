#pragma once

#include "editor/cuadriculas.h"
#include "editor/editorascii.h"
#include "editor/editorhex.h"
#include "link/puerto.h"
#include "plataforma/abridor.h"
#include "plataforma/avisos.h"
#include "plataforma/dialogo.h"
#include "plataforma/reloj.h"
#include "plataforma/timbre.h"
#include "shell/form1.h"
#include "shell/qt/abridorescritorio.h"
#include "shell/qt/motorskin.h"
#include "shell/qt/repintado.h"
#include "shell/qt/timbresistema.h"
#include "shell/qt/ventanaabout.h"

#include <QMainWindow>
#include <QPointer>

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>

namespace eeprog {

class Barra;
class BarraEstado;
class BotonImagen;
class CajaInforme;
class Rejillas;
class VistaCaja;

// The directory of the program's file, whatever the current directory is.
std::filesystem::path directorioprograma();

// What the window talks to outside itself. Tests put recording fakes in their place.
struct Dependencias {
    std::unique_ptr<Puerto> puerto;
    std::unique_ptr<Avisos> avisos;
    std::unique_ptr<Reloj> reloj;
    std::unique_ptr<Dialogo> CommonDialog1;
    std::unique_ptr<Timbre> timbre = std::make_unique<TimbreSistema>();
    std::unique_ptr<Abridor> abridor = std::make_unique<AbridorEscritorio>();
    // Where the skins and the circuit documents lie.
    std::filesystem::path directorio = directorioprograma();
};

// The serial port of the system, message boxes and file dialogs on the screen, and the
// system clock.
Dependencias dependenciasreales();

// The main window: its controls in their places, and the logic of Form1 behind them.
class VentanaForm1 : public QMainWindow {
    Q_OBJECT
public:
    explicit VentanaForm1(Dependencias dependencias = dependenciasreales(), QWidget* padre = nullptr);
    ~VentanaForm1() override;

    CajaInforme& txtinforme() const { return *txtinforme_; }
    BarraEstado& StatusBar1() const { return *StatusBar1_; }
    Barra& ProgressBar1() const { return *ProgressBar1_; }
    BotonImagen& boton(int indice) const { return *botones_.at(static_cast<std::size_t>(indice)); }
    Rejillas& rejillas() const { return *rejillas_; }
    Cuadriculas& cuadriculas() { return cuadriculas_; }
    VistaCaja& HEXcelda() const { return *HEXcelda_; }
    VistaCaja& txtcelda() const { return *txtcelda_; }
    Form1& logica() { return *logica_; }
    // The about box while it stands open, else null.
    VentanaAbout* frmAbout() const { return frmAbout_; }

    // Shows the about box beside the window, loading it first if it is not open.
    void opcionacercade_Click();

protected:
    void showEvent(QShowEvent* evento) override;

private:
    void crearcontroles(QWidget* lienzo);
    void crearbotones(QWidget* lienzo);
    void crearmenu();
    void crearmenuver(QMenu* menu);
    void crearmenuskin(QMenu* menu);
    void prepararordenes();
    void conectarbotones();
    void crearcajas(QWidget* lienzo);
    void ordenartabulacion();
    void conectareditores();
    void dimensionar();
    Controles controles();

    Dependencias dependencias_;
    // The operations' progress is painted while they wait on the port.
    Repintado repintado_;
    PuertoPintado puerto_;
    MotorSkin skin_;
    Cuadriculas cuadriculas_;
    CajaInforme* txtinforme_ = nullptr;
    BarraEstado* StatusBar1_ = nullptr;
    Barra* ProgressBar1_ = nullptr;
    std::array<BotonImagen*, 8> botones_{};
    // What each button does, for its menu entry to do the same.
    std::array<std::function<void()>, 8> ordenes_;
    QPointer<VentanaAbout> frmAbout_;
    std::unique_ptr<Rejillas> rejillas_;
    VistaCaja* HEXcelda_ = nullptr;
    VistaCaja* txtcelda_ = nullptr;
    std::optional<Form1> logica_;
    std::optional<EditorHex> editorhex_;
    std::optional<EditorAscii> editorascii_;
    bool cargada_ = false;
};

} // namespace eeprog
