#include "dialogofalso.h"
#include "pantallafalsa.h"
#include "puertoguion.h"
#include "records/disco.h"
#include "shell/form1.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace eeprog {
namespace {

using namespace prueba;
using testing::EndsWith;
namespace fs = std::filesystem;

const std::string ejemplo = ":0300300002337A1E\r\n:00000001FF\r\n";
const Aviso formatodesconocido{"El archivo que a sido abierto no corresponde a ningun formato\r\n"
                               "conocido de ATMEL o MOTOROLA  por lo cual no ha podido\r\n"
                               "ser cargado\r\n"
                               "Se recomiendo escoja el archivo correcto ,!!!Revise¡¡¡¡\r\n"
                               "y vuelva a intentarlo....",
                               "Error al querer cargar el archivo", Icono::exclamacion};

// Opening and saving through the main window's logic, on files in a temporary folder.
class Archivos : public ::testing::Test {
protected:
    static void SetUpTestSuite() { dibujareditor(inicial); }
    void SetUp() override
    {
        carpeta = testing::TempDir() + "archivosXXXXXX";
        ASSERT_NE(mkdtemp(carpeta.data()), nullptr);
    }
    void TearDown() override { fs::remove_all(carpeta); }

    std::string escribir(const std::string& nombre, const std::string& texto)
    {
        std::ofstream(carpeta + "/" + nombre, std::ios::binary) << texto;
        return carpeta + "/" + nombre;
    }
    // The user picks a path, or cancels with none.
    void abrir(std::optional<std::string> ruta = std::nullopt)
    {
        dialogo.elegir = std::move(ruta);
        form.abrir_Click();
    }
    // The steps of the command, leaving out the colours the buttons are given.
    std::vector<std::string> pasos() const
    {
        std::vector<std::string> pasos = bitacora.sucesos;
        std::erase_if(pasos, [](const std::string& p) { return p.find(" color ") != std::string::npos; });
        return pasos;
    }
    std::string hex(int fila, int columna) const { return cuadriculas.fghex.TextMatrix(fila, columna); }

