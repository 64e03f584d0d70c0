#include "formprueba.h"

namespace eeprog::prueba {
namespace {

using Form1Test = FormPrueba;
using namespace std::string_literals;

// The first line replaces whatever the log held. The check reports to the log alone.
TEST_F(Form1Test, StartUpLogsThreeLinesSayingWhetherTheBoardAnswered)
{
    for (bool muda : {false, true}) {
        SCOPED_TRACE(muda ? "no board" : "board");
        placa = Placa({.muda = muda});
        txtinforme.contenido = "texto de antes";
        form->Form_Load();
        EXPECT_EQ(
            txtinforme.contenido,
            std::string("Programador de memorias EEPROM AT28c64b por Varnimo\r\n"
                        "Fecha : 23/11/2026    Hora : 10:11:12           Cesion Iniciada...\r\n") +
                (muda ? "Programador..... NO EXISTE CONECCION\r\n" : "Programador..... C O N E C T A D O !!!!\r\n"));
        EXPECT_EQ(StatusBar1.textos,
                  (std::map<int, std::string>{{1, "Programador de memorias EEPROM AT28c64b por Varnimo"}}));
        EXPECT_TRUE(avisos.mostrados.empty() && !puertoplaca.abierto());
    }
}

// At start-up and from the menu the skin dresses the window, then its colour goes to the
// buttons, the log and the grids. The menu's skin is loaded from beside the program first;
// edit mode, which EDITAR began, and a pending digit end on the way. The circuit entries hand
// the documents beside the program to the desktop.
TEST_F(Form1Test, TheSkinDressesTheWindowEndingEditModeAndTheFilesBesideTheProgramAreFound)
{
    const auto vestida = [&](Color color) {
        for (const BotonFalso& boton : botones)
            EXPECT_EQ(boton.fondo, color) << boton.nombre;
        EXPECT_EQ(txtinforme.fondo, color);
        for (const Rejilla* rejilla : {&cuadriculas.fgdir, &cuadriculas.fghex, &cuadriculas.fgascii})
            EXPECT_TRUE(rejilla->BackColor() == color && rejilla->GridColor() == negro);
    };
    crear(puertoplaca, "/opt/eeprog");
    cuadriculas = Cuadriculas{};
    skin.actual = Color{10, 20, 30};
    form->Form_Load();
    vestida(skin.actual);
    EXPECT_EQ(cuadriculas.fgdir.TextMatrix(filasrejilla - 1, 0), "FFF0") << "the grids are drawn";
    const std::vector<std::string> inicio = pasos();
    EXPECT_EQ(std::pair(inicio.front(), inicio.back()), std::pair("skin aplicar"s, "editado deshabilitado"s));

    EXPECT_EQ(agregado(&Form1::edit_Click), "10:11:12... Opcion de Edicion Habilitada\r\n");
    EXPECT_TRUE(botones[7].habilitado && form->edicion().edicionhabilitada);
    form->edicion().cuentadigitos = 1;
    pasos();
    skin.actual = Color{1, 2, 3}, form->MNUCamb_Click(1);
    vestida(skin.actual);
    EXPECT_FALSE(form->edicion().edicionhabilitada || form->edicion().cuentadigitos);
    EXPECT_TRUE(botones[7].habilitado && botones[6].apariencia == Apariencia::tridimensional);
    EXPECT_EQ(
        std::vector(bitacora.sucesos.begin(), bitacora.sucesos.begin() + 3),
        (std::vector<std::string>{"skin cargar /opt/eeprog/skins/galaxy.skn", "skin aplicar", "abrir color 1,2,3"}));
    form->opcionel_circuito_Click(), form->opcionprograma_Click();
    EXPECT_EQ(abridor.abiertos,
              (std::vector<std::string>{"/opt/eeprog/circuito/Eeprog.bmp", "/opt/eeprog/circuito/at28c64b.hex"}));
}

} // namespace
} // namespace eeprog::prueba
