// The emulator program itself, on a real pseudo-terminal, as eeprog meets it.

#include "emulador.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <thread>
#include <vector>

namespace {

using eeprog::prueba::Emulador;

constexpr int paciencia = Emulador::paciencia;
// How long a board may stay quiet before its silence counts as no reply.
constexpr int silencio = 300;
constexpr auto cambiodesesion = Emulador::cambiodesesion;

// No settings of its own: the emulator must have left the terminal raw for any program.
int abrirpuerto(const std::string& ruta)
{
    return open(ruta.c_str(), O_RDWR | O_NOCTTY);
}

std::optional<unsigned char> intercambiar(int puerto, unsigned char byte, int espera = paciencia)
{
    unsigned char respuesta = 0;
    pollfd vigilado{puerto, POLLIN, 0};
    if (write(puerto, &byte, 1) != 1 || poll(&vigilado, 1, espera) != 1 || read(puerto, &respuesta, 1) != 1) {
        return std::nullopt;
    }
    return respuesta;
}

std::string conversar(int puerto, const std::string& enviado)
{
    std::string respuestas;
    for (char byte : enviado) {
        auto respuesta = intercambiar(puerto, static_cast<unsigned char>(byte));
        if (!respuesta) {
            break;
        }
        respuestas += static_cast<char>(*respuesta);
    }
    return respuestas;
}

std::string carpetatemporal()
{
    std::string plantilla = testing::TempDir() + "eeprogplacaXXXXXX";
    return mkdtemp(plantilla.data()) ? plantilla : std::string();
}

} // namespace

TEST(EeprogPlaca, ServesFramesOverSessionsAndDumpsTheChipOnExit)
{
    std::filesystem::path carpeta = carpetatemporal();
    ASSERT_FALSE(carpeta.empty());
    std::ofstream(carpeta / "imagen.bin", std::ios::binary) << "xy";
    std::filesystem::path enlace = carpeta / "com1";
    Emulador emulador({"--imagen", carpeta / "imagen.bin", "--volcado", carpeta / "volcado.bin", "--enlace", enlace});
    std::string ruta = emulador.ruta();
    ASSERT_FALSE(ruta.empty());

    int puerto = abrirpuerto(enlace);
    ASSERT_GE(puerto, 0);
    EXPECT_EQ(conversar(puerto, "c"), "c");
    // Bytes that a terminal left cooked would translate, swallow or wait on.
    const std::string datos("\r\x11\x00", 3);
    EXPECT_EQ(conversar(puerto, std::string("w\x03\x00\x10\x00", 5) + datos),
              std::string("w\x03\x00\x10\x00", 5) + datos);
    EXPECT_EQ(conversar(puerto, std::string("r\x03\x00\x10\x00\x00\x00\x00", 8)).substr(5), datos);
    EXPECT_EQ(conversar(puerto, std::string("r\x02\x00\x00\x00\x00\x00", 7)).substr(5), "xy");
    // Left in the middle of a frame: the next session must not take up where this one stopped.
    EXPECT_EQ(conversar(puerto, std::string("w\x01\x00\x20\x00", 5)).size(), 5U);
    close(puerto);
    std::this_thread::sleep_for(cambiodesesion);

    puerto = abrirpuerto(ruta);
    ASSERT_GE(puerto, 0);
    EXPECT_EQ(conversar(puerto, std::string("r\x01\x00\x20\x00\x00", 6)).substr(5), "\xFF");
    close(puerto);

    EXPECT_EQ(emulador.terminar(), 0);
    EXPECT_FALSE(std::filesystem::is_symlink(enlace));
    std::ifstream volcado(carpeta / "volcado.bin", std::ios::binary);
    std::string chip{std::istreambuf_iterator<char>(volcado), std::istreambuf_iterator<char>()};
    ASSERT_EQ(chip.size(), 8192U);
    EXPECT_EQ(chip.substr(0, 2), "xy");
    EXPECT_EQ(chip.substr(0x10, 4), datos + "\xFF");
    EXPECT_EQ(chip[0x20], '\xFF');
    std::filesystem::remove_all(carpeta);
}

TEST(EeprogPlaca, SilenciosaAnswersTheCheckOfEachSession)
{
    Emulador emulador({"--silenciosa"});
    std::string ruta = emulador.ruta();
    ASSERT_FALSE(ruta.empty());
    int puerto = abrirpuerto(ruta);
    EXPECT_EQ(intercambiar(puerto, 'c'), 'c');
    EXPECT_EQ(intercambiar(puerto, 'c', silencio), std::nullopt);
    close(puerto);
    std::this_thread::sleep_for(cambiodesesion);
    puerto = abrirpuerto(ruta);
    EXPECT_EQ(intercambiar(puerto, 'c'), 'c');
    close(puerto);
    EXPECT_EQ(emulador.terminar(), 0);
}

// The pacing can only make a reply later, so its lower bound holds however loaded the machine.
TEST(EeprogPlaca, RitmoHoldsEachReplyForTwoBytesOfWireTime)
{
    Emulador emulador({"--ritmo"});
    int puerto = abrirpuerto(emulador.ruta());
    ASSERT_GE(puerto, 0);
    for (int i = 0; i < 5; ++i) {
        auto antes = std::chrono::steady_clock::now();
        ASSERT_EQ(intercambiar(puerto, 'c'), 'c');
        EXPECT_GE(std::chrono::steady_clock::now() - antes, std::chrono::microseconds(2083));
    }
    close(puerto);
    EXPECT_EQ(emulador.terminar(), 0);
}

TEST(EeprogPlaca, BadOptionsAndAnUnreadableImageEndIt)
{
    EXPECT_EQ(Emulador({"--nada"}).fin(), 2);
    EXPECT_EQ(Emulador({"--eco-erroneo", "0"}).fin(), 2);
    EXPECT_EQ(Emulador({"--imagen", "/nohay/imagen.bin"}).fin(), 1);
}
