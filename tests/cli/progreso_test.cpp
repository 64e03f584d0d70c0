#include "cli/progreso.h"

#include <gtest/gtest.h>

#include <regex>

namespace eeprog {
namespace {

// The bar as the terminal gets it, its rate (which depends on the machine) left out. It is
// drawn at the first figures, not again within a tenth of a second, and once more, complete,
// when the operation ends; an operation that drew nothing ends without a line.
TEST(Progreso, DrawsOverItsOwnLineAndEndsItOnce)
{
    char* texto = nullptr;
    std::size_t largo = 0;
    std::FILE* terminal = open_memstream(&texto, &largo);
    Progreso progreso(terminal);
    progreso.empezar("Leyendo", 100);
    progreso.avanzar(50);
    progreso.avanzar(60);
    progreso.terminar();
    progreso.empezar("Grabando", 8);
    progreso.terminar();
    std::fclose(terminal);
    const std::string dibujado = std::regex_replace(texto, std::regex("[0-9]+ B/s"), "N B/s");
    std::free(texto);
    EXPECT_EQ(dibujado, "\rLeyendo     [###############...............]    50/100 bytes  N B/s  quedan -:--\033[K"
                        "\rLeyendo     [##################............]    60/100 bytes  N B/s  quedan -:--\033[K\n");
}

} // namespace
} // namespace eeprog
