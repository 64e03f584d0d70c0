#include "formprueba.h"

namespace eeprog::prueba {
namespace {

using Archivos = FormPrueba;
using testing::EndsWith;

const std::string ejemplo = ":0300300002337A1E\r\n:00000001FF\r\n";

// A cancelled dialog keeps its file name: opening reads that file again, and with none
// reads nothing. Each dialog is shown with its own settings, whatever the last one left.
TEST_F(Archivos, CancellingTheOpenDialogReadsTheLastChosenFileAgainOrNothing)
{
    dialogo.FilterIndex = 2, dialogo.Flags = preguntarreemplazo;
    EXPECT_EQ(abrir(), "");
    abrir(escribir("S106010041424332\r\nS9030000FC\r\n")); // Motorola, whatever the name says
    EXPECT_EQ(cuadriculas.fghex.TextMatrix(16, 2), "43");
    form->guardar_Click();
    escribir(":0100000055AA\r\n:00000001FF\r\n");
    EXPECT_EQ(abrir(), "10:11:12... Archivo = archivo.hex      Tamaño = 0 Bytes = 0 Hexa\r\n");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(carpeta), {}), 1) << "the save was cancelled";
    const std::string abre = "Archivos tipo OBJETO|*.obj|Archivos tipo HEXADECIMAL|*.hex 1 obj 0";
    ASSERT_EQ(dialogo.mostrados.size(), 4u);
    for (std::size_t i : {0, 1, 3})
        EXPECT_EQ(dialogo.mostrados[i], abre);
    EXPECT_EQ(dialogo.mostrados[2], "Archivo de ATMEL|*.hex|Archivo de MOTOROLA|*.obj 1 obj 2");
}

// A refused or empty text keeps the records, which the grids show again over any edit, but
// takes the name. A file that cannot be read changes nothing but the log.
TEST_F(Archivos, AFileWithoutRecordsKeepsTheRecordsAndOneThatCannotBeReadChangesNothing)
{
    const std::string bueno = escribir(ejemplo, "bueno.hex");
    abrir(bueno);
    const Registros antes = form->registros();
    const Aviso desconocido{"El archivo que a sido abierto no corresponde a ningun formato\r\n"
                            "conocido de ATMEL o MOTOROLA  por lo cual no ha podido\r\n"
                            "ser cargado\r\n"
                            "Se recomiendo escoja el archivo correcto ,!!!Revise¡¡¡¡\r\n"
                            "y vuelva a intentarlo....",
                            "Error al querer cargar el archivo", Icono::exclamacion};
    // clang-format off
    const std::pair<const char*, std::string> casos[]{{"line break first", "\r\n" + ejemplo},
        {"blank first", " " + ejemplo}, {"byte order mark", "\xEF\xBB\xBF" + ejemplo},
        {"lowercase s", "s106010041424332\r\n"}, {"empty", ""}};
    // clang-format on
    for (const auto& [nombre, texto] : casos) {
        SCOPED_TRACE(nombre);
        avisos.mostrados.clear();
        cuadriculas.fghex.TextMatrix(3, 0, "AA");
        const std::string ruta = escribir(texto, "malo.obj");
        EXPECT_EQ(abrir(ruta), "10:11:12... Archivo = malo.obj      Tamaño = 50 Bytes = 32 Hexa\r\n");
        EXPECT_EQ(avisos.mostrados, texto.empty() ? std::vector<Aviso>{} : std::vector<Aviso>{desconocido});
        EXPECT_TRUE(form->registros().vector == antes.vector && cuadriculas.fghex.TextMatrix(3, 0) == "02");
        EXPECT_TRUE(form->archivo().nombrearchivo == ruta && StatusBar1.textos[1] == ruta);
    }
    abrir(bueno);
    cuadriculas.fghex.TextMatrix(3, 0, "AA");
    for (const std::string& ruta : {carpeta + "/no/hay.hex", carpeta}) {
        EXPECT_EQ(abrir(ruta), "10:11:12... Error al querer Abrir el Archivo : " + ruta + "\r\n");
        EXPECT_TRUE(form->archivo().nombrearchivo == bueno && form->archivo().textoarchivo == ejemplo);
        EXPECT_TRUE(form->registros().vector == antes.vector && cuadriculas.fghex.TextMatrix(3, 0) == "AA");
        EXPECT_EQ(StatusBar1.textos[1], bueno);
    }
    EXPECT_TRUE(avisos.mostrados.empty());
}

// Before any read, saving writes the line break alone, which opening then refuses. (A whole
// read saved and opened again is tried against the emulator, with the device operations.)
TEST_F(Archivos, SavingBeforeAnyReadWritesALineBreakThatOpeningRefusesAndAFailedSaveSaysSo)
{
    dialogo.elegir = carpeta + "/no/hay.hex";
    EXPECT_EQ(agregado(&Form1::guardar_Click), "10:11:12... Error al querer Guardar el Archivo\r\n");
    const std::string ruta = carpeta + "/at28c64b.hex";
    dialogo.elegir = ruta;
    EXPECT_EQ(agregado(&Form1::guardar_Click), "10:11:12... Creando Archivo : " + ruta + "\r\n");
    EXPECT_EQ(leerarchivo(ruta), "\r\n");
    abrir(ruta);
    ASSERT_EQ(avisos.mostrados.size(), 2u);
    EXPECT_EQ(avisos.mostrados[0], (Aviso{"Error desconocido al guardar el Archivo", "", Icono::ninguno}));
    EXPECT_EQ(avisos.mostrados[1].titulo, "Error al querer cargar el archivo");
}

} // namespace
} // namespace eeprog::prueba
