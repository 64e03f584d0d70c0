#include "link/conexion.h"
#include "pantallafalsa.h"
#include "puertoguion.h"

#include <gtest/gtest.h>

namespace eeprog {
namespace {

using namespace prueba;
using namespace std::string_literals;

struct EnlaceTest : ::testing::Test {
    Bitacora bitacora;
    PuertoGuion puerto{&bitacora};
    Enlace enlace{puerto};
    CajaFalsa caja;
    RelojFijo reloj;
    Informe informe{caja, reloj};
    PanelesFalsos paneles{&bitacora};
    AvisosFalsos avisos;
    SkinFalso skin;
    BotonFalso boton{"leer", &bitacora};
    Marco marco{enlace, {paneles, informe, avisos, skin}};
};

// The rows run in turn on one open link, so a reply that comes too late for one row is
// still in the port for the next: the two sides then run one behind.
TEST_F(EnlaceTest, AnExchangeSendsThenPausesAndReadsUntilAReplyOrAHundredReads)
{
    // label, what arrives, at which read from now, what is sent, the reply, the reads taken (each after a 1 ms pause)
    const std::tuple<const char*, std::string, int, std::string, std::string, int> casos[]{
        {"ReplyAlreadyIn", "c", 1, "c", "c", 1},
        {"NoReplyIsErrorAfterAHundredReads", "", 1, "c", "Error", 100},
        {"ReplyAtTheHundredthRead", "x", 100, "c", "x", 100},
        {"ReplyAtTheHundredAndFirstReadIsTooLate", "1", 101, "a", "Error", 100},
        {"TheNextExchangeTakesTheLateReply", "2", 5, "b", "1", 1},
        {"AndTheOneAfterItTakesTheNextReply", "", 1, "c", "2", 4},
        {"TwoBytesAreOneReply", "cc", 1, "c", "cc", 1},
        {"AByteZeroIsAReply", "\0"s, 3, "\0"s, "\0"s, 3},
        {"AnEmptyTextSendsNothingAndWaitsOutItsTries", "", 1, "", "Error", 100},
    };
    enlace.serial();
    for (const auto& [nombre, llega, enlalectura, envia, respuesta, lecturas] : casos) {
        puerto.llegara(llega, enlalectura), bitacora.sucesos.clear();
        EXPECT_EQ(enlace.intercambio(envia), respuesta) << nombre;
        std::vector<std::string> esperado{"escribir " + envia};
        for (int i = 0; i < lecturas; ++i)
            esperado.insert(esperado.end(), {"esperar 1", "leer"});
        EXPECT_EQ(bitacora.sucesos, esperado) << nombre;
    }
}

// The look of the pressed button, the check, panel 1, the operation with the port open,
// the close, and the button's look again, each look with the skin's colour.
TEST_F(EnlaceTest, ABoardThatAnswersLetsTheOperationRunWithThePortOpen)
{
    puerto.alescribir = [&](const std::string& dato) { puerto.llegara(dato); };
    marco.ejecutar(boton, palabras::leer, [&] { bitacora.anotar(puerto.abierto() ? "abierto" : "cerrado"); });
    EXPECT_EQ(bitacora.sucesos,
              (std::vector<std::string>{"leer tridimensional", "leer color 221,247,224", "abrir", "escribir c",
                                        "esperar 1", "leer", "panel 1 C o n e c c i o n    E X I T O S A ...",
                                        "abierto", "cerrar", "leer plana", "leer color 221,247,224"}));
}

// The advice comes up while the port is still open; it is closed once the user has read it.
TEST_F(EnlaceTest, ABoardThatDoesNotAnswerGetsTheAdviceWhileThePortIsStillOpen)
{
    avisos.almostrar = [&] { EXPECT_TRUE(puerto.abierto()); };
    marco.ejecutar(boton, palabras::grabar, [&] { FAIL() << "the operation ran"; });
    EXPECT_EQ(paneles.textos[1], "E R R O R  en la  C O N E C C I O N ...");
    const Aviso aviso{"                  Posibles Causas\r\n"
                      "-  Pueve que el dispositivo este conectado a la Pc\r\n"
                      "-  Prueve que este devidamente alimentado\r\n"
                      "                   Posibles soluciones\r\n"
                      "* Apage el dispositivo y vuelva a encenderlo\r\n"
                      "* Revise la linea de coneccion con el puerto Serial\r\n"
                      "* Revise el armado del circuito  ",
                      "Error de Comunicacion con el dispositivo ", Icono::exclamacion};
    EXPECT_EQ(avisos.mostrados, std::vector<Aviso>{aviso});
}

// Only the one-character reply "c" to the check lets the operation run, and each operation
// logs its own words after the time. The editor's failure line ends in a blank.
TEST_F(EnlaceTest, OnlyTheReplyCRunsTheOperationAndEachOperationLogsItsOwnWords)
{
    const std::tuple<const char*, const PalabrasMarco&, std::string, std::string> casos[]{
        {"LeerRuns", palabras::leer, "c", "... Coneccion Exitosa!!!........Leyendo"},
        {"LeerWithoutReply", palabras::leer, "", "... Coneccion Erronea!!!"},
        {"GrabarRuns", palabras::grabar, "c", "... Coneccion Exitosa .........Gravando!!!"},
        {"GrabarTwoCs", palabras::grabar, "cc", "... Coneccion Erronea No existe Comunicacion"},
        {"VerificarRuns", palabras::verificar, "c", "... Coneccion Exitosa!!!........Verificando"},
        {"VerificarUpperC", palabras::verificar, "C", "... Coneccion Erronea!!!"},
        {"EditadoRuns", palabras::editado, "c", "... Coneccion Exitosa .........Gravando del Editor!!!"},
        {"EditadoZero", palabras::editado, "\0"s, "... Coneccion Erronea .....Fallo Grabar del editor!!! "},
    };
    for (const auto& [nombre, palabras, respuesta, linea] : casos) {
        caja.contenido.clear();
        puerto.alescribir = [&](const std::string&) { puerto.llegara(respuesta); };
        bool corrio = false;
        marco.ejecutar(boton, palabras, [&] { corrio = true; });
        EXPECT_EQ(corrio, respuesta == "c") << nombre;
        EXPECT_EQ(caja.contenido, "10:11:12" + linea + "\r\n") << nombre;
    }
}

} // namespace
} // namespace eeprog
