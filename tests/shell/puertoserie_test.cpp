#include "aplicacion.h"
#include "emulador.h"
#include "link/conexion.h"
#include "link/enlace.h"
#include "pantallafalsa.h"
#include "shell/qt/cajainforme.h"
#include "shell/qt/puertoserie.h"
#include "shell/qt/ventanaform1.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <thread>

namespace eeprog {
namespace {

using namespace prueba;

// The real serial port code against the real emulator program on a pseudo-terminal.
class PuertoSerieTest : public ::testing::Test {
protected:
    static void SetUpTestSuite() { crearaplicacion(); }
};

TEST_F(PuertoSerieTest, TheCheckPassesAndTheFramesCarryEveryByteValueRaw)
{
    Emulador placa;
    ASSERT_FALSE(placa.ruta().empty());
    PuertoSerie puerto(placa.ruta());
    Enlace enlace(puerto);
    enlace.serial();
    ASSERT_TRUE(puerto.abierto());
    EXPECT_TRUE(comprobarconexion(enlace));

    // Bytes a cooked terminal would translate or swallow: CR, XON, XOFF, 0, 0xFF.
    const std::string datos("\r\x11\x13\x00\xFF\n", 6);
    const std::string escritura = std::string("w\x06\x00\x40\x00", 5) + datos;
    std::string ecos;
    for (char byte : escritura)
        ecos += enlace.intercambio(std::string(1, byte));
    EXPECT_EQ(ecos, escritura);

    std::string leidos;
    for (char byte : std::string("r\x06\x00\x40\x00", 5))
        enlace.intercambio(std::string(1, byte));
    for (int k = 0; k < 6; ++k)
        leidos += enlace.intercambio(std::string(1, static_cast<char>(k)));
    EXPECT_EQ(leidos, datos);
    enlace.cerrar();
    EXPECT_FALSE(puerto.abierto());
}

TEST_F(PuertoSerieTest, ASilentBoardGivesErrorAfterTheWholeBudget)
{
    Emulador placa({"--muda"});
    PuertoSerie puerto(placa.ruta());
    Enlace enlace(puerto);
    enlace.serial();
    const auto antes = std::chrono::steady_clock::now();
    EXPECT_EQ(enlace.intercambio("c"), "Error");
    EXPECT_GE(std::chrono::steady_clock::now() - antes, std::chrono::milliseconds(100));
    enlace.cerrar();
}

TEST_F(PuertoSerieTest, AMissingDeviceNeverOpensAndStillWaitsOutTheBudget)
{
    PuertoSerie puerto("/dev/eeprog-no-existe");
    Enlace enlace(puerto);
    enlace.serial();
    EXPECT_FALSE(puerto.abierto());
    const auto antes = std::chrono::steady_clock::now();
    EXPECT_FALSE(comprobarconexion(enlace));
    EXPECT_GE(std::chrono::steady_clock::now() - antes, std::chrono::milliseconds(100));
}

TEST_F(PuertoSerieTest, EeprogCom1NamesThePortElseTheFirstSerialPort)
{
    const char* antes = std::getenv("EEPROG_COM1");
    const std::string guardado = antes ? antes : "";
    setenv("EEPROG_COM1", "/dev/ttyUSB3", 1);
    EXPECT_EQ(nombrepuerto(), "/dev/ttyUSB3");
    setenv("EEPROG_COM1", "", 1);
    EXPECT_EQ(nombrepuerto(), "/dev/ttyS0");
    unsetenv("EEPROG_COM1");
    EXPECT_EQ(nombrepuerto(), "/dev/ttyS0");
    if (antes)
        setenv("EEPROG_COM1", guardado.c_str(), 1);
}

// The whole start-up: the window reads EEPROG_COM1 and checks the board once.
std::string logdearranque(const std::string& dispositivo)
{
    setenv("EEPROG_COM1", dispositivo.c_str(), 1);
    Dependencias dependencias = dependenciasreales();
    unsetenv("EEPROG_COM1");
    dependencias.reloj = std::make_unique<RelojFijo>();
    dependencias.avisos = std::make_unique<AvisosFalsos>();
    VentanaForm1 ventana(std::move(dependencias));
    ventana.show();
    return ventana.txtinforme().texto();
}

const std::string cabecera = "Programador de memorias EEPROM AT28c64b por Varnimo\r\n"
                             "Fecha : 23/11/2026    Hora : 10:11:12           Cesion Iniciada...\r\n";

TEST_F(PuertoSerieTest, TheWindowStartsConnectedToTheEmulator)
{
    Emulador placa;
    EXPECT_EQ(logdearranque(placa.ruta()), cabecera + "Programador..... C O N E C T A D O !!!!\r\n");
}

TEST_F(PuertoSerieTest, TheWindowStartsWithoutABoardOnAMissingDevice)
{
    EXPECT_EQ(logdearranque("/dev/eeprog-no-existe"), cabecera + "Programador..... NO EXISTE CONECCION\r\n");
}

} // namespace
} // namespace eeprog
