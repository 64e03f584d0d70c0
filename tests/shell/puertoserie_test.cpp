#include "emulador.h"
#include "link/conexion.h"
#include "link/enlace.h"
#include "shell/qt/puertoserie.h"

#include <gtest/gtest.h>

namespace eeprog::prueba {

// The real serial port code against the real emulator program on a pseudo-terminal: bytes a
// cooked terminal would translate or swallow go out and come back as they are.
TEST(PuertoSerieTest, TheCheckPassesAndTheFramesCarryEveryByteValueRaw)
{
    Emulador placa;
    unsetenv("EEPROG_COM1");
    EXPECT_EQ(nombrepuerto(), "/dev/ttyS0");
    setenv("EEPROG_COM1", placa.ruta().c_str(), 1);
    PuertoSerie puerto; // EEPROG_COM1 names the device
    Enlace enlace(puerto);
    enlace.serial();
    EXPECT_TRUE(comprobarconexion(enlace));
    const std::string datos("\r\x11\x13\x00\xFF\n", 6);
    std::string ecos;
    for (char byte : std::string("w\x06\x00\x40\x00", 5) + datos + std::string("r\x06\x00\x40\x00\0\1\2\3\4\5", 11))
        ecos += enlace.intercambio(std::string(1, byte));
    EXPECT_EQ(ecos.substr(0, 11), std::string("w\x06\x00\x40\x00", 5) + datos);
    EXPECT_EQ(ecos.substr(ecos.size() - 6), datos);
    unsetenv("EEPROG_COM1");
}

// A board that never answers, or no device at all: the whole wait is spent before giving up.
TEST(PuertoSerieTest, ASilentBoardOrAMissingDeviceGivesUpAfterTheWholeBudget)
{
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

} // namespace eeprog::prueba