    static inline Cuadriculas inicial;
    std::string carpeta;
    Bitacora bitacora;
    CajaFalsa txtinforme;
    PanelesFalsos StatusBar1{&bitacora};
    BarraFalsa ProgressBar1;
    std::array<BotonFalso, 8> botones{BotonFalso{"abrir", &bitacora}, BotonFalso{"guardar", &bitacora}};
    Cuadriculas cuadriculas = inicial;
    DialogoFalso dialogo{&bitacora};
    RelojFijo reloj;
    AvisosFalsos avisos;
    SkinFalso skin;
    AbridorFalso abridor;
    PuertoGuion puerto;
    Form1 form{{txtinforme,
                StatusBar1,
                ProgressBar1,
                {botones[0], botones[1], botones[2], botones[3], botones[4], botones[5], botones[6], botones[7]},
                cuadriculas},
               {puerto, reloj, avisos, skin, dialogo, abridor}};
};

std::string ajustes(const DialogoFalso::Mostrado& m)
{
    return m.Filter + " " + std::to_string(m.FilterIndex) + " " + m.DefaultExt + " " + std::to_string(m.Flags);
}

// A cancelled dialog keeps its file name: opening reads that file again, and with none reads nothing.
TEST_F(Archivos, CancellingTheOpenDialogReadsTheLastChosenFileAgainOrNothing)
{
    dialogo.FilterIndex = 2;
    dialogo.Flags = preguntarreemplazo;
    abrir();
    EXPECT_EQ(pasos(), (std::vector<std::string>{"abrir tridimensional", "dialogo abrir", "panel 1 Directorio",
                                                 "panel 2 Tamaño", "abrir plana"}));
    EXPECT_EQ(txtinforme.contenido, "");

    dialogo.filtroelegido = 2;
    const std::string ruta = escribir("a.hex", "S106010041424332\r\nS9030000FC\r\n"); // read by its text
    abrir(ruta);
    EXPECT_EQ(hex(16, 0) + hex(16, 1) + hex(16, 2), "414243");
    form.guardar_Click(); // cancelled, with the filter the user chose
    escribir("a.hex", ":0100000055AA\r\n:00000001FF\r\n");
    abrir();
    EXPECT_EQ(hex(0, 0), "55");
    EXPECT_EQ(txtinforme.contenido, "10:11:12... Archivo = a.hex      Tamaño = 258 Bytes = 102 Hexa\r\n"
                                    "10:11:12... Archivo = a.hex      Tamaño = 0 Bytes = 0 Hexa\r\n");
    EXPECT_TRUE(avisos.mostrados.empty());
    EXPECT_EQ(std::distance(fs::directory_iterator(carpeta), fs::directory_iterator()), 1);

    const std::string abrirajustes = "Archivos tipo OBJETO|*.obj|Archivos tipo HEXADECIMAL|*.hex 1 obj 0";
    ASSERT_EQ(dialogo.mostrados.size(), 4u);
    EXPECT_EQ(ajustes(dialogo.mostrados[0]), abrirajustes);
    EXPECT_EQ(ajustes(dialogo.mostrados[1]), abrirajustes);
    EXPECT_EQ(ajustes(dialogo.mostrados[2]), "Archivo de ATMEL|*.hex|Archivo de MOTOROLA|*.obj 2 obj 2");
    EXPECT_EQ(dialogo.mostrados[2].FileName, ruta);
    EXPECT_EQ(ajustes(dialogo.mostrados[3]), abrirajustes);
}

// The buffer keeps its records; the grids show them again, over any edit, under the new name.
TEST_F(Archivos, ARefusedOrEmptyTextKeepsTheRecordsButTakesTheName)
{
    abrir(escribir("bueno.hex", ejemplo));
    const Registros antes = form.registros();
    const std::vector<std::pair<std::string, bool>> casos{{"\r\n" + ejemplo, true},
                                                          {" " + ejemplo, true},
                                                          {"\xEF\xBB\xBF" + ejemplo, true},
                                                          {"s106010041424332\r\n", true},
                                                          {"", false}};
    for (const auto& [texto, aviso] : casos) {
        SCOPED_TRACE(texto);
        avisos.mostrados.clear();
        cuadriculas.fghex.TextMatrix(3, 0, "AA");
        const std::string ruta = escribir("malo.obj", texto);
        abrir(ruta);
        EXPECT_EQ(avisos.mostrados, aviso ? std::vector<Aviso>{formatodesconocido} : std::vector<Aviso>{});
        EXPECT_EQ(form.registros().vector, antes.vector);
        EXPECT_EQ(form.registros().totalvector, antes.totalvector);
        EXPECT_EQ(form.archivo().nombrearchivo, ruta);
        EXPECT_EQ(hex(3, 0), "02");
        EXPECT_EQ(StatusBar1.textos[1], ruta);
        EXPECT_THAT(txtinforme.contenido,
                    EndsWith("10:11:12... Archivo = malo.obj      Tamaño = 50 Bytes = 32 Hexa\r\n"));
    }
}

TEST_F(Archivos, AFileThatCannotBeReadChangesNothingButTheLog)
{
    const std::string bueno = escribir("bueno.hex", ejemplo);
    abrir(bueno);
    const Registros antes = form.registros();
    cuadriculas.fghex.TextMatrix(3, 0, "AA");
    for (const std::string& ruta : {carpeta + "/no/hay.hex", carpeta}) {
        abrir(ruta);
        EXPECT_EQ(form.archivo().nombrearchivo, bueno);
        EXPECT_EQ(form.archivo().textoarchivo, ejemplo);
        EXPECT_EQ(form.registros().vector, antes.vector);
        EXPECT_EQ(hex(3, 0), "AA");
        EXPECT_EQ(StatusBar1.textos[1], bueno);
        EXPECT_THAT(txtinforme.contenido, EndsWith("10:11:12... Error al querer Abrir el Archivo : " + ruta + "\r\n"));
    }
    EXPECT_TRUE(avisos.mostrados.empty());
}

// Before any read, saving writes the line break alone, which opening then refuses. The
// dialog's name carries over to the next open. (A whole read saved and opened again is
// tried against the emulator, with the device operations.)
TEST_F(Archivos, SavingBeforeAnyReadWritesALineBreakThatOpeningRefuses)
{
    const std::string ruta = carpeta + "/at28c64b.hex";
    dialogo.elegir = ruta;
    form.guardar_Click();
    EXPECT_EQ(leerarchivo(ruta), "\r\n");
    EXPECT_EQ(txtinforme.contenido, "10:11:12... Creando Archivo : " + ruta + "\r\n");
    EXPECT_EQ(pasos(), (std::vector<std::string>{"guardar tridimensional", "dialogo guardar", "guardar plana"}));
    abrir();
    EXPECT_EQ(avisos.mostrados, std::vector<Aviso>{formatodesconocido});
}

TEST_F(Archivos, AFailedSaveShowsABoxAndALogLine)
{
    const Aviso error{"Error desconocido al guardar el Archivo", "", Icono::ninguno};
    dialogo.elegir = carpeta + "/no/hay.hex";
    form.guardar_Click();
    EXPECT_EQ(avisos.mostrados, std::vector<Aviso>{error});
    EXPECT_EQ(txtinforme.contenido, "10:11:12... Error al querer Guardar el Archivo\r\n");
}

} // namespace
} // namespace eeprog
