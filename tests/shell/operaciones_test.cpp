#include "formprueba.h"
#include "ordencli.h"
#include "link/qt/puertoserie.h"

#include <fcntl.h>
#include <stdlib.h>
#include <unistd.h>

#include <thread>

namespace eeprog::prueba {
namespace {

using Operaciones = FormPrueba;
using testing::EndsWith;
using namespace std::string_literals;

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

// Erasing, which needs no board, only presses and releases its button.
TEST_F(Operaciones, WithoutABoardEveryOperationStopsAtTheCheckAndErasingOnlyPressesItsButton)
{
    placa = Placa({.muda = true});
    abrir(escribir(ejemplo));
    for (const auto& [boton, orden] : {std::pair{"leer"s, &Form1::leer_Click},
                                       {"grabar", &Form1::grabar_Click},
                                       {"verificar", &Form1::verificar_Click},
                                       {"editado", &Form1::editado_Click}}) {
        SCOPED_TRACE(boton);
        pasos();
        EXPECT_THAT(agregado(orden), testing::MatchesRegex("10:11:12\\.\\.\\. Coneccion Erronea[^\n]*\r\n"));
        EXPECT_EQ(pasos(), (std::vector<std::string>{boton + " tridimensional", boton + " plana"}));
        EXPECT_TRUE(form->leido().textoleido.empty() && !puertoplaca.abierto() &&
                    cuadriculas.fghex.TextMatrix(1, 0) == "41");
    }
    EXPECT_EQ(avisos.mostrados.size(), 4u) << "one advice each";
    form->borrar_Click(), form->guardar_Click(); // a save, its dialog cancelled, presses its button too
    EXPECT_EQ(pasos(), (std::vector<std::string>{"borrar tridimensional", "borrar plana", "guardar tridimensional",
                                                 "guardar plana"}));
    EXPECT_EQ(std::pair(puertoplaca.enviados(), puertoplaca.aperturas()), std::pair("cccc"s, 4)) << "the checks alone";
}

// The real serial port code against the emulator program on a pseudo-terminal: the chip's
// bytes, of every value, and the pacing bytes 0 to 15, among them CR and LF, must pass raw. A read fills
// the grids, leaves the records alone and is saved; verifying goes record by record, so a byte that a later
// record wrote over differs from its first record; the editor sends rows 0 to the edited one.
TEST_F(Operaciones, EveryOperationRunsThroughTheSerialPortAgainstTheEmulator)
{
    crearaplicacion();
    Chip imagen;
    azar(imagen, 21);
    Emulador emulador({"--imagen", escribir(std::string(imagen.begin(), imagen.end()), "imagen.bin")});
    setenv("EEPROG_COM1", emulador.ruta().c_str(), 1);
    PuertoSerie puerto; // EEPROG_COM1 names the device
    unsetenv("EEPROG_COM1");
    crear(puerto);
    const auto correr = [&](void (Form1::*orden)()) {
        std::this_thread::sleep_for(Emulador::cambiodesesion);
        return agregado(orden);
    };
    abrir(escribir(":020000001122CB\r\n:03100000AABBCCBC\r\n:010001009965\r\n:011FFF00558C\r\n:00000001FF\r\n"));
    EXPECT_THAT(correr(&Form1::leer_Click), EndsWith("Leyendo\r\n10:11:12... Lectura Concluida!!!\r\n"));
    muestran(cuadriculas, imagen);
    dialogo.elegir = carpeta + "/lectura.hex";
    form->guardar_Click();
    EXPECT_EQ(leerarchivo(carpeta + "/lectura.hex"), lineashex(imagen) + "\r\n");
    // The command line reads the same chip, over a file of its own.
    escribir("viejo", "cli.hex"), std::this_thread::sleep_for(Emulador::cambiodesesion);
    EXPECT_EQ(correrorden({"--puerto", emulador.ruta(), "leer", "-o", carpeta + "/cli.hex"}, carpeta).salida,
              "8192 bytes leídos en " + carpeta + "/cli.hex\n");
    EXPECT_EQ(leerarchivo(carpeta + "/cli.hex"), leerarchivo(carpeta + "/lectura.hex"));
    const std::string exito = "G R A V A C I O N    E X I T O S A ...!!!";
    EXPECT_THAT(correr(&Form1::grabar_Click), EndsWith("Grabacion Exitosa!!!\r\n"));
    EXPECT_EQ(StatusBar1.textos[1], exito);
    EXPECT_THAT(correr(&Form1::verificar_Click),
                EndsWith("Verificando\r\n                 Error.. Direccion = 0001  Buffer = 22   Leido = 99\r\n"
                         "10:11:12... Termina Verificacion!!!\r\n"));
    cuadriculas.fgascii.TextMatrix(2, 5, "<"), form->edicion().filaeditada = 2; // an edit in row 2
    EXPECT_THAT(correr(&Form1::editado_Click), EndsWith("Grabacion Exitosa!!!... 48 Bytes Grabados\r\n"));
    EXPECT_EQ(StatusBar1.textos[1], exito);
    correr(&Form1::leer_Click);
    // Rows 0 to 2 went out as the read left them in the grids, but for the edited byte.
    imagen[0x1000] = 0xAA, imagen[0x1001] = 0xBB, imagen[0x1002] = 0xCC, imagen[0x1FFF] = 0x55, imagen[0x25] = '<';
    EXPECT_EQ(form->leido().textoleido, lineashex(imagen));
    EXPECT_TRUE(avisos.mostrados.empty());
}

// A board that never answers, or no device at all: the whole wait is spent before giving up.
// (That bytes pass raw is seen in the operations above.)
TEST(PuertoSerieTest, ASilentBoardOrAMissingDeviceGivesUpAfterTheWholeBudget)
{
    unsetenv("EEPROG_COM1");
    EXPECT_EQ(nombrepuerto(), "/dev/ttyS0") << "without EEPROG_COM1, the first serial port";
    Emulador muda({"--muda"});
    for (const std::string& ruta : {muda.ruta(), std::string("/dev/eeprog-no-existe")}) {
        PuertoSerie puerto(ruta);
        Enlace enlace(puerto);
        enlace.serial();
        EXPECT_EQ(puerto.abierto(), ruta == muda.ruta()) << ruta;
        const auto antes = std::chrono::steady_clock::now();
        EXPECT_EQ(enlace.intercambio("c"), "Error") << ruta;
        EXPECT_GE(std::chrono::steady_clock::now() - antes, std::chrono::milliseconds(100)) << ruta;
    }
}

// A fast read killed in the middle leaves the board two requests of four 134-byte blocks to
// send, 1072 bytes, which wait in the terminal for the next run: one read takes them all.
TEST(PuertoSerieTest, OneReadTakesAllThatWaitsEvenMoreThanAKilobyte)
{
    const int maestro = posix_openpt(O_RDWR | O_NOCTTY);
    ASSERT_TRUE(maestro >= 0 && grantpt(maestro) == 0 && unlockpt(maestro) == 0);
    PuertoSerie puerto(ptsname(maestro));
    ASSERT_TRUE(puerto.abrir());
    const std::string bloques(1072, '\x6C');
    ASSERT_EQ(write(maestro, bloques.data(), bloques.size()), 1072);
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
    EXPECT_EQ(puerto.leer().size(), 1072u);
    puerto.cerrar();
    close(maestro);
}

} // namespace
} // namespace eeprog::prueba
