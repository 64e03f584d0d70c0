#include "cli/entrada.h"
#include "cli/opciones.h"
#include "cli/progreso.h"

#include <gtest/gtest.h>

#include <fstream>
#include <regex>

namespace eeprog {
namespace {

// The words of a command line, as the run reads them: the order and its settings, or the
// exit status and the line for the terminal.
std::string interpretado(std::vector<std::string> palabras)
{
    palabras.insert(palabras.begin(), "eeprog-cli");
    std::vector<char*> argv;
    for (std::string& palabra : palabras)
        argv.push_back(palabra.data());
    const auto resultado = interpretar(static_cast<int>(argv.size()), argv.data());
    if (const auto* respuesta = std::get_if<Respuesta>(&resultado))
        return std::to_string(respuesta->estado) + ' ' + respuesta->texto;
    const Opciones& o = std::get<Opciones>(resultado);
    return "-> orden " + std::to_string(static_cast<int>(o.orden)) + " [" + o.archivo + "] -o " + o.salida + " en [" +
           o.puerto + "] formato " + std::to_string(static_cast<int>(o.formato)) + (o.verificar ? " --verificar" : "") +
           (o.comoventana ? " --como-ventana" : "") + (o.silencioso ? " -q" : "") + (o.lento ? " --lento" : "") +
           (o.solocambios ? " --solo-cambios" : "") + (o.detalles ? " -v" : "");
}

TEST(Opciones, EachOrderTakesItsOwnSettingsAndWrongUseSaysWhatIsWrong)
{
    const std::pair<std::vector<std::string>, std::string> filas[] = {
        {{"--puerto", "/dev/ttyUSB0", "-q", "grabar", "x.hex", "--verificar"},
         "-> orden 2 [x.hex] -o - en [/dev/ttyUSB0] formato 0 --verificar -q"},
        {{"leer", "-o", "c.bin", "--formato", "bin"}, "-> orden 1 [] -o c.bin en [] formato 2"},
        {{"--formato", "hex", "leer", "--salida", "c"}, "-> orden 1 [] -o c en [] formato 1"},
        {{"--como-ventana", "verificar", "x.s19", "--silencioso"},
         "-> orden 3 [x.s19] -o - en [] formato 0 --como-ventana -q"},
        {{"comprobar"}, "-> orden 0 [] -o - en [] formato 0"},
        {{"-v", "grabar", "x.hex", "--solo-cambios", "--lento"},
         "-> orden 2 [x.hex] -o - en [] formato 0 --lento --solo-cambios -v"},
        {{"leer", "--solo-cambios"}, "--solo-cambios solo va con grabar"},
        {{"grabar", "x", "--solo-cambios", "--como-ventana"},
         "--solo-cambios no va con --como-ventana, que graba como la ventana"},
        {{}, "falta la orden"},
        {{"programar"}, "orden desconocida: programar"},
        {{"verificar"}, "falta el archivo de verificar"},
        {{"leer", "x"}, "sobra el argumento x"},
        {{"--formato", "txt", "leer"}, "--formato es hex o bin, no txt"},
        {{"leer", "--puerto"}, "falta el valor de --puerto"},
        {{"-x", "leer"}, "opción desconocida: -x"},
        {{"grabar", "x.hex", "-o", "y"}, "-o solo va con leer"},
        {{"verificar", "x.hex", "--verificar"}, "--verificar solo va con grabar"},
        {{"leer", "--como-ventana"}, "--como-ventana solo va con grabar y verificar"},
        {{"grabar", "x", "--como-ventana", "--formato", "bin"},
         "--como-ventana lee Intel HEX y S-record, no imágenes binarias"},
        {{"leer", "-o", ""}, "-o pide un nombre de archivo"},
        {{"--chip", "AT28C512", "leer"}, "--chip es AT28C64B o AT28C256, no AT28C512"},
        {{"--chip", "28c256", "--lento", "leer"}, "--lento solo va con el AT28C64B"},
    };
    for (const auto& [palabras, esperado] : filas) {
        const std::string dicho =
            esperado.starts_with("-> ") ? esperado : "2 eeprog-cli: " + esperado + " (eeprog-cli --ayuda da el uso)\n";
        EXPECT_EQ(interpretado(palabras), dicho);
    }
    for (int orden = 4; const char* palabra : {"borrar", "vacio", "desproteger", "proteger"})
        EXPECT_EQ(interpretado({palabra}), "-> orden " + std::to_string(orden++) + " [] -o - en [] formato 0");
    EXPECT_EQ(interpretado({"leer", "--version"}), "0 eeprog-cli 2.0\n");
    const std::string ayuda = interpretado({"grabar", "--help"});
    EXPECT_EQ(ayuda.rfind("0 Uso: eeprog-cli", 0), 0u);
    EXPECT_EQ(interpretado({"-h"}), ayuda);
    std::string estados;
    const std::regex estado("\n  ([0-9]+) +[a-z]");
    for (auto cada = std::sregex_iterator(ayuda.begin(), ayuda.end(), estado); cada != std::sregex_iterator(); ++cada)
        estados += (*cada)[1].str() + ' ';
    EXPECT_EQ(estados, "0 1 2 3 4 130 ") << "the exit statuses the manual page gives";
}

TEST(Opciones, AFileIsARawImageByItsFormatOrElseByItsName)
{
    EXPECT_TRUE(esbinario(".bin", Formato::segunnombre) && esbinario("x.hex", Formato::bin));
    EXPECT_FALSE(esbinario("x.hex", Formato::segunnombre) || esbinario("bin", Formato::segunnombre) ||
                 esbinario("x.bin", Formato::hex));
}

// What grabar and verificar take from a file, judged whole before the board hears a byte:
// the frames as they go on the wire, or the one line that says why it cannot be used.
TEST(Entrada, AFileGivesItsFramesOrALineNamingItAndWhy)
{
    const std::string carpeta = testing::TempDir();
    const struct {
        const char* nombre;
        std::string texto;
        bool comoventana;
        std::string dicho;
    } filas[] = {
        {"v.s19", "S1050100AABB8E\n", true, "2 1 0 0 170 187 /"},
        {"v.hex", ":02010000AABB98\n", true, "2 1 0 0 170 187 /"},
        {"v.txt", "hola", true, "v.txt: la ventana solo abre archivos que empiezan por ':' o 'S'"},
        {"f.hex", ":00000001FF\n", true, "f.hex: la ventana no halla ningún registro en el archivo"},
        {"m.hex", "\n-\n", false, "m.hex, línea 2: "},
        {"g.bin", std::string(8193, 'x'), false, "g.bin: "},
    };
    for (const auto& fila : filas) {
        std::ofstream(carpeta + fila.nombre, std::ios::binary) << fila.texto;
        const auto tramas = tramasdearchivo({.archivo = carpeta + fila.nombre, .comoventana = fila.comoventana});
        std::string dicho;
        if (const auto* motivo = std::get_if<std::string>(&tramas))
            dicho = motivo->substr(carpeta.size(), fila.dicho.size());
        else
            for (const Trama& trama : std::get<std::vector<Trama>>(tramas)) {
                for (int valor : trama.valores)
                    dicho += std::to_string(valor) + ' ';
                dicho += '/';
            }
        EXPECT_EQ(dicho, fila.dicho) << fila.nombre;
    }
    const auto nohay = tramasdearchivo({.archivo = carpeta + "no.hex"});
    EXPECT_EQ(std::get<std::string>(nohay), "no se puede leer el archivo " + carpeta + "no.hex");
}

// The bar as the terminal gets it, its rate (which depends on the machine) left out. It is
// drawn at the first figures, not again within a tenth of a second, and once more, complete,
// when the operation ends; an operation that drew nothing ends without a line.
TEST(Progreso, DrawsOverItsOwnLineAndEndsItOnce)
{
    char* texto = nullptr;
    std::size_t largo = 0;
    std::FILE* terminal = open_memstream(&texto, &largo);
    Progreso progreso(terminal);
    progreso.empezar("Leyendo", 100), progreso.avanzar(50), progreso.avanzar(60), progreso.terminar();
    progreso.empezar("Grabando", 8), progreso.terminar();
    std::fclose(terminal);
    const std::string dibujado = std::regex_replace(texto, std::regex("[0-9]+ B/s"), "N B/s");
    std::free(texto);
    EXPECT_EQ(minutos(0.4) + ' ' + minutos(71.6) + ' ' + minutos(3600), "0:00 1:12 60:00") << "the time left";
    EXPECT_EQ(dibujado, "\rLeyendo     [###############...............]    50/100 bytes  N B/s  quedan -:--\033[K"
                        "\rLeyendo     [##################............]    60/100 bytes  N B/s  quedan -:--\033[K\n");
}

} // namespace
} // namespace eeprog
