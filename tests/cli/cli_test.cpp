#include "chipprueba.h"
#include "emulador.h"
#include "ordencli.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <unistd.h>

#include <filesystem>
#include <memory>
#include <regex>

namespace eeprog::prueba {
namespace {

using namespace std::chrono_literals;

// A terminal of the test's own at the far end of the port: a board that never answers and
// keeps every byte it hears.
class Escucha {
public:
    Escucha() : maestro_(posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK)) { grantpt(maestro_), unlockpt(maestro_); }
    ~Escucha() { close(maestro_); }
    std::string ruta() const { return ptsname(maestro_); }
    std::string oido() const
    {
        std::string bytes;
        char byte = 0;
        while (read(maestro_, &byte, 1) == 1)
            bytes += byte;
        return bytes;
    }

private:
    int maestro_;
};

class OrdenCli : public testing::Test {
protected:
    void SetUp() override { ASSERT_NE(mkdtemp(carpeta.data()), nullptr); }
    void TearDown() override { std::filesystem::remove_all(carpeta); }

    std::string escribir(const std::string& texto, const std::string& nombre)
    {
        std::ofstream(carpeta + "/" + nombre, std::ios::binary) << texto;
        return carpeta + "/" + nombre;
    }
    std::string leer(const std::string& nombre)
    {
        std::ostringstream texto;
        texto << std::ifstream(carpeta + "/" + nombre, std::ios::binary).rdbuf();
        return texto.str();
    }
    std::string imagen(const Chip& chip) { return escribir(std::string(chip.begin(), chip.end()), "imagen.bin"); }
    Corrida correr(const std::vector<std::string>& argumentos, std::chrono::milliseconds interrupcion = {},
                   int senal = SIGINT)
    {
        std::this_thread::sleep_for(Emulador::cambiodesesion);
        return correrorden(argumentos, carpeta, interrupcion, senal);
    }

