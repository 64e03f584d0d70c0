#pragma once

#include "editor/acoplamiento.h"
#include "editor/cuadriculas.h"
#include "device/leido.h"
#include "editor/edicion.h"
#include "link/conexion.h"
#include "link/enlace.h"
#include "link/puerto.h"
#include "plataforma/abridor.h"
#include "plataforma/avisos.h"
#include "plataforma/barraprogreso.h"
#include "plataforma/boton.h"
#include "plataforma/cajatexto.h"
#include "plataforma/dialogo.h"
#include "plataforma/informe.h"
#include "plataforma/paneles.h"
#include "plataforma/reloj.h"
#include "plataforma/skin.h"
#include "device/pantallaoperacion.h"
#include "records/archivoabierto.h"
#include "records/registros.h"

#include <array>
#include <filesystem>
#include <string>

namespace eeprog {

inline const std::string titulo = "Programador de Memorias EEPROM AT28c64b       por       Varnimo";
inline const std::string encabezado = "Programador de memorias EEPROM AT28c64b por Varnimo";
inline const std::string conectado = "Programador..... C O N E C T A D O !!!!";
inline const std::string noconectado = "Programador..... NO EXISTE CONECCION";

// The picture buttons of the command row, left to right.
struct Botones {
    Boton& abrir;
    Boton& guardar;
    Boton& leer;
    Boton& borrar;
    Boton& grabar;
    Boton& verificar;
    Boton& edit;
    Boton& editado;

    std::array<Boton*, 8> todos() const;
};

// The controls of the main window, as its logic reaches them.
struct Controles {
    CajaTexto& txtinforme;
    Paneles& StatusBar1;
    BarraProgreso& ProgressBar1;
    Botones botones;
    Cuadriculas& cuadriculas;
};

// What the main window's logic uses beyond its own controls.
struct Servicios {
    Puerto& puerto;
    const Reloj& reloj;
    Avisos& avisos;
    Skin& skin;
    Dialogo& CommonDialog1;
    Abridor& abridor;
    // The program's own directory: skins and circuit documents lie beside the program,
    // wherever the file dialogs have taken the current directory.
    std::filesystem::path directorio = {};
};

// The logic of the main window: what each of its events does, and the data it owns.
// The window system comes in only through Controles and Servicios.
class Form1 {
public:
    Form1(Controles controles, Servicios servicios);
    ~Form1();
    Form1(const Form1&) = delete;
    Form1& operator=(const Form1&) = delete;

    // Runs once, when the window is first shown and before it becomes visible.
    void Form_Load();
    // Brings the buttons, the log and the grids into line with the skin.
    void actualizar();

    // Opens a file, takes its records and shows them in the grids.
    void abrir_Click();
    // Saves the last read of the chip.
    void guardar_Click();
    // The device operations, each inside the frame of the connection check.
    void leer_Click();
    void grabar_Click();
    void verificar_Click();
    // Programs the chip from the editor: rows 0 to the highest edited one.
    void editado_Click();
    // There is no erase command on the board: the button only shows its pressed look.
    void borrar_Click();

    // Edit mode on: the cell editors come up at the next cell entered, and editado can
    // be used. The button keeps its pressed look from then on.
    void edit_Click();
    // Every cell of fghex shows an erased byte and every cell of fgascii holds nothing.
    void opcionlimpiar_Click();

    // Loads the skin of the menu entry and dresses the window in it. Edit mode ends.
    void MNUCamb_Click(int index);
    // The circuit's picture and the board's program, opened by the desktop. Nothing here
    // reads them; a missing file shows nothing.
    void opcionel_circuito_Click();
    void opcionprograma_Click();

    const Edicion& edicion() const { return edicion_; }
    // The cell editors work on it too.
    Edicion& edicion() { return edicion_; }
    const Registros& registros() const { return registros_; }
    const ArchivoAbierto& archivo() const { return archivo_; }
    const Leido& leido() const { return leido_; }

private:
    void comprobarplaca();
    void abrirdocumento(const char* archivo);
    void conectareventos();
    Marco marco();
    PantallaOperacion pantallaoperacion();

    Controles controles_;
    Servicios servicios_;
    Enlace enlace_;
    Informe informe_;
    Edicion edicion_;
    Acoplamiento acoplamiento_;
    Registros registros_;
    ArchivoAbierto archivo_;
    Leido leido_;
};

} // namespace eeprog
