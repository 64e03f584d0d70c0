#include "shell/form1.h"

#include "device/grabacion.h"
#include "device/grabaredit.h"
#include "device/lectura.h"
#include "device/verificacion.h"
#include "editor/loadgrid.h"
#include "records/apertura.h"
#include "records/guardado.h"
#include "records/mostrarvector.h"
#include "shell/aplicarskin.h"
#include "shell/menuskin.h"

namespace eeprog {

std::array<Boton*, 8> Botones::todos() const
{
    return {&abrir, &guardar, &leer, &borrar, &grabar, &verificar, &edit, &editado};
}

Form1::Form1(Controles controles, Servicios servicios)
    : controles_(controles), servicios_(servicios), enlace_(servicios.puerto),
      informe_(controles.txtinforme, servicios.reloj), acoplamiento_(controles.cuadriculas, controles.StatusBar1)
{
    conectareventos();
}

// The grids may outlive the logic; they must not call it then.
Form1::~Form1()
{
    for (Rejilla* rejilla :
         {&controles_.cuadriculas.fgdir, &controles_.cuadriculas.fghex, &controles_.cuadriculas.fgascii}) {
        rejilla->Scroll = nullptr;
        rejilla->MouseUp = nullptr;
    }
}

void Form1::conectareventos()
{
    Cuadriculas& c = controles_.cuadriculas;
    c.fgdir.Scroll = [this] { acoplamiento_.fgdir_Scroll(); };
    c.fghex.Scroll = [this] { acoplamiento_.fghex_Scroll(); };
    c.fgascii.Scroll = [this] { acoplamiento_.fgascii_Scroll(); };
    c.fghex.MouseUp = [this] { acoplamiento_.fghex_MouseUp(); };
    c.fgascii.MouseUp = [this] { acoplamiento_.fgascii_MouseUp(); };
}

// The log is set, not added to, by its first line: whatever the box held goes.
void Form1::Form_Load()
{
    aplicarskin(servicios_.skin, Formulario::Form1, edicion_);
    actualizar();
    controles_.StatusBar1.panel(1, encabezado);
    controles_.txtinforme.ponertexto(encabezado + std::string(saltolinea));
    const Reloj& reloj = servicios_.reloj;
    informe_.linea("Fecha : " + reloj.fecha() + "    Hora : " + reloj.hora() + "           Cesion Iniciada...");
    comprobarplaca();
    dibujareditor(controles_.cuadriculas);
    controles_.botones.editado.habilitar(false);
}

// The start-up check reports to the log only: no box, no panel. Nothing keeps its result,
// since every operation checks again for itself.
void Form1::comprobarplaca()
{
    enlace_.serial();
    informe_.linea(comprobarconexion(enlace_) ? conectado : noconectado);
    enlace_.cerrar();
}

// Each setting asks the skin for its colour anew.
void Form1::actualizar()
{
    Skin& skin = servicios_.skin;
    for (Boton* boton : controles_.botones.todos())
        boton->ponercolor(skin.color());
    controles_.txtinforme.ponercolor(skin.color());
    colorearcuadriculas(controles_.cuadriculas, skin.color(), negro);
}

// A file that cannot be read ends the command there: the records, the grids and the
// names of the last file stay as they were.
void Form1::abrir_Click()
{
    Boton& abrir = controles_.botones.abrir;
    aspectopresionado(abrir, servicios_.skin);
    if (abrirarchivo(servicios_.CommonDialog1, archivo_, informe_)) {
        ponerenvector(archivo_, registros_, servicios_.avisos);
        mostrarvector(registros_, archivo_, {controles_.cuadriculas, controles_.StatusBar1, informe_});
    }
    aspectonormal(abrir, servicios_.skin);
}

void Form1::guardar_Click()
{
    Boton& guardar = controles_.botones.guardar;
    aspectopresionado(guardar, servicios_.skin);
    guardararchivo(servicios_.CommonDialog1, leido_.textoleido, informe_, servicios_.avisos);
    aspectonormal(guardar, servicios_.skin);
}

Marco Form1::marco()
{
    return Marco(enlace_, {controles_.StatusBar1, informe_, servicios_.avisos, servicios_.skin});
}

PantallaOperacion Form1::pantallaoperacion()
{
    return {controles_.StatusBar1, controles_.ProgressBar1, informe_};
}

// The port stays open while the grids are filled; the frame closes it afterwards.
void Form1::leer_Click()
{
    marco().ejecutar(controles_.botones.leer, palabras::leer, [this] {
        lectura(enlace_, leido_, pantallaoperacion());
        informe_.lineaconhora("... Lectura Concluida!!!");
        loadgrid(controles_.cuadriculas, leido_.vectorleido);
    });
}

// The words of success say that the run came to its end, not that every echo was right.
void Form1::grabar_Click()
{
    marco().ejecutar(controles_.botones.grabar, palabras::grabar, [this] {
        grabacion(enlace_, registros_, pantallaoperacion());
        controles_.StatusBar1.panel(1, "G R A V A C I O N    E X I T O S A ...!!!");
        informe_.lineaconhora("... Grabacion Exitosa!!!");
    });
}

void Form1::verificar_Click()
{
    marco().ejecutar(controles_.botones.verificar, palabras::verificar, [this] {
        verificacion(enlace_, registros_, pantallaoperacion());
        informe_.lineaconhora("... Termina Verificacion!!!");
    });
}

// As with a file, success means the run came to its end: the echoes are not looked at.
void Form1::editado_Click()
{
    marco().ejecutar(controles_.botones.editado, palabras::editado, [this] {
        grabaredit(enlace_, controles_.cuadriculas, edicion_.filaeditada, pantallaoperacion());
        controles_.StatusBar1.panel(1, "G R A V A C I O N    E X I T O S A ...!!!");
        const std::string bytes = std::to_string(bytesgrabados(edicion_.filaeditada));
        informe_.lineaconhora("... Grabacion Exitosa!!!... " + bytes + " Bytes Grabados");
    });
}

void Form1::edit_Click()
{
    aspectopresionado(controles_.botones.edit, servicios_.skin);
    controles_.botones.editado.habilitar(true);
    edicion_.edicionhabilitada = true;
    informe_.lineaconhora("... Opcion de Edicion Habilitada");
}

void Form1::opcionlimpiar_Click()
{
    Cuadriculas& c = controles_.cuadriculas;
    for (int fila = 0; fila < filasrejilla; ++fila)
        for (int columna = 0; columna < columnasrejilla; ++columna) {
            c.fghex.TextMatrix(fila, columna, "FF");
            c.fgascii.TextMatrix(fila, columna, "");
        }
}

void Form1::MNUCamb_Click(int index)
{
    const EntradaSkin& entrada = skinsdelmenu.at(static_cast<std::size_t>(index));
    servicios_.skin.cargar((servicios_.directorio / entrada.archivo).string());
    aplicarskin(servicios_.skin, Formulario::Form1, edicion_);
    actualizar();
}

void Form1::opcionel_circuito_Click()
{
    abrirdocumento("circuito/Eeprog.bmp");
}

void Form1::opcionprograma_Click()
{
    abrirdocumento("circuito/at28c64b.hex");
}

void Form1::abrirdocumento(const char* archivo)
{
    servicios_.abridor.abrir((servicios_.directorio / archivo).string());
}

void Form1::borrar_Click()
{
    aspectopresionado(controles_.botones.borrar, servicios_.skin);
    aspectonormal(controles_.botones.borrar, servicios_.skin);
}

} // namespace eeprog
