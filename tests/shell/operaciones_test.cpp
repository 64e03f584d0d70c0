#include "aplicacion.h"
#include "chipprueba.h"
#include "dialogofalso.h"
#include "emulador.h"
#include "pantallafalsa.h"
#include "placa.h"
#include "puertoplaca.h"
#include "shell/form1.h"
#include "shell/qt/puertoserie.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <optional>
#include <thread>

namespace eeprog {
namespace {

using namespace prueba;
namespace fs = std::filesystem;

const std::string ejemplo = ":0300100041424327\r\n:00000001FF\r\n";

// The cells of rows desde to hasta - 1, run together.
std::string celdas(const Rejilla& rejilla, int desde, int hasta)
{
    std::string texto;
    for (int fila = desde; fila < hasta; ++fila)
        for (int columna = 0; columna < columnasrejilla; ++columna)
            texto += rejilla.TextMatrix(fila, columna);
    return texto;
}

std::string enhex(const Chip& chip)
{
    std::string texto;
    char pieza[3];
    for (unsigned char byte : chip) {
        std::snprintf(pieza, sizeof pieza, "%02X", byte);
        texto += pieza;
    }
    return texto;
}

// The device commands of the main window's logic, over recording controls and a board.
class Operaciones : public ::testing::Test {
protected:
    static void SetUpTestSuite() { dibujareditor(inicial); }
    void SetUp() override
    {
        carpeta = testing::TempDir() + "operacionesXXXXXX";
        ASSERT_NE(mkdtemp(carpeta.data()), nullptr);
    }
    void TearDown() override { fs::remove_all(carpeta); }

    void crear(Puerto& puerto)
    {
        form.emplace(
            Controles{txtinforme,
                      StatusBar1,
                      ProgressBar1,
                      {botones[0], botones[1], botones[2], botones[3], botones[4], botones[5], botones[6], botones[7]},
                      cuadriculas},
            Servicios{puerto, reloj, avisos, skin, dialogo, abridor});
    }
    void abrir(const std::string& texto)
    {
        const std::string ruta = carpeta + "/archivo.hex";
        std::ofstream(ruta, std::ios::binary) << texto;
        dialogo.elegir = ruta;
        form->abrir_Click();
    }
    // What the log gained while the command ran.
    std::string agregado(const std::function<void()>& orden)
    {
        const std::size_t antes = txtinforme.contenido.size();
        orden();
        return txtinforme.contenido.substr(antes);
    }
    // The looks the buttons took, their colours left out.
    std::vector<std::string> aspectos() const
    {
        std::vector<std::string> pasos = bitacora.sucesos;
        std::erase_if(pasos, [](const std::string& p) { return p.find(" color ") != std::string::npos; });
        return pasos;
    }
    void muestran(const Chip& chip)
    {
        EXPECT_EQ(celdas(cuadriculas.fghex, 0, 512), enhex(chip));
        EXPECT_EQ(celdas(cuadriculas.fgascii, 0, 512), std::string(chip.begin(), chip.end()));
        EXPECT_EQ(celdas(cuadriculas.fghex, 512, 513), std::string(32, 'F'));
    }

