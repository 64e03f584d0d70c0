#pragma once

#include "aplicacion.h"
#include "chipprueba.h"
#include "dialogofalso.h"
#include "emulador.h"
#include "pantallafalsa.h"
#include "placa.h"
#include "puertoplaca.h"
#include "records/disco.h"
#include "shell/form1.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

namespace eeprog::prueba {

// The main window's logic over recording controls, a fake dialog and the board in the same
// process (or a port the test gives), with a temporary folder for its files.
struct FormPrueba : ::testing::Test {
    void SetUp() override
    {
        dibujareditor(cuadriculas);
        ASSERT_NE(mkdtemp(carpeta.data()), nullptr);
        crear(puertoplaca);
    }
    void TearDown() override { std::filesystem::remove_all(carpeta); }
    void crear(Puerto& puerto, const std::string& directorio = "")
    {
        auto& b = botones;
        form.emplace(
            Controles{
                txtinforme, StatusBar1, ProgressBar1, {b[0], b[1], b[2], b[3], b[4], b[5], b[6], b[7]}, cuadriculas},
            Servicios{puerto, reloj, avisos, skin, dialogo, abridor, directorio});
    }
    std::string escribir(const std::string& texto, const std::string& nombre = "archivo.hex")
    {
        std::ofstream(carpeta + "/" + nombre, std::ios::binary) << texto;
        return carpeta + "/" + nombre;
    }
    // The user picks the path in the dialog, or cancels with none. Both give what the log gained.
    std::string abrir(std::optional<std::string> ruta = {})
    {
        dialogo.elegir = std::move(ruta);
        return agregado(&Form1::abrir_Click);
    }
    std::string agregado(void (Form1::*orden)())
    {
        const std::size_t antes = txtinforme.contenido.size();
        ((*form).*orden)();
        return txtinforme.contenido.substr(antes);
    }
    // The steps taken since the last call, the colours given to the buttons left out.
    std::vector<std::string> pasos()
    {
        std::erase_if(bitacora.sucesos, [](const std::string& p) { return p.find(" color ") != std::string::npos; });
        return std::exchange(bitacora.sucesos, {});
    }

    std::string carpeta = testing::TempDir() + "formXXXXXX";
    Bitacora bitacora;
    CajaFalsa txtinforme;
    PanelesFalsos StatusBar1;
    BarraFalsa ProgressBar1;
    std::array<BotonFalso, 8> botones{BotonFalso{"abrir", &bitacora},  BotonFalso{"guardar", &bitacora},
                                      BotonFalso{"leer", &bitacora},   BotonFalso{"borrar", &bitacora},
                                      BotonFalso{"grabar", &bitacora}, BotonFalso{"verificar", &bitacora},
                                      BotonFalso{"edit", &bitacora},   BotonFalso{"editado", &bitacora}};
    Cuadriculas cuadriculas;
    DialogoFalso dialogo;
    RelojFijo reloj;
    AvisosFalsos avisos;
    SkinFalso skin{&bitacora};
    AbridorFalso abridor;
    Placa placa;
    PuertoPlaca puertoplaca{placa};
    std::optional<Form1> form;
};

} // namespace eeprog::prueba
