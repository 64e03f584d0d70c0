#include "link/conexion.h"
#include "pantallafalsa.h"
#include "puertoguion.h"

#include <gtest/gtest.h>

namespace eeprog {
namespace {

using namespace prueba;

TEST(Comprobacion, OnlyTheOneCharacterReplyCPasses)
{
    const std::vector<std::pair<std::string, bool>> casos{
        {"c", true}, {"C", false}, {"cc", false}, {"Error", false}, {std::string(1, '\0'), false}, {"x", false}};
    for (const auto& [respuesta, pasa] : casos) {
        PuertoGuion puerto;
        Enlace enlace(puerto);
        enlace.serial();
        puerto.llegara(respuesta);
        EXPECT_EQ(comprobarconexion(enlace), pasa) << respuesta;
        EXPECT_EQ(puerto.enviados, "c");
    }
}

TEST(Comprobacion, TheAdviceBoxHasItsTitleIconAndSevenLines)
{
    const Aviso aviso = falla();
    EXPECT_EQ(aviso.titulo, "Error de Comunicacion con el dispositivo ");
    EXPECT_EQ(aviso.icono, Icono::exclamacion);
    EXPECT_EQ(aviso.texto, "                  Posibles Causas\r\n"
                           "-  Pueve que el dispositivo este conectado a la Pc\r\n"
                           "-  Prueve que este devidamente alimentado\r\n"
                           "                   Posibles soluciones\r\n"
                           "* Apage el dispositivo y vuelva a encenderlo\r\n"
                           "* Revise la linea de coneccion con el puerto Serial\r\n"
                           "* Revise el armado del circuito  ");
}

class MarcoTest : public ::testing::Test {
protected:
    Bitacora bitacora;
    PuertoGuion puerto{&bitacora};
    Enlace enlace{puerto};
    CajaFalsa caja;
    RelojFijo reloj;
    Informe informe{caja, reloj};
    PanelesFalsos paneles{&bitacora};
    AvisosFalsos avisos{&bitacora};
    SkinFalso skin;
    BotonFalso boton{"leer", &bitacora};
    Marco marco{enlace, {paneles, informe, avisos, skin}};

    void placapresente()
    {
        puerto.alescribir = [&](const std::string& d) { puerto.llegara(d); };
    }
};

TEST_F(MarcoTest, ABoardThatAnswersLetsTheOperationRunWithThePortOpen)
{
    placapresente();
    bool abiertodurante = false;
    marco.ejecutar(boton, palabras::leer, [&] {
        bitacora.anotar("operacion");
        abiertodurante = puerto.abierto();
    });
    EXPECT_TRUE(abiertodurante);
    EXPECT_FALSE(puerto.abierto());
    EXPECT_EQ(caja.contenido, "10:11:12... Coneccion Exitosa!!!........Leyendo\r\n");
    const std::vector<std::string> esperado{"leer tridimensional",
                                            "leer color 221,247,224",
                                            "abrir",
                                            "escribir c",
                                            "esperar 1",
                                            "leer",
                                            "panel 1 C o n e c c i o n    E X I T O S A ...",
                                            "operacion",
                                            "cerrar",
                                            "leer plana",
                                            "leer color 221,247,224"};
    EXPECT_EQ(bitacora.sucesos, esperado);
    EXPECT_TRUE(avisos.mostrados.empty());
}

TEST_F(MarcoTest, ABoardThatDoesNotAnswerGetsTheAdviceWhileThePortIsStillOpen)
{
    bool abiertoconaviso = false;
    avisos.almostrar = [&] { abiertoconaviso = puerto.abierto(); };
    bool corrio = false;
    marco.ejecutar(boton, palabras::grabar, [&] { corrio = true; });
    EXPECT_FALSE(corrio);
    EXPECT_TRUE(abiertoconaviso);
    EXPECT_FALSE(puerto.abierto());
    EXPECT_EQ(puerto.enviados, "c");
    EXPECT_EQ(paneles.textos[1], "E R R O R  en la  C O N E C C I O N ...");
    EXPECT_EQ(caja.contenido, "10:11:12... Coneccion Erronea No existe Comunicacion\r\n");
    ASSERT_EQ(avisos.mostrados.size(), 1u);
    EXPECT_EQ(avisos.mostrados[0], falla());
    EXPECT_EQ(boton.apariencia, Apariencia::plana);
    EXPECT_EQ(bitacora.sucesos.back(), "leer color 221,247,224");
}

// Read and verify share their failure line; the line of the editor ends in a blank.
TEST_F(MarcoTest, EachOperationLogsItsOwnWords)
{
    struct Caso {
        const PalabrasMarco& palabras;
        const char* exito;
        const char* falla;
    };
    const Caso casos[]{{palabras::leer, "... Coneccion Exitosa!!!........Leyendo", "... Coneccion Erronea!!!"},
                       {palabras::grabar, "... Coneccion Exitosa .........Gravando!!!",
                        "... Coneccion Erronea No existe Comunicacion"},
                       {palabras::verificar, "... Coneccion Exitosa!!!........Verificando", "... Coneccion Erronea!!!"},
                       {palabras::editado, "... Coneccion Exitosa .........Gravando del Editor!!!",
                        "... Coneccion Erronea .....Fallo Grabar del editor!!! "}};
    for (const Caso& caso : casos) {
        puerto.alescribir = nullptr;
        marco.ejecutar(boton, caso.palabras, [] {});
        placapresente();
        marco.ejecutar(boton, caso.palabras, [] {});
    }
    std::string esperado;
    for (const Caso& caso : casos)
        esperado += std::string("10:11:12") + caso.falla + "\r\n10:11:12" + caso.exito + "\r\n";
    EXPECT_EQ(caja.contenido, esperado);
}

TEST_F(MarcoTest, AButtonTakesTheSkinColourAnewAtEachChangeOfLook)
{
    placapresente();
    marco.ejecutar(boton, palabras::leer, [&] { skin.actual = Color{1, 2, 3}; });
    EXPECT_EQ(boton.fondo, (Color{1, 2, 3}));
}

TEST_F(MarcoTest, APortThatCannotOpenIsAFailedCheckAndIsNeverLeftOpen)
{
    puerto.abrible = false;
    marco.ejecutar(boton, palabras::verificar, [] { FAIL() << "the operation ran"; });
    EXPECT_EQ(puerto.aperturas, 0);
    EXPECT_FALSE(puerto.abierto());
    EXPECT_EQ(avisos.mostrados.size(), 1u);
}

TEST_F(MarcoTest, ABoardConnectedAfterAFailureWorksAtTheNextTry)
{
    marco.ejecutar(boton, palabras::leer, [] {});
    placapresente();
    bool corrio = false;
    marco.ejecutar(boton, palabras::leer, [&] { corrio = true; });
    EXPECT_TRUE(corrio);
}

} // namespace
} // namespace eeprog
