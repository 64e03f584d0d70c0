#include "pantallaprueba.h"
#include "records/disco.h"
#include "records/hexadecimal.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>

namespace eeprog {
namespace {

using namespace prueba;

// Files that other tools make of a full 8 KB image, opened as the program opens them.
class Externos : public PantallaPrueba {
protected:
    void SetUp() override
    {
        PantallaPrueba::SetUp();
        carpeta = testing::TempDir() + "externosXXXXXX";
        ASSERT_NE(mkdtemp(carpeta.data()), nullptr);
        std::mt19937 azar(2026);
        for (char& byte : imagen)
            byte = static_cast<char>(azar());
        std::ofstream(carpeta + "/img.bin", std::ios::binary) << imagen;
    }
    void TearDown() override { std::filesystem::remove_all(carpeta); }

    std::string carpeta;
    std::string imagen = std::string(8192, '\0');
};

bool hay(const std::string& herramienta)
{
    return std::system(("command -v " + herramienta + " >/dev/null 2>&1").c_str()) == 0;
}

TEST_F(Externos, TheirFilesLoadWholeOnlyInTheShapesTheIntakesKnow)
{
    ASSERT_TRUE(hay("objcopy")) << "objcopy is missing: scripts/deps.sh installs binutils";
    ASSERT_TRUE(hay("srec_cat")) << "srec_cat is missing: scripts/deps.sh installs srecord";
    struct Caso {
        std::string orden;       // run in the temporary folder; writes "salida"
        std::vector<int> cabeza; // the first entries of the buffer
        int totalvector;
        std::string tamano; // panel 2
    };
    const std::string entero = "8191 Bytes = 1FFF Hexa";
    const std::vector<Caso> casos{
        {"objcopy -I binary -O ihex img.bin salida", {16, 0, 0, 0}, 11264, entero},
        // An extended address line first: two zero bytes at address 0, which the first data record
        // then writes over. LF line ends: the end record is taken as entries behind the last line's 0.
        {"srec_cat img.bin -binary -o salida -intel", {2, 0, 0, 4, 0, 0, 250, 0, 32}, 9742, entero},
        // An S0 header line reads as a count of 0: the run is empty.
        {"srec_cat img.bin -binary -o salida -motorola", {0, 34}, 9642, "Tamaño"},
        {"objcopy -I binary -O srec img.bin s.obj && cp s.obj salida", {0, 8}, 11275, "Tamaño"},
        {"objcopy -I binary -O srec img.bin s.obj && grep -v '^S0' s.obj > salida", {16, 0, 0, 0}, 11264, entero},
        // Without -crlf the walk goes off step; without -disable=data-count the S5 line is a record.
        {"srec_cat img.bin -binary -o salida -motorola -crlf -disable=header",
         {32, 0, 0, 0},
         9734,
         "773 Bytes = 305 Hexa"},
        {"srec_cat img.bin -binary -execution-start-address=0 -o salida -motorola -crlf -disable=header "
         "-disable=data-count",
         {32, 0, 0, 0},
         9728,
         entero},
    };
    for (const Caso& caso : casos) {
        SCOPED_TRACE(caso.orden);
        PantallaPrueba::SetUp();
        ASSERT_EQ(std::system(("cd " + carpeta + " && " + caso.orden).c_str()), 0);
        mostrar(leerarchivo(carpeta + "/salida").value(), carpeta + "/salida");
        EXPECT_TRUE(avisos.mostrados.empty());
        EXPECT_EQ(std::vector<int>(registros.vector.begin(), registros.vector.begin() + caso.cabeza.size()),
                  caso.cabeza);
        EXPECT_EQ(registros.totalvector, caso.totalvector);
        EXPECT_EQ(StatusBar1.textos[2], caso.tamano);
        if (caso.tamano == "Tamaño") {
            EXPECT_EQ(escritas(), 0);
        }
        if (caso.tamano != entero)
            continue;
        EXPECT_EQ(caja.contenido, "10:11:12... Archivo = salida      Tamaño = " + entero + "\r\n");
        for (int celda = 0; celda < 8192; ++celda)
            ASSERT_EQ(hex(celda / 16, celda % 16), doscifras(static_cast<unsigned char>(imagen[celda]))) << celda;
        EXPECT_EQ(escritas(), 8192 - static_cast<int>(std::count(imagen.begin(), imagen.end(), '\xFF')));
    }
}

} // namespace
} // namespace eeprog
