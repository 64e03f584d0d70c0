#include "dialogofalso.h"
#include "pantallafalsa.h"
#include "placa.h"
#include "puertoguion.h"
#include "puertoplaca.h"
#include "shell/form1.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace eeprog {
namespace {

using namespace prueba;

// The main window's logic over recording controls and a board in the same process.
class Form1Test : public ::testing::Test {
protected:
    Bitacora bitacora;
    CajaFalsa txtinforme{&bitacora};
    PanelesFalsos StatusBar1{&bitacora};
    BarraFalsa ProgressBar1;
    std::array<BotonFalso, 8> botones{BotonFalso{"abrir", &bitacora},  BotonFalso{"guardar", &bitacora},
                                      BotonFalso{"leer", &bitacora},   BotonFalso{"borrar", &bitacora},
                                      BotonFalso{"grabar", &bitacora}, BotonFalso{"verificar", &bitacora},
                                      BotonFalso{"edit", &bitacora},   BotonFalso{"editado", &bitacora}};
    Cuadriculas cuadriculas;
    DialogoFalso dialogo{&bitacora};
    RelojFijo reloj;
    AvisosFalsos avisos{&bitacora};
    SkinFalso skin{&bitacora};
    AbridorFalso abridor{&bitacora};

    Controles controles()
    {
        Botones b{botones[0], botones[1], botones[2], botones[3], botones[4], botones[5], botones[6], botones[7]};
        return {txtinforme, StatusBar1, ProgressBar1, b, cuadriculas};
    }
};

const std::string cabecera = "Programador de memorias EEPROM AT28c64b por Varnimo\r\n"
                             "Fecha : 23/11/2026    Hora : 10:11:12           Cesion Iniciada...\r\n";

TEST_F(Form1Test, StartingWithTheBoardLogsThreeLinesEndingInConectado)
{
    Placa placa;
    PuertoPlaca puerto(placa);
    Form1 form(controles(), {puerto, reloj, avisos, skin, dialogo, abridor});
    form.Form_Load();
    EXPECT_EQ(txtinforme.contenido, cabecera + "Programador..... C O N E C T A D O !!!!\r\n");
    EXPECT_EQ(puerto.enviados(), "c");
    EXPECT_EQ(puerto.cierres(), 1);
    EXPECT_FALSE(puerto.abierto());
}

TEST_F(Form1Test, StartingWithoutABoardLogsNoExisteAndShowsNoBoxAndNoPanelText)
{
    Placa placa({.muda = true});
    PuertoPlaca puerto(placa);
    Form1 form(controles(), {puerto, reloj, avisos, skin, dialogo, abridor});
    form.Form_Load();
    EXPECT_EQ(txtinforme.contenido, cabecera + "Programador..... NO EXISTE CONECCION\r\n");
    EXPECT_TRUE(avisos.mostrados.empty());
    EXPECT_EQ(StatusBar1.textos[1], "Programador de memorias EEPROM AT28c64b por Varnimo");
    EXPECT_EQ(StatusBar1.textos.size(), 1u);
    EXPECT_EQ(puerto.esperas(), 100);
    EXPECT_FALSE(puerto.abierto());
}

TEST_F(Form1Test, TheFirstLineReplacesWhateverTheLogHeld)
{
    txtinforme.contenido = "texto de antes";
    Placa placa;
    PuertoPlaca puerto(placa);
    Form1 form(controles(), {puerto, reloj, avisos, skin, dialogo, abridor});
    form.Form_Load();
    EXPECT_EQ(txtinforme.contenido.rfind(cabecera, 0), 0u);
}

TEST_F(Form1Test, StartUpRunsItsStepsInOrder)
{
    PuertoGuion puerto(&bitacora);
    puerto.alescribir = [&](const std::string& d) { puerto.llegara(d); };
    cuadriculas.fgascii.alcambiar = [&](Cambio c) {
        if (c == Cambio::aspecto)
            bitacora.sucesos.push_back("fgascii aspecto");
        if (c == Cambio::forma && cuadriculas.fgascii.Rows() == filasrejilla)
            bitacora.sucesos.push_back("fgascii formada");
    };
    Form1 form(controles(), {puerto, reloj, avisos, skin, dialogo, abridor});
    form.Form_Load();

    const std::vector<std::string> pasos{"skin aplicar",
                                         "abrir color 221,247,224",
                                         "editado color 221,247,224",
                                         "informe color 221,247,224",
                                         "fgascii aspecto",
                                         "panel 1 Programador de memorias EEPROM AT28c64b por Varnimo",
                                         "escribir c",
                                         "cerrar",
                                         "fgascii formada",
                                         "editado deshabilitado"};
    auto desde = bitacora.sucesos.begin();
    for (const std::string& paso : pasos) {
        auto hallado = std::find(desde, bitacora.sucesos.end(), paso);
        ASSERT_NE(hallado, bitacora.sucesos.end()) << "missing or out of order: " << paso;
        desde = hallado;
    }
    EXPECT_EQ(bitacora.sucesos.back(), "editado deshabilitado");
}

TEST_F(Form1Test, StartUpDressesTheWindowAndLeavesEveryCommandButEditadoEnabled)
{
    skin.actual = Color{10, 20, 30};
    Placa placa;
    PuertoPlaca puerto(placa);
    Form1 form(controles(), {puerto, reloj, avisos, skin, dialogo, abridor});
    form.Form_Load();
    EXPECT_EQ(skin.aplicados, std::vector<Formulario>{Formulario::Form1});
    for (const BotonFalso& boton : botones) {
        EXPECT_EQ(boton.fondo, (Color{10, 20, 30}));
        EXPECT_EQ(boton.apariencia, Apariencia::plana);
    }
    EXPECT_EQ(txtinforme.fondo, (Color{10, 20, 30}));
    for (const Rejilla* rejilla : {&cuadriculas.fgdir, &cuadriculas.fghex, &cuadriculas.fgascii}) {
        EXPECT_EQ(rejilla->BackColor(), (Color{10, 20, 30}));
        EXPECT_EQ(rejilla->GridColor(), negro);
    }
    EXPECT_FALSE(botones[7].habilitado);
    EXPECT_TRUE(std::all_of(botones.begin(), botones.begin() + 7, [](const BotonFalso& b) { return b.habilitado; }));
    EXPECT_FALSE(form.edicion().edicionhabilitada);
    EXPECT_EQ(form.edicion().cuentadigitos, 0);
}

// The skin comes from beside the program, then dresses the window, then the colour goes to
// the buttons, the log and the grids; edit mode and a pending digit end on the way.
TEST_F(Form1Test, ASkinFromTheMenuIsLoadedAppliedAndSpreadInThatOrder)
{
    Placa placa;
    PuertoPlaca puerto(placa);
    Form1 form(controles(), {puerto, reloj, avisos, skin, dialogo, abridor, "/opt/eeprog"});
    form.Form_Load();
    form.edit_Click();
    form.edicion().cuentadigitos = 1;
    const std::string log = txtinforme.texto();
    bitacora.sucesos.clear();
    skin.actual = Color{10, 20, 30};

    form.MNUCamb_Click(1);

    ASSERT_GE(bitacora.sucesos.size(), 4U);
    EXPECT_EQ(bitacora.sucesos[0], "skin cargar /opt/eeprog/skins/galaxy.skn");
    EXPECT_EQ(bitacora.sucesos[1], "skin aplicar");
    EXPECT_EQ(bitacora.sucesos[2], "abrir color 10,20,30");
    EXPECT_FALSE(form.edicion().edicionhabilitada);
    EXPECT_EQ(form.edicion().cuentadigitos, 0);
    EXPECT_EQ(botones[6].apariencia, Apariencia::tridimensional);
    EXPECT_TRUE(botones[7].habilitado);
    EXPECT_EQ(txtinforme.fondo, (Color{10, 20, 30}));
    EXPECT_EQ(cuadriculas.fghex.GridColor(), negro);
    EXPECT_EQ(txtinforme.texto(), log);
}

} // namespace
} // namespace eeprog