    std::string carpeta = std::filesystem::temp_directory_path() / "eeprog-cli-XXXXXX";
};

// The boards the orders are tried on: the emulator, and the simulated board that runs the
// firmware, where the AVR tool chain and simavr were there to build them, with the chip's
// usual write cycle and with the longest the data sheet allows, 10 ms.
struct Tablero {
    const char* nombre;
    std::string programa;
    std::vector<std::string> opciones = {};
};

void PrintTo(const Tablero& tablero, std::ostream* salida)
{
    *salida << tablero.nombre;
}

class OrdenPlaca : public OrdenCli, public testing::WithParamInterface<Tablero> {
protected:
    void SetUp() override
    {
        if (GetParam().programa.empty())
            GTEST_SKIP() << "no simulated board: it needs gcc-avr, avr-libc and libsimavr-dev";
        OrdenCli::SetUp();
    }
    bool simulada() const { return GetParam().programa != EEPROG_PLACA; }
    // The simulated board is given no --firmware: it takes the one the build put beside it.
    std::unique_ptr<Emulador> placa(std::vector<std::string> opciones)
    {
        if (simulada())
            opciones.insert(opciones.end(), {"--faltas", carpeta + "/faltas"});
        opciones.insert(opciones.end(), GetParam().opciones.begin(), GetParam().opciones.end());
        return std::make_unique<Emulador>(opciones, GetParam().programa);
    }
    // The simulated chip recorded no fault of the firmware on its bus.
    void terminar(Emulador& placa)
    {
        ASSERT_EQ(placa.terminar(), 0);
        if (simulada()) {
            EXPECT_EQ(leer("faltas"), "");
        }
    }
    Corrida orden(const Emulador& placa, std::vector<std::string> palabras)
    {
        palabras.insert(palabras.begin(), {"-q", "--puerto", placa.ruta()});
        return correr(palabras);
    }
};

INSTANTIATE_TEST_SUITE_P(, OrdenPlaca,
                         testing::Values(Tablero{"emulador", EEPROG_PLACA}, Tablero{"simulada", EEPROG_SIMPLACA},
                                         Tablero{"simulada10ms", EEPROG_SIMPLACA, {"--ciclo", "10000"}}),
                         [](const auto& info) { return std::string(info.param.nombre); });

// The 28C256 on the emulator and on the simulated board with the usual write cycle: a 10 ms
// one would add only time.
class Placa256 : public OrdenPlaca {};

INSTANTIATE_TEST_SUITE_P(, Placa256,
                         testing::Values(Tablero{"emulador", EEPROG_PLACA}, Tablero{"simulada", EEPROG_SIMPLACA}),
                         [](const auto& info) { return std::string(info.param.nombre); });

// A protected 28C256: read whole, programmed with a full 32 KB image through its protection
// and verified, then unprotected by the sequence at its own addresses (a chip model that knew
// only the AT28C64B's would keep it on). An AT28C64B read after it finds A13 and A14 let go:
// its 8 KB are the chip's first.
TEST_P(Placa256, IsReadProgrammedAndUnprotected)
{
    Chip256 antes, despues;
    azar(antes, 21), azar(despues, 22);
    const auto bytes = [](const Chip256& chip) { return std::string(chip.begin(), chip.end()); };
    const auto tablero = placa({"--chip", "AT28C256", "--protegido", "--imagen", escribir(bytes(antes), "antes.bin"),
                                "--volcado", carpeta + "/volcado.bin", "--estado", carpeta + "/estado"});
    EXPECT_EQ(orden(*tablero, {"--chip", "28c256", "leer", "--formato", "bin"}).salida, bytes(antes));
    const Corrida grabada =
        orden(*tablero, {"--chip", "AT28C256", "grabar", "--verificar", escribir(bytes(despues), "despues.bin")});
    EXPECT_EQ(grabada.estado, 0) << grabada.errores;
    EXPECT_EQ(orden(*tablero, {"--chip", "AT28C256", "desproteger"}).estado, 0);
    EXPECT_EQ(orden(*tablero, {"leer", "--formato", "bin"}).salida, bytes(despues).substr(0, 8192));
    terminar(*tablero);
    EXPECT_EQ(leer("volcado.bin"), bytes(despues));
    EXPECT_EQ(leer("estado"), "desprotegido\n");
}

// The board's test of its own wiring, on the simulated board: a line broken each way in each
// group, by either protocol and with the 28C256's high lines, two lines joined, two swapped
// across the page's lines, an empty socket, a dead chip. Each is named on a line of its own.
// A healthy board, with its chip protected or not, passes and leaves every byte as it was.
class PruebaPlaca : public OrdenPlaca {};

INSTANTIATE_TEST_SUITE_P(, PruebaPlaca, testing::Values(Tablero{"simulada", EEPROG_SIMPLACA}),
                         [](const auto& info) { return std::string(info.param.nombre); });

TEST_P(PruebaPlaca, NamesTheLineAtFaultAndLeavesAHealthyBoardsChipAsItWas)
{
    Chip chip;
    azar(chip, 31);
    const std::string antes = imagen(chip);
    const struct {
        std::vector<std::string> placa;
        std::string dicho;
        std::vector<std::string> cli = {};
    } averias[] = {
        {{"--averia", "A2=0"}, "A2: atascada a 0 o a 1 (el chip no la ve cambiar)\n"},
        {{"--averia", "A11=1"}, "A11: atascada a 0 o a 1 (el chip no la ve cambiar)\n", {"--lento"}},
        {{"--averia", "A1=abierta"}, "A1: cortada (el chip la toma al azar)\n"},
        {{"--averia", "A10=abierta"}, "A10: cortada (el chip la toma al azar)\n", {"--lento"}},
        {{"--averia", "D6=0"}, "D6: atascada a 0\n"},
        {{"--averia", "D1=1"}, "D1: atascada a 1\n", {"--lento"}},
        {{"--averia", "D3=abierta"}, "D3: cortada (se lee al azar)\n"},
        {{"--averia", "A7=unida:A8"}, "A7: unida a A8\n"},
        {{"--averia", "D5=unida:D4"}, "D4: unida a D5\n"},
        {{"--averia", "A3=cruzada:A9"}, "A3: llega al chip como una línea de página, cruzada con una de A6-A12\n"},
        {{"--chip", "AT28C256", "--averia", "A14=0"},
         "A14: atascada a 0 o a 1 (el chip no la ve cambiar)\n",
         {"--chip", "AT28C256"}},
        {{"--sin-chip"}, "no hay chip en el zócalo: el bus de datos flota\n"},
        {{"--chip-muerto"}, "el chip no guarda nada, ni por una escritura protegida: se lee siempre"},
    };
    for (const auto& averia : averias) {
        auto opciones = averia.placa;
        opciones.insert(opciones.end(), {"--imagen", antes});
        const auto tablero = placa(opciones);
        auto palabras = averia.cli;
        palabras.push_back("prueba");
        const Corrida corrida = orden(*tablero, palabras);
        EXPECT_EQ(corrida.estado, 1) << averia.dicho;
        EXPECT_EQ(corrida.salida.substr(0, averia.dicho.size()), averia.dicho) << corrida.salida;
        ASSERT_EQ(tablero->terminar(), 0);
    }
    for (const bool protegido : {false, true}) {
        for (const char* protocolo : {"--lento", "-v"}) { // -v: the fast one, said on standard error
            std::vector<std::string> opciones{
                "--imagen", antes, "--volcado", carpeta + "/volcado.bin", "--estado", carpeta + "/estado"};
            if (protegido)
                opciones.push_back("--protegido");
            const auto tablero = placa(opciones);
            const Corrida corrida = correr({"--puerto", tablero->ruta(), protocolo, "prueba"});
            EXPECT_EQ(corrida.estado, 0) << corrida.salida << corrida.errores;
            EXPECT_EQ(corrida.salida, "Las líneas A0-A12 y D0-D7 responden bien; los 30 bytes probados están como "
                                      "estaban\n");
            terminar(*tablero);
            EXPECT_EQ(leer("volcado.bin"), leer("imagen.bin")) << protegido << protocolo;
            EXPECT_EQ(leer("estado"), protegido ? "protegido\n" : "desprotegido\n");
        }
    }
    // With D4 tied high a verify's differences all lie in bit 4; the chip did change, though.
    const auto atada = placa({"--averia", "D4=1"});
    const Corrida grabada = orden(*atada, {"grabar", "--verificar", antes});
    EXPECT_EQ(grabada.estado, 1);
    EXPECT_EQ(grabada.errores,
              "eeprog-cli: todas las diferencias están en el bit 4: puede ser la línea D4 de la placa, "
              "que eeprog-cli prueba comprueba\n");
    ASSERT_EQ(atada->terminar(), 0);
}

// Every shape of file leaves on the chip the bytes it gives, and nothing else, by the fast
// protocol and by the old one: the rest of the chip, and of the pages the file touches,
// keeps what it had. The whole chip by the old protocol is tried on the emulator alone,
// where it takes no longer than the rest.
TEST_P(OrdenPlaca, ProgrammingAndVerifyingLeaveTheChipTheFileGives)
{
    Chip chip;
    azar(chip, 7);
    Chip antes;
    azar(antes, 13);
    const std::string previo = escribir(std::string(antes.begin(), antes.end()), "antes.bin");
    Chip disperso = antes;
    disperso[0x100] = 0xAA, disperso[0x101] = 0xBB, disperso[0x102] = 0xCC;
    Chip tramos = antes;
    tramos[0x3E] = 1, tramos[0x3F] = 2, tramos[0x40] = 3, tramos[0x41] = 4;
    tramos[0x7F] = 5, tramos[0x80] = 6, tramos[0x1F00] = 0x77;
    const std::string atraviesan =
        escribir(":04003E0001020304B4\n:02007F00050674\n:011F00007769\n:00000001FF\n", "tramos.hex");
    const struct {
        const char* nombre;
        std::string archivo;
        const Chip& esperado;
        bool lento = false;
    } filas[] = {
        {"Intel HEX", escribir(lineashex(chip) + ":00000001FF\r\n", "chip.hex"), chip},
        {"raw image, 9600 baud", imagen(chip), chip, true},
        {"sparse S-records, LF", escribir("S1060100AABBCCC7\nS9030000FC\n", "poco.s19"), disperso},
        {"records across pages, and one far from them", atraviesan, tramos},
        {"records across pages, 9600 baud", atraviesan, tramos, true},
    };
    for (const auto& fila : filas) {
        SCOPED_TRACE(fila.nombre);
        if (fila.lento && fila.esperado == chip && simulada())
            continue;
        const auto tablero = placa({"--imagen", previo, "--volcado", carpeta + "/volcado.bin"});
        std::vector<std::string> palabras{"-v", "--puerto", tablero->ruta(), "grabar", fila.archivo, "--verificar"};
        if (fila.lento)
            palabras.push_back("--lento");
        const Corrida corrida = correr(palabras);
        EXPECT_EQ(corrida.estado, 0) << corrida.errores;
        EXPECT_NE(corrida.salida.find(", 0 diferencias\n"), std::string::npos) << corrida.salida;
        EXPECT_EQ(corrida.errores.find(fila.lento ? "eeprog-cli: protocolo de 9600" : "eeprog-cli: protocolo rápido"),
                  0u)
            << corrida.errores;
        terminar(*tablero);
        EXPECT_EQ(leer("volcado.bin"), std::string(fila.esperado.begin(), fila.esperado.end()));
    }
}

// By either protocol, the same difference in the same line; a wrong echo is named by its
// address; a board whose program is older than the chip asked for says so.
TEST_F(OrdenCli, AChangedByteAWrongEchoOrAnOlderBoardEndTheRunSayingWhy)
{
    Chip chip;
    azar(chip, 8);
    const std::string archivo = imagen(chip);
    Chip cambiado = chip;
    cambiado[0x123] ^= 0x40;
    Emulador placa({"--imagen", escribir(std::string(cambiado.begin(), cambiado.end()), "cambiado.bin")});
    char linea[64];
    std::snprintf(linea, sizeof linea, "Error.. Direccion = 0123  Buffer = %02X   Leido = %02X\n", chip[0x123],
                  cambiado[0x123]);
    for (const char* protocolo : {"--detalles", "--lento"}) {
        const Corrida corrida = correr({protocolo, "--puerto", placa.ruta(), "verificar", archivo});
        EXPECT_EQ(corrida.estado, 1);
        EXPECT_EQ(corrida.salida, linea + std::string("8192 bytes verificados, 1 diferencia\n"));
    }

    Emulador antigua({"--lenta"});
    const Corrida anterior = correr({"--chip", "AT28C256", "--puerto", antigua.ruta(), "leer"});
    EXPECT_EQ(anterior.errores + std::to_string(anterior.estado),
              "eeprog-cli: " + antigua.ruta() +
                  ": el programa de la placa es anterior al AT28C256, que pide la versión 2 de su protocolo rápido: "
                  "grabe en ella el de esta versión de eeprog\n4");

    Emulador sordo({"--eco-erroneo", "3", "--lenta"});
    const Corrida eco = correr({"--puerto", sordo.ruta(), "grabar", escribir(":0300100041424327\n", "abc.hex")});
    EXPECT_EQ(eco.estado, 1);
    EXPECT_EQ(eco.salida.find("El dato transmitido 43 no se ha recibido correctamente: Direccion = 0012"), 0u)
        << eco.salida;
    EXPECT_TRUE(eco.salida.ends_with("\n3 bytes grabados, 1 eco erróneo\n")) << eco.salida;
}

// On a terminal each order draws a bar named for what it does and ends it full, at the bytes
// it moved: the whole chip, or the one page that differed.
TEST_F(OrdenCli, OnATerminalEachOrderEndsItsBarAtTheBytesItMoved)
{
    Chip chip;
    azar(chip, 9);
    const std::string archivo = imagen(chip);
    chip[0x1234] ^= 1;
    const std::string cambiado = escribir(std::string(chip.begin(), chip.end()), "cambiado.bin");
    const std::string lleno = std::string(30, '#');
    const struct {
        std::string palabras;
        std::vector<std::string> barras;
    } filas[] = {
        {"grabar " + archivo, {"\rGrabando    [" + lleno + "]  8192/8192 bytes"}},
        {"grabar --verificar " + cambiado,
         {"\rGrabando    [" + lleno + "]  8192/8192 bytes", "\rVerificando [" + lleno + "]  8192/8192 bytes"}},
        {"grabar --solo-cambios " + archivo,
         {"\rLeyendo     [" + lleno + "]  8192/8192 bytes", "\rGrabando    [" + lleno + "]    64/64 bytes"}},
        {"borrar", {"\rBorrando    [" + lleno + "]  8192/8192 bytes"}},
        // 30 bytes read, 16 patterns written and read twice, two walks of 28 addresses written and
        // read three times, the 30 bytes compared, put back and checked.
        {"prueba", {"\rProbando    [" + lleno + "]   392/392 bytes"}},
    };
    Emulador placa;
    for (const auto& fila : filas) {
        SCOPED_TRACE(fila.palabras);
        Escucha terminal;
        std::this_thread::sleep_for(Emulador::cambiodesesion);
        const std::string orden =
            std::string(EEPROG_CLI) + " --puerto " + placa.ruta() + ' ' + fila.palabras + " 2>" + terminal.ruta();
        EXPECT_EQ(correrprograma({"/bin/sh", "-c", orden}, carpeta).estado, 0);
        const std::string dibujado = terminal.oido();
        std::size_t desde = 0;
        for (const std::string& barra : fila.barras) {
            desde = dibujado.find(barra, desde);
            EXPECT_NE(desde, std::string::npos) << barra << " in " << dibujado;
        }
        EXPECT_TRUE(dibujado.ends_with('\n'));
    }
}

// A byte changed on the line either way is caught by the CRC, a byte lost makes its frame
// go again, and the chip ends as the file says. A board with an older firmware echoes the
// fast protocol's question, and the run goes on by the old one, as it does when the first
// exchange at the new speed fails.
TEST_P(OrdenPlaca, AFaultyLineOrAnOlderBoardStillLeaveTheChipTheFileGives)
{
    Chip chip;
    azar(chip, 10);
    const std::string archivo = imagen(chip);
    const struct {
        const char* nombre;
        std::vector<std::string> opciones;
        bool simulada;
        const char* protocolo = "rápido";
    } filas[] = {
        {"a page frame heard wrong", {"--byte-erroneo", "300"}, false},
        {"a page's reply sent wrong", {"--respuesta-erronea", "140"}, false},
        {"a block sent wrong", {"--respuesta-erronea", "5000"}, false},
        {"an older board", {"--lenta"}, false, "de 9600"},
        {"the first fast exchange heard wrong", {"--byte-erroneo", "1"}, false, "de 9600"},
        {"a byte lost in a page frame", {"--ruido", "300"}, true},
    };
    for (const auto& fila : filas) {
        SCOPED_TRACE(fila.nombre);
        if (fila.simulada != simulada())
            continue;
        auto opciones = fila.opciones;
        opciones.insert(opciones.end(), {"--volcado", carpeta + "/volcado.bin"});
        const auto tablero = placa(opciones);
        const Corrida corrida = correr({"-v", "--puerto", tablero->ruta(), "grabar", archivo, "--verificar"});
        EXPECT_EQ(corrida.estado, 0) << corrida.errores;
        EXPECT_EQ(corrida.errores.find("eeprog-cli: protocolo " + std::string(fila.protocolo)), 0u) << corrida.errores;
        terminar(*tablero);
        EXPECT_EQ(leer("volcado.bin"), std::string(chip.begin(), chip.end()));
    }
}

// The window speaks only the old protocol: after a fast session, and after one cut short by
// a program killed in the middle of a read, the board is idle at 9600 again, at once or
// after its idle time (which the run after a killed one waits out): the check and a read
// frame of the old protocol, as the window's start-up and LEER send them, get their answers.
TEST_P(OrdenPlaca, AfterAFastSessionWholeOrCutTheOldProtocolFindsTheBoardIdle)
{
    Chip chip;
    azar(chip, 11);
    std::vector<std::string> opciones{"--imagen", imagen(chip)};
    if (!simulada())
        opciones.push_back("--ritmo"); // a read slow enough to be cut in the middle
    const auto tablero = placa(opciones);
    const std::string lineas = lineashex(chip);
    const std::string primera = escribir(lineas.substr(0, lineas.find('\n') + 1), "primera.hex");
    const auto antiguo = [&](const char* despues) {
        SCOPED_TRACE(despues);
        const Corrida comprobada = correr({"--puerto", tablero->ruta(), "comprobar"});
        EXPECT_EQ(comprobada.estado, 0) << comprobada.errores;
        EXPECT_EQ(orden(*tablero, {"--lento", "verificar", primera}).estado, 0);
    };
    EXPECT_EQ(orden(*tablero, {"leer", "--formato", "bin"}).salida, std::string(chip.begin(), chip.end()));
    antiguo("after a whole fast session");
    EXPECT_EQ(correr({"--puerto", tablero->ruta(), "leer", "-o", carpeta + "/chip.hex"}, 300ms, SIGKILL).estado,
              128 + SIGKILL);
    antiguo("after a session killed in the middle");
    terminar(*tablero);
}

TEST_P(OrdenPlaca, ReadingGivesTheImageAndErasingLeavesABlankChip)
{
    Chip chip;
    azar(chip, 9);
    chip[0] = 0xFF, chip[1] = 0x12;
    const auto tablero = placa({"--imagen", imagen(chip)});
    const auto dicho = [&](const char* palabra) { return correr({"--puerto", tablero->ruta(), palabra}).salida; };
    EXPECT_EQ(dicho("comprobar"), "Programador..... C O N E C T A D O !!!!\n");
    EXPECT_EQ(orden(*tablero, {"leer", "--formato", "bin"}).salida, std::string(chip.begin(), chip.end()));
    const Corrida lleno = orden(*tablero, {"vacio"});
    EXPECT_EQ(lleno.salida + std::to_string(lleno.estado), "El chip no está vacío: Direccion = 0001  Leido = 12\n1");
    EXPECT_EQ(dicho("borrar"), "8192 bytes grabados\n");
    EXPECT_EQ(dicho("vacio"), "El chip está vacío: sus 8192 bytes están en FF\n");
    terminar(*tablero);
}

// --solo-cambios reads the chip first and writes only the pages where it differs from the
// file: one byte changed costs one page's write cycle, and a chip that holds the file none.
TEST_P(OrdenPlaca, OnlyThePagesThatDifferAreWritten)
{
    Chip chip;
    azar(chip, 12);
    Chip cambiado = chip;
    cambiado[0x1234] ^= 0x01;
    std::vector<std::string> opciones{"--imagen", escribir(std::string(cambiado.begin(), cambiado.end()), "c.bin"),
                                      "--volcado", carpeta + "/volcado.bin"};
    if (simulada())
        opciones.insert(opciones.end(), {"--tiempos", carpeta + "/tiempos"});
    const auto tablero = placa(opciones);
    const std::string archivo = imagen(chip);
    for (const char* dicho : {"64 bytes grabados\n1 página grabada", "0 páginas grabadas"})
        EXPECT_EQ(correr({"--puerto", tablero->ruta(), "grabar", "--solo-cambios", archivo}).salida,
                  dicho + std::string(" de 128: las que diferían del archivo\n"));
    terminar(*tablero);
    EXPECT_EQ(leer("volcado.bin"), std::string(chip.begin(), chip.end()));
    if (simulada()) {
        EXPECT_TRUE(std::regex_match(leer("tiempos"), std::regex("[0-9.]+ 1\n[0-9.]+ 0\n"))) << leer("tiempos");
    }
}

// Many chips bought second-hand come with their write protection on: the board writes
// through it, by the window's frames and by eeprog-cli's, and leaves it on. The orders that
// change it are obeyed, but not when heard badly; a chip that keeps nothing even so has each
// byte named, and a check after says the chip has not changed.
TEST_P(OrdenPlaca, AProtectedChipIsProgrammedAndKeepsItsProtection)
{
    const auto tablero = placa({"--protegido", "--volcado", carpeta + "/volcado.bin", "--estado", carpeta + "/estado"});
    EXPECT_EQ(orden(*tablero, {"grabar", escribir(":0300100041424327\n", "abc.hex"), "--verificar"}).estado, 0);
    EXPECT_EQ(orden(*tablero, {"grabar", "--como-ventana", escribir(":02002000444555\r\n", "de.hex")}).estado, 0);
    terminar(*tablero);
    const std::string chip = leer("volcado.bin");
    EXPECT_EQ(chip.substr(0x0F, 5) + chip.substr(0x1F, 4), "\xFF"
                                                           "ABC\xFF\xFF"
                                                           "DE\xFF");
    EXPECT_EQ(leer("estado"), "protegido\n");
    const struct {
        const char* orden;
        bool protegido;
        const char* estado;
        const char* dicho;
    } cambios[] = {{"desproteger", true, "desprotegido\n", "Protección de escritura quitada\n"},
                   {"proteger", false, "protegido\n", "Protección de escritura puesta\n"}};
    for (const auto& cambio : cambios) {
        std::vector<std::string> opciones{"--estado", carpeta + "/estado"};
        if (cambio.protegido)
            opciones.push_back("--protegido");
        const auto cambiada = placa(opciones);
        EXPECT_EQ(correr({"--puerto", cambiada->ruta(), cambio.orden}).salida, cambio.dicho);
        terminar(*cambiada);
        EXPECT_EQ(leer("estado"), cambio.estado) << cambio.orden;
    }
    if (!simulada())
        return;
    // The old protocol's "d" heard with a framing error, as noise leaves a byte, gets no reply
    // and changes nothing.
    const auto ruidosa = placa({"--protegido", "--ruido", "2", "--estado", carpeta + "/estado"});
    EXPECT_EQ(orden(*ruidosa, {"--lento", "desproteger"}).estado, 4);
    terminar(*ruidosa);
    EXPECT_EQ(leer("estado"), "protegido\n");
    const auto muerto = placa({"--chip-muerto"});
    const Corrida corrida = orden(*muerto, {"grabar", carpeta + "/abc.hex", "--verificar"});
    EXPECT_EQ(corrida.estado, 1);
    EXPECT_EQ(corrida.errores.find("eeprog-cli: el chip no ha cambiado donde se grabó: revise"), 0u) << corrida.errores;
    for (const char* direccion : {"0010", "0011", "0012"})
        EXPECT_NE(corrida.salida.find("Direccion = " + std::string(direccion) + "  Eco = FF"), std::string::npos)
            << corrida.salida;
    terminar(*muerto);
}

// A grabar cut short by Ctrl+C, which finishes the frame under way, or killed in the middle
// of one, then at once a grabar of three bytes at 0x0010: they land there and nothing else
// changes. The run cut short writes zeros from address 0 up on an erased chip.
TEST_P(OrdenPlaca, ARunRightAfterAnInterruptedOneWritesOnlyItsOwnBytes)
{
    const std::string ceros = escribir(std::string(8192, '\0'), "ceros.bin");
    const std::string abc = escribir(":0300100041424327\n", "abc.hex");
    for (const int senal : {SIGINT, SIGKILL}) {
        SCOPED_TRACE(senal == SIGINT ? "Ctrl+C" : "SIGKILL");
        std::vector<std::string> opciones{"--volcado", carpeta + "/volcado.bin"};
        if (!simulada())
            opciones.push_back("--ritmo"); // slow enough to be cut in the middle
        const auto tablero = placa(opciones);
        std::vector<std::string> palabras{"-q", "--puerto", tablero->ruta(), "grabar", ceros};
        if (simulada())
            palabras.push_back("--lento"); // the fast protocol there is over before the cut
        const Corrida cortada = correr(palabras, 700ms, senal);
        EXPECT_EQ(cortada.estado, senal == SIGINT ? 130 : 128 + SIGKILL);
        // The run after the kill reaches the port by another name, as /dev/serial/by-id gives it.
        const std::string enlace = carpeta + "/placa" + std::to_string(senal);
        std::filesystem::create_symlink(tablero->ruta(), enlace);
        const Corrida corrida = correr({"-q", "--puerto", senal == SIGKILL ? enlace : tablero->ruta(), "grabar", abc});
        EXPECT_EQ(corrida.estado, 0) << corrida.errores;
        terminar(*tablero);
        const std::string chip = leer("volcado.bin");
        const std::size_t escritos = std::min(chip.find('\xFF'), chip.size());
        std::string esperado = std::string(escritos, '\0') + std::string(8192 - escritos, '\xFF');
        esperado.replace(0x10, 3, "ABC");
        const auto distinto = std::mismatch(esperado.begin(), esperado.end(), chip.begin(), chip.end()).first;
        EXPECT_EQ(distinto - esperado.begin(), 8192) << "the first byte that differs";
        if (senal == SIGINT) {
            EXPECT_EQ(escritos % 16, 0u) << "a frame left half written";
        }
    }
}

// Ctrl+C in the middle of a read, or a board that stops answering: no file, and the port is
// closed for the next run. A read into a full standard output fails saying so.
TEST_F(OrdenCli, AnInterruptedOrBrokenReadLeavesNoFileAndClosesThePort)
{
    Emulador placa({"--ritmo"});
    const Corrida cortada = correr({"--puerto", placa.ruta(), "leer", "-o", carpeta + "/chip.hex"}, 500ms);
    EXPECT_EQ(cortada.errores + std::to_string(cortada.estado),
              "eeprog-cli: interrumpido: el puerto queda cerrado y no se escribe ningún archivo\n130");
    EXPECT_FALSE(std::filesystem::exists(carpeta + "/chip.hex"));
    EXPECT_EQ(correr({"--puerto", placa.ruta(), "comprobar"}).estado, 0);

    Emulador callada({"--silenciosa"});
    const Corrida corrida = correr({"--puerto", callada.ruta(), "leer", "-o", carpeta + "/chip.hex"});
    EXPECT_EQ(corrida.estado, 4);
    EXPECT_EQ(corrida.errores, "eeprog-cli: " + callada.ruta() + ": la placa dejó de responder\n");
    EXPECT_FALSE(std::filesystem::exists(carpeta + "/chip.hex"));
    EXPECT_EQ(correr({"--puerto", callada.ruta(), "comprobar"}).estado, 0) << "a new session answers again";
    Emulador rapida;
    const Corrida lleno = correrprograma(
        {"/bin/sh", "-c", std::string(EEPROG_CLI) + " --puerto " + rapida.ruta() + " leer >/dev/full"}, carpeta);
    EXPECT_EQ(lleno.errores + std::to_string(lleno.estado),
              "eeprog-cli: no se puede escribir en la salida estándar\n3");
}

// What goes wrong before the board is reached sends nothing and writes nothing, and says so
// in one line; a mute board hears the check and nothing more.
TEST_F(OrdenCli, WrongInputOrNoBoardEndsInOneLineAndSendsNothing)
{
    const struct {
        const char* nombre;
        std::vector<std::string> palabras;
        int estado;
        std::string mensaje;
        std::string oido = "";
    } filas[] = {
        {"missing file", {"grabar", carpeta + "/no.hex"}, 3, "no se puede leer el archivo " + carpeta + "/no.hex"},
        {"refused first character", {"verificar", escribir("hola\r\n", "hola.hex")}, 3, "hola.hex, línea 1: "},
        {"unwritable output", {"leer", "-o", carpeta + "/no/chip.hex"}, 3, "no se puede escribir el archivo"},
        {"missing device", {"--puerto", carpeta + "/ttyUSB9", "leer"}, 4, "no se puede abrir el dispositivo"},
        {"mute board", {"comprobar"}, 4, ": Programador..... NO EXISTE CONECCION", "c"},
        {"data past the chip",
         {"grabar", escribir(":01200000AA35\n", "alto.hex")},
         3,
         "alto.hex, línea 1: dato fuera de 0000-1FFF (el AT28C64B); cabe en el AT28C256: --chip AT28C256"},
    };
    for (const auto& fila : filas) {
        SCOPED_TRACE(fila.nombre);
        Escucha placa;
        std::vector<std::string> palabras{"--puerto", placa.ruta()};
        palabras.insert(palabras.end(), fila.palabras.begin(), fila.palabras.end());
        const Corrida corrida = correr(palabras);
        EXPECT_EQ(corrida.estado, fila.estado);
        EXPECT_NE(corrida.errores.find(fila.mensaje), std::string::npos) << corrida.errores;
        EXPECT_EQ(std::count(corrida.errores.begin(), corrida.errores.end(), '\n'), 1) << corrida.errores;
        EXPECT_EQ(corrida.salida, "");
        EXPECT_EQ(placa.oido(), fila.oido);
        EXPECT_FALSE(std::filesystem::exists(carpeta + "/no"));
    }
}

} // namespace
} // namespace eeprog::prueba
