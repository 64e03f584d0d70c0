#include "formprueba.h"
#include "shell/qt/puertoserie.h"

#include <thread>

namespace eeprog::prueba {
namespace {

using Operaciones = FormPrueba;
using testing::EndsWith;

const std::string ejemplo = ":0300100041424327\r\n:00000001FF\r\n";

// Each byte of the chip shows in fghex as two hex digits and in fgascii as itself.
void muestran(const Cuadriculas& c, const Chip& chip)
{
    char hex[3];
    for (std::size_t k = 0; k < chip.size(); ++k) {
        std::snprintf(hex, sizeof hex, "%02X", chip[k]);
        ASSERT_EQ(c.fghex.TextMatrix(k / 16, k % 16) + c.fgascii.TextMatrix(k / 16, k % 16),
                  hex + std::string(1, chip[k]))
            << "byte " << k;
    }
}

TEST_F(Operaciones, ReadingFillsTheGridsAndLogsItsEndLeavingTheRecordsAlone)
{
    azar(placa.chip(), 5);
    abrir(escribir(ejemplo));
    const Registros antes = form->registros();
    EXPECT_THAT(agregado(&Form1::leer_Click), EndsWith("Leyendo\r\n10:11:12... Lectura Concluida!!!\r\n"));
    muestran(cuadriculas, placa.chip());
    EXPECT_EQ(form->registros().vector, antes.vector);
}

// Success says the run came to its end, not that every echo was right. From the editor row 0
// goes out even with nothing edited, yet the log counts no byte.
TEST_F(Operaciones, ProgrammingEndsWithTheSuccessWordsWhateverTheEchoes)
{
    placa = Placa({.ecoerroneo = 1});
    abrir(escribir(ejemplo));
    for (const auto& [orden, fin] :
         {std::pair{&Form1::grabar_Click, "10:11:12... Grabacion Exitosa!!!\r\n"},
          {&Form1::editado_Click, "10:11:12... Grabacion Exitosa!!!... 0 Bytes Grabados\r\n"}}) {
        SCOPED_TRACE(fin);
        StatusBar1.textos.clear();
        EXPECT_THAT(agregado(orden), EndsWith(fin));
        EXPECT_EQ(StatusBar1.textos[1], "G R A V A C I O N    E X I T O S A ...!!!");
    }
    EXPECT_TRUE(avisos.mostrados.empty());
}

TEST_F(Operaciones, WithoutABoardEveryOperationStopsAtTheCheckAndChangesNothing)
{
    placa = Placa({.muda = true});
    abrir(escribir(ejemplo));
    const std::pair<std::string, void (Form1::*)()> ordenes[]{{"leer", &Form1::leer_Click},
                                                              {"grabar", &Form1::grabar_Click},
                                                              {"verificar", &Form1::verificar_Click},
                                                              {"editado", &Form1::editado_Click}};
    for (const auto& [boton, orden] : ordenes) {
        SCOPED_TRACE(boton);
        avisos.mostrados.clear();
        pasos();
        EXPECT_THAT(agregado(orden), testing::MatchesRegex("10:11:12\\.\\.\\. Coneccion Erronea[^\n]*\r\n"));
        EXPECT_EQ(avisos.mostrados.size(), 1u);
        EXPECT_EQ(pasos(), (std::vector<std::string>{boton + " tridimensional", boton + " plana"}));
        EXPECT_TRUE(form->leido().textoleido.empty() && !puertoplaca.abierto());
        EXPECT_EQ(cuadriculas.fghex.TextMatrix(1, 0), "41");
    }
    EXPECT_EQ(puertoplaca.enviados(), "cccc") << "the check alone went out";
}

TEST_F(Operaciones, ErasingOnlyPressesAndReleasesTheButton)
{
    form->borrar_Click();
    EXPECT_EQ(pasos(), (std::vector<std::string>{"borrar tridimensional", "borrar plana"}));
    EXPECT_EQ(puertoplaca.aperturas(), 0);
}

// The real serial port code against the emulator program on a pseudo-terminal. A read, which
// leaves the records alone, is saved; verifying goes record by record, so a byte that a later
// record wrote over differs from its first record; the editor sends rows 0 to the edited one.
TEST_F(Operaciones, EveryOperationRunsThroughTheSerialPortAgainstTheEmulator)
{
    crearaplicacion();
    Chip imagen;
    azar(imagen, 21);
    Emulador emulador({"--imagen", escribir(std::string(imagen.begin(), imagen.end()), "imagen.bin")});
    PuertoSerie puerto(emulador.ruta());
    crear(puerto);
    const auto correr = [&](void (Form1::*orden)()) {
        std::this_thread::sleep_for(Emulador::cambiodesesion);
        return agregado(orden);
    };
    abrir(escribir(":020000001122CB\r\n:03100000AABBCCBC\r\n:010001009965\r\n:011FFF00558C\r\n:00000001FF\r\n"));
    correr(&Form1::leer_Click);
    dialogo.elegir = carpeta + "/lectura.hex";
    form->guardar_Click();
    std::ifstream guardado(carpeta + "/lectura.hex", std::ios::binary);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(guardado), {}), lineashex(imagen) + "\r\n");
    EXPECT_THAT(correr(&Form1::grabar_Click), EndsWith("Grabacion Exitosa!!!\r\n"));
    EXPECT_THAT(correr(&Form1::verificar_Click),
                EndsWith("Verificando\r\n                 Error.. Direccion = 0001  Buffer = 22   Leido = 99\r\n"
                         "10:11:12... Termina Verificacion!!!\r\n"));
    cuadriculas.fgascii.TextMatrix(2, 5, "<");
    form->edicion().filaeditada = 2;
    EXPECT_THAT(correr(&Form1::editado_Click), EndsWith("... 48 Bytes Grabados\r\n"));
    correr(&Form1::leer_Click);
    // Rows 0 to 2 went out as the read left them in the grids, but for the edited byte.
    imagen[0x1000] = 0xAA, imagen[0x1001] = 0xBB, imagen[0x1002] = 0xCC, imagen[0x1FFF] = 0x55, imagen[0x25] = '<';
    EXPECT_EQ(form->leido().textoleido, lineashex(imagen));
    EXPECT_TRUE(avisos.mostrados.empty());
}

} // namespace
} // namespace eeprog::prueba
