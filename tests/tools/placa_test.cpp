#include "emulador.h"
#include "imagen.h"
#include "ordencli.h"
#include "placa.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <thread>

namespace {

using eeprog::prueba::correrprograma;
using eeprog::prueba::Emulador;
using namespace std::string_literals;
using namespace std::chrono_literals;

// Each session is opened anew and gets its bytes one at a time; a silent byte adds nothing
// to the replies, and a session with no bytes stands for the line's silence. A frame is its
// order ("r" read, "w" write), a count, the address high byte first, a type, and count
// bytes, which a read frame answers with the chip's bytes: "w\2\1\x20\0AB" writes "AB" at
// 0x0120. What a session writes shows in what a read answers.
TEST(Placa, AnswersEachConversationByteForByte)
{
    const struct {
        const char* nombre;
        std::vector<std::pair<std::string, std::string>> sesiones; // bytes in, bytes out
        eeprog::OpcionesPlaca opciones = {};
    } casos[]{
        {"IdleAnswersTheCheckAndEchoesAnyOtherByte", {{"c\0A\xFF\x10"s, "c\0A\xFF\x10"s}}},
        // 0xFFFE falls on 0x1FFE, and a frame runs on past the chip's end to 0x0000. The pacing
        // bytes of a read are not echoed: a board that echoed them would answer "..".
        {"AddressesWrapIntoTheChip", {{"w\4\xFF\xFE\0wxyzr\2\x3F\xFF\0.."s, "w\4\xFF\xFE\0wxyzr\2\x3F\xFF\0xy"s}}},
        {"TypeIsIgnoredAndCountZeroEndsAFrame",
         {{"w\1\0\2\1Ew\0\0\3\0r\2\0\2\0.."s, "w\1\0\2\1Ew\0\0\3\0r\2\0\2\0E\377"s}}},
        // The board cannot see the port reopened: only a silence ends a frame left half way.
        {"AHalfFrameLastsUntilASilence",
         {{"w\3\0\x30\0a"s, "w\3\0\x30\0a"s}, {"b"s, "b"s}, {}, {"cr\3\0\x30\0..."s, "cr\3\0\x30\0ab\377"s}}},
        // Data bytes written are counted over the board's life; the 5th, "E", is heard with
        // its lowest bit flipped, and stored so.
        {"EcoErroneoHearsTheNthDataByteWrong",
         {{"w\3\0\x40\0ABC"s, "w\3\0\x40\0ABC"s},
          {"w\3\0\x50\0DEFr\2\0\x50\0.."s, "w\3\0\x50\0DDFr\2\0\x50\0DD"s},
          {"w\1\0\x60\0G"s, "w\1\0\x60\0G"s}},
         {.ecoerroneo = 5}},
    };
    for (const auto& caso : casos) {
        eeprog::Placa placa(caso.opciones);
        for (const auto& [entrada, salida] : caso.sesiones) {
            placa.conectar();
            if (entrada.empty())
                placa.silencio();
            std::string respuestas;
            for (char byte : entrada)
                respuestas += placa.recibir(static_cast<unsigned char>(byte));
            EXPECT_EQ(respuestas, salida) << caso.nombre;
        }
    }
}

// A plain write that the chip's protection ignored goes again protected, and the rest of the
// operation goes protected at once, one write cycle a byte, until the next check "c". The
// protection stays on.
TEST(Placa, AProtectedChipCostsOneMoreWriteCycleAnOperation)
{
    eeprog::Placa placa({.protegido = true});
    const auto enviar = [&](const std::string& bytes) {
        for (char byte : bytes)
            placa.recibir(static_cast<unsigned char>(byte));
    };
    enviar("cw\3\0\x40\0ABC"s);
    EXPECT_EQ(placa.ciclos(), 4);
    enviar("cw\1\0\x43\0D"s);
    EXPECT_EQ(placa.ciclos(), 6);
    EXPECT_EQ(std::string(placa.chip().begin() + 0x40, placa.chip().begin() + 0x44), "ABCD");
    EXPECT_TRUE(placa.protegido());
}

// Each byte waits for its reply before the next goes; the talk ends at the first silence.
std::string conversar(const std::string& ruta, const std::string& enviado)
{
    const int puerto = open(ruta.c_str(), O_RDWR | O_NOCTTY); // no settings: it must be raw
    std::string respuestas;
    for (char byte : enviado) {
        pollfd vigilado{puerto, POLLIN, 0};
        if (write(puerto, &byte, 1) != 1 || poll(&vigilado, 1, Emulador::paciencia) != 1 || read(puerto, &byte, 1) != 1)
            break;
        respuestas += byte;
    }
    close(puerto);
    std::this_thread::sleep_for(Emulador::cambiodesesion); // for the emulator to see the close
    return respuestas;
}

// The program on a real pseudo-terminal, reached through its link; each conversation is a
// session. --ritmo only delays the replies, which must still all come. A short image fills the
// chip from address 0; an image that cannot be read, or a dump that cannot be written, fails.
TEST(EeprogPlaca, ServesSessionsDumpsTheChipOnExitAndRefusesBadOptions)
{
    std::string carpeta = testing::TempDir() + "eeprogplacaXXXXXX";
    ASSERT_NE(mkdtemp(carpeta.data()), nullptr);
    std::ofstream(carpeta + "/imagen.bin") << "xy";
    std::filesystem::create_symlink("/nohay", carpeta + "/com1"); // a link left by an earlier run
    Emulador emulador({"--imagen", carpeta + "/imagen.bin", "--volcado", carpeta + "/volcado.bin", "--enlace",
                       carpeta + "/com1", "--ritmo"});
    ASSERT_FALSE(emulador.ruta().empty());
    // Bytes that a terminal left cooked would translate, swallow or wait on; then a half
    // frame, which the next session must not take up once the line has been quiet for the
    // board's half second.
    EXPECT_EQ(conversar(carpeta + "/com1", "cw\3\0\x10\0\r\x11\0w\1\0\x20\0"s), "cw\3\0\x10\0\r\x11\0w\1\0\x20\0"s);
    std::this_thread::sleep_for(std::chrono::milliseconds(600));
    EXPECT_EQ(conversar(emulador.ruta(), "r\1\0\x20\0\0"s), "r\1\0\x20\0\xFF"s);
    EXPECT_EQ(emulador.terminar(), 0);
    EXPECT_FALSE(std::filesystem::is_symlink(carpeta + "/com1"));
    std::vector<unsigned char> chip(8192);
    EXPECT_EQ(std::filesystem::file_size(carpeta + "/volcado.bin"), 8192u);
    EXPECT_TRUE(eeprog::cargarimagen(carpeta + "/volcado.bin", chip));
    EXPECT_EQ(std::string(chip.begin(), chip.begin() + 3) + std::string(chip.begin() + 0x10, chip.begin() + 0x14),
              "xy\xFF\r\x11\0\xFF"s);
    std::filesystem::remove_all(carpeta);
}

// What a board program cannot take ends it with a line that says why: at once for its words
// and files, when it is told to end for a dump it cannot write. --help, the name a
// command-line user tries first, gives the usage as --ayuda does, on standard output.
TEST(EeprogPlaca, WhatItCannotTakeEndsItWithALineSayingWhy)
{
    const std::string carpeta = testing::TempDir();
    std::ofstream(carpeta + "texto.elf") << "no soy un ELF";
    const struct {
        std::string programa;
        std::vector<std::string> palabras;
        int estado;
        std::string linea;
    } filas[] = {
        {EEPROG_PLACA, {"--help"}, 0, "Uso: eeprog-placa [OPCIONES]"},
        {EEPROG_SIMPLACA, {"--help"}, 0, "Uso: eeprog-simplaca [OPCIONES]"},
        {EEPROG_PLACA, {"--nada"}, 2, "eeprog-placa: opción no válida o sin su valor: --nada"},
        {EEPROG_PLACA, {"--eco-erroneo", "0"}, 2, "eeprog-placa: --eco-erroneo pide un número mayor que 0: 0"},
        {EEPROG_PLACA, {"--ritmo", "sobra"}, 2, "eeprog-placa: sobra el argumento sobra"},
        {EEPROG_PLACA, {"--imagen", "/nohay/i.bin"}, 1, "eeprog-placa: no se puede leer la imagen /nohay/i.bin"},
        {EEPROG_PLACA, {"--imagen", carpeta}, 1, "eeprog-placa: no se puede leer la imagen " + carpeta},
        {EEPROG_PLACA, {"--volcado", "/nohay/v.bin"}, 1, "eeprog-placa: no se puede escribir el volcado /nohay/v.bin"},
        {EEPROG_SIMPLACA, {"--ciclo", "0"}, 2, "eeprog-simplaca: --ciclo pide microsegundos, de 1 a 1000000: 0"},
        {EEPROG_SIMPLACA, {"--ruido", "1x"}, 2, "eeprog-simplaca: --ruido pide un número mayor que 0: 1x"},
        {EEPROG_SIMPLACA, {"--nada"}, 2, "eeprog-simplaca: opción no válida o sin su valor: --nada"},
        {EEPROG_PLACA, {"--chip", "27C256"}, 2, "eeprog-placa: --chip pide AT28C64B o AT28C256: 27C256"},
        {EEPROG_SIMPLACA,
         {"--chip", "AT28C64X"},
         2,
         "eeprog-simplaca: --chip pide AT28C64B, AT28C256 o AT28C64: AT28C64X"},
        {EEPROG_SIMPLACA,
         {"--firmware", "/nohay/f.elf"},
         1,
         "eeprog-simplaca: no se puede leer el firmware /nohay/f.elf"},
        {EEPROG_SIMPLACA,
         {"--firmware", carpeta + "texto.elf"},
         1,
         "eeprog-simplaca: el firmware " + carpeta + "texto.elf no es un ELF de AVR"},
    };
    for (auto fila : filas) {
        if (fila.programa.empty())
            continue;
        const bool corre = fila.palabras[0] == "--volcado"; // it fails when it ends
        fila.palabras.insert(fila.palabras.begin(), fila.programa);
        const auto corrida = correrprograma(fila.palabras, carpeta, corre ? 500ms : 0ms, SIGTERM);
        EXPECT_EQ(corrida.estado, fila.estado) << fila.linea;
        const std::string dicho = corrida.errores + corrida.salida;
        EXPECT_EQ(dicho.substr(0, dicho.find('\n')), fila.linea);
    }
}

} // namespace