    static inline Cuadriculas inicial;
    std::string carpeta;
    Bitacora bitacora;
    CajaFalsa txtinforme;
    PanelesFalsos StatusBar1;
    BarraFalsa ProgressBar1;
    std::array<BotonFalso, 8> botones{BotonFalso{"abrir", &bitacora},  BotonFalso{"guardar", &bitacora},
                                      BotonFalso{"leer", &bitacora},   BotonFalso{"borrar", &bitacora},
                                      BotonFalso{"grabar", &bitacora}, BotonFalso{"verificar", &bitacora},
                                      BotonFalso{"edit", &bitacora},   BotonFalso{"editado", &bitacora}};
    Cuadriculas cuadriculas = inicial;
    DialogoFalso dialogo;
    RelojFijo reloj;
    AvisosFalsos avisos;
    SkinFalso skin;
    AbridorFalso abridor;
    std::optional<Form1> form;
};

TEST_F(Operaciones, ReadingFillsTheGridsAndLogsItsEndLeavingTheRecordsAlone)
{
    Placa placa;
    azar(placa.chip(), 5);
    PuertoPlaca puerto(placa);
    crear(puerto);
    abrir(ejemplo);
    const Registros antes = form->registros();
    EXPECT_EQ(agregado([&] { form->leer_Click(); }),
              "10:11:12... Coneccion Exitosa!!!........Leyendo\r\n10:11:12... Lectura Concluida!!!\r\n");
    EXPECT_EQ(form->leido().textoleido, lineashex(placa.chip()));
    muestran(placa.chip());
    EXPECT_EQ(form->registros().vector, antes.vector);
    EXPECT_EQ(form->registros().totalvector, 9);

    // A second read starts its text anew, and its check and extra check go out again.
    placa.chip()[0x20] = 0x5A;
    form->leer_Click();
    EXPECT_EQ(form->leido().textoleido, lineashex(placa.chip()));
    ASSERT_EQ(puerto.enviados().size(), 2 * 10754u);
    EXPECT_EQ(puerto.enviados().substr(10754), puerto.enviados().substr(0, 10754));
    EXPECT_EQ(puerto.enviados().substr(10754, 3), "ccr");
}

TEST_F(Operaciones, ProgrammingEndsWithTheSuccessWordsWhateverTheEchoes)
{
    struct Caso {
        OpcionesPlaca opciones;
        std::optional<std::string> archivo;
        std::string trafico; // after the check
        double tope;
    };
    const std::vector<Caso> casos{
        {{}, std::nullopt, "", 2},
        {{.ecoerroneo = 2}, ejemplo, std::string("w\x03\x00\x10\x00", 5) + "ABC", 11},
    };
    for (const Caso& caso : casos) {
        Placa placa(caso.opciones);
        PuertoPlaca puerto(placa);
        crear(puerto);
        if (caso.archivo)
            abrir(*caso.archivo);
        EXPECT_EQ(agregado([&] { form->grabar_Click(); }),
                  "10:11:12... Coneccion Exitosa .........Gravando!!!\r\n10:11:12... Grabacion Exitosa!!!\r\n");
        EXPECT_EQ(puerto.enviados(), "c" + caso.trafico);
        EXPECT_EQ(StatusBar1.textos[1], "G R A V A C I O N    E X I T O S A ...!!!");
        EXPECT_EQ(ProgressBar1.tope, caso.tope);
        EXPECT_TRUE(avisos.mostrados.empty());
    }
}

// Row 0 goes out from the window's own grids even with nothing edited, yet the log counts
// no byte. A board that hangs after the check changes none of it: no echo is looked at.
TEST_F(Operaciones, ProgrammingFromTheEditorWithNothingEditedSendsRowZeroAndCountsNoByte)
{
    cuadriculas.fgascii.TextMatrix(0, 3, "Z");
    for (OpcionesPlaca opciones : {OpcionesPlaca{}, OpcionesPlaca{.silenciosa = true}}) {
        SCOPED_TRACE(opciones.silenciosa ? "silenciosa" : "normal");
        Placa placa(opciones);
        PuertoPlaca puerto(placa);
        crear(puerto);
        bitacora.sucesos.clear();
        EXPECT_EQ(agregado([&] { form->editado_Click(); }),
                  "10:11:12... Coneccion Exitosa .........Gravando del Editor!!!\r\n"
                  "10:11:12... Grabacion Exitosa!!!... 0 Bytes Grabados\r\n");
        EXPECT_EQ(puerto.enviados(), std::string("cw\x10\x00\x00\x00\xFF\xFF\xFFZ", 10) + std::string(12, '\xFF'));
        EXPECT_EQ(StatusBar1.textos[1], "G R A V A C I O N    E X I T O S A ...!!!");
        EXPECT_EQ(ProgressBar1.tope, 16);
        EXPECT_EQ(ProgressBar1.actual, 16);
        EXPECT_EQ(aspectos(), (std::vector<std::string>{"editado tridimensional", "editado plana"}));
        EXPECT_FALSE(puerto.abierto());
        EXPECT_TRUE(avisos.mostrados.empty());
    }
}

TEST_F(Operaciones, WithoutABoardEveryOperationStopsAtTheCheckAndChangesNothing)
{
    struct Orden {
        void (Form1::*click)();
        std::string boton;
        std::string falla;
    };
    const std::vector<Orden> ordenes{{&Form1::leer_Click, "leer", palabras::leer.falla},
                                     {&Form1::grabar_Click, "grabar", palabras::grabar.falla},
                                     {&Form1::verificar_Click, "verificar", palabras::verificar.falla},
                                     {&Form1::editado_Click, "editado", palabras::editado.falla}};
    for (const Orden& orden : ordenes) {
        for (bool abrible : {true, false}) {
            SCOPED_TRACE(orden.boton + (abrible ? " muda" : " sin puerto"));
            Placa placa({.muda = true});
            PuertoPlaca puerto(placa, abrible);
            crear(puerto);
            abrir(ejemplo);
            const std::string rejilla = celdas(cuadriculas.fghex, 0, 512);
            bitacora.sucesos.clear();
            avisos.mostrados.clear();
            EXPECT_EQ(agregado([&] { ((*form).*orden.click)(); }), "10:11:12" + orden.falla + "\r\n");
            EXPECT_EQ(puerto.enviados(), abrible ? "c" : "");
            EXPECT_EQ(StatusBar1.textos[1], panelfalla);
            EXPECT_EQ(avisos.mostrados, std::vector<Aviso>{falla()});
            EXPECT_FALSE(puerto.abierto());
            EXPECT_EQ(puerto.cierres(), puerto.aperturas());
            EXPECT_EQ(aspectos(), (std::vector<std::string>{orden.boton + " tridimensional", orden.boton + " plana"}));
            EXPECT_EQ(form->leido().textoleido, "");
            EXPECT_EQ(celdas(cuadriculas.fghex, 0, 512), rejilla);
            EXPECT_TRUE(std::all_of(placa.chip().begin(), placa.chip().end(), [](auto b) { return b == 0xFF; }));
        }
    }
}

TEST_F(Operaciones, ErasingOnlyPressesAndReleasesTheButton)
{
    Placa placa;
    PuertoPlaca puerto(placa);
    crear(puerto);
    form->borrar_Click();
    EXPECT_EQ(aspectos(), (std::vector<std::string>{"borrar tridimensional", "borrar plana"}));
    EXPECT_EQ(puerto.aperturas(), 0);
    EXPECT_EQ(puerto.enviados(), "");
}

// The real serial port code against the emulator program on a pseudo-terminal, unpaced.
class OperacionesPty : public Operaciones {
protected:
    static void SetUpTestSuite()
    {
        Operaciones::SetUpTestSuite();
        crearaplicacion();
    }
};

TEST_F(OperacionesPty, AReadIsSavedOpensAgainAndAProgrammedFileReadsBack)
{
    Chip imagen;
    azar(imagen, 21);
    const std::string ruta = carpeta + "/imagen.bin";
    std::ofstream(ruta, std::ios::binary).write(reinterpret_cast<const char*>(imagen.data()), imagen.size());
    Emulador emulador({"--imagen", ruta});
    ASSERT_FALSE(emulador.ruta().empty());
    PuertoSerie puerto(emulador.ruta());
    crear(puerto);

    form->leer_Click();
    EXPECT_EQ(form->leido().textoleido, lineashex(imagen));
    muestran(imagen);

    dialogo.elegir = carpeta + "/lectura.hex";
    form->guardar_Click();
    dialogo.elegir = carpeta + "/lectura.hex";
    form->abrir_Click();
    EXPECT_EQ(form->registros().totalvector, 11265);
    EXPECT_EQ(StatusBar1.textos[2], "8191 Bytes = 1FFF Hexa");

    // The third record writes over the first one's second byte: file order decides.
    abrir(":020000001122CB\r\n:03100000AABBCCBC\r\n:010001009965\r\n:011FFF00558C\r\n:00000001FF\r\n");
    std::this_thread::sleep_for(Emulador::cambiodesesion);
    form->grabar_Click();
    std::this_thread::sleep_for(Emulador::cambiodesesion);
    form->leer_Click();
    imagen[0] = 0x11, imagen[1] = 0x99, imagen[0x1000] = 0xAA, imagen[0x1001] = 0xBB, imagen[0x1002] = 0xCC;
    imagen[0x1FFF] = 0x55;
    EXPECT_EQ(form->leido().textoleido, lineashex(imagen));
    // Verifying goes record by record too: the overwritten byte differs from its first record.
    std::this_thread::sleep_for(Emulador::cambiodesesion);
    EXPECT_EQ(agregado([&] { form->verificar_Click(); }),
              "10:11:12... Coneccion Exitosa!!!........Verificando\r\n"
              "                 Error.. Direccion = 0001  Buffer = 22   Leido = 99\r\n"
              "10:11:12... Termina Verificacion!!!\r\n");
    EXPECT_TRUE(avisos.mostrados.empty());
}

} // namespace
} // namespace eeprog
