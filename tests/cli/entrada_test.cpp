#include "cli/entrada.h"

#include <gtest/gtest.h>

#include <fstream>

namespace eeprog {
namespace {

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

} // namespace
} // namespace eeprog
