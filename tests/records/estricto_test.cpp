#include "records/disco.h"
#include "records/lectorimagen.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <random>
#include <tuple>

namespace eeprog {

// A reading as the runs of bytes it gives, " ADDRESS:BYTES" each, or "LINE: REASON".
std::string resumen(const LecturaImagen& lectura)
{
    if (const auto* rechazo = std::get_if<Rechazo>(&lectura))
        return std::to_string(rechazo->linea) + ": " + rechazo->motivo;
    const Imagen& imagen = std::get<Imagen>(lectura);
    std::string texto;
    char cifras[8];
    for (std::size_t k = 0; k < imagen.dado.size(); ++k) {
        if (imagen.dado[k] && (k == 0 || !imagen.dado[k - 1]))
            std::snprintf(cifras, sizeof cifras, " %04X:", static_cast<unsigned>(k)), texto += cifras;
        if (imagen.dado[k])
            std::snprintf(cifras, sizeof cifras, "%02X", imagen.bytes[k]), texto += cifras;
    }
    return texto;
}

TEST(LectorEstricto, ChecksEveryLineAndRefusesTheFirstAtFaultByItsNumber)
{
    // clang-format off
    const std::tuple<const char*, LecturaImagen (*)(std::string_view, int), std::string, const char*> filas[] = {
        {"lower-case digits, CR alone, trailing blanks", leertexto, ":02001000abcd76 \t\r\r:00000001ff\r", " 0010:ABCD"},
        {"lower-case S-records", leertexto, "s1050010abcd72\ns9030000fc\n", " 0010:ABCD"},
        {"a segment counts 16 bytes", leertexto, ":020000020100FB\n:01000000AA55\n", " 1000:AA"},
        {"a linear base counts 64 KB", leertexto, ":020000040001F9\n:01000000AA55\n", "2: dato fuera de 0000-1FFF"},
        {"a record whose last byte is past 8 KB, behind a blank line", leertexto,
         ":0100000055AA\n \n:021FFF00AABB7B\n", "3: dato fuera de 0000-1FFF"},
        {"an S2 address past 8 KB", leertexto, "S0030000FC\r\nS205002000AA30\r\n", "2: dato fuera de 0000-1FFF"},
        {"a wrong checksum", leertexto, ":0100000055AA\r\n:0100010055AB\r\n", "2: suma de verificación errónea"},
        {"an S checksum in two's complement", leertexto, "S1050010ABCD73\n", "1: suma de verificación errónea"},
        {"a length that counts a byte more", leertexto, ":0200000055A9\n", "1: longitud errónea"},
        {"an odd number of digits", leertexto, ":0100000055AA0\n", "1: longitud errónea"},
        {"a character that is no digit", leertexto, ":01000000G5AA\n", "1: carácter no hexadecimal"},
        {"record type 06", leertexto, ":0100000655A4\n", "1: tipo de registro desconocido"},
        {"record type S4", leertexto, "S4030000FC\n", "1: tipo de registro desconocido"},
        {"an S7 end record, its address four bytes", leertexto, "S1050010ABCD72\nS70500000000FA\n?\n", " 0010:ABCD"},
        {"an S-record that is its type alone", leertexto, "S1\n", "1: longitud errónea"},
        {"an S1 record too short for its address", leertexto, "S10200FD\n", "1: longitud errónea"},
        {"a line without its mark", leertexto, ":0100000055AA\n0100010055A9\n", "2: falta la marca de registro"},
        {"nothing is read after the end record", leertexto, ":0100000055AA\n:00000001FF\n?\n", " 0000:55"},
        {"a file without data", leertexto, ":00000001FF\n", "0: el archivo no da ningún byte"},
        {"neither format", leertexto, " \r\n\t#:00\n", "2: no es Intel HEX ni S-record"},
        {"a binary image", leerbinario, std::string("\0\xFF", 2), " 0000:00FF"},
        {"an empty binary image", leerbinario, "", "0: el archivo no da ningún byte"},
        {"a binary image of 8193 bytes", leerbinario, std::string(8193, 'A'), "0: la imagen pasa de 8192 bytes"}};
    // clang-format on
    for (const auto& [nombre, leer, texto, esperado] : filas)
        EXPECT_EQ(resumen(leer(texto, 8192)), esperado) << nombre;
    // A 32 KB chip: its last address, and the first past it.
    EXPECT_EQ(resumen(leertexto(":017FFF00AAD7\n:01800000AAD5\n", 32768)), "2: dato fuera de 0000-7FFF");
    EXPECT_EQ(resumen(leertexto("S205002000AA30\nS205007FFFAAD2\n", 32768)), " 2000:AA 7FFF:AA");
    EXPECT_EQ(resumen(leerbinario(std::string(32769, 'A'), 32768)), "0: la imagen pasa de 32768 bytes");
}

// Files that the tools make of an image, against the tools' own binary output of each.
TEST(LectorEstricto, ReadsFilesOfOtherToolsAsTheirOwnBinaryOutput)
{
    if (std::system("command -v objcopy >/dev/null && command -v srec_cat >/dev/null") != 0)
        GTEST_SKIP() << "objcopy or srec_cat is missing: scripts/deps.sh installs binutils and srecord";
    std::string carpeta = testing::TempDir() + "estrictoXXXXXX", imagen;
    ASSERT_NE(mkdtemp(carpeta.data()), nullptr);
    std::mt19937 azar(2026);
    for (int i = 0; i < 8192; ++i) // no byte is 0, so a 0 in a binary output is an address not given
        imagen += static_cast<char>(1 + azar() % 255);
    std::ofstream(carpeta + "/img.bin", std::ios::binary) << imagen;
    const std::string intel = "srec_cat salida -intel -o esperado.bin -binary",
                      motorola = "srec_cat salida -motorola -o esperado.bin -binary";
    const std::pair<std::string, std::string> filas[] = {
        {"objcopy -I binary -O ihex img.bin salida", "objcopy -I ihex -O binary salida esperado.bin"},
        {"objcopy -I binary -O srec --srec-len=32 img.bin salida", "objcopy -I srec -O binary salida esperado.bin"},
        // An extended linear address of 0 first; pieces with gaps, a filled one among them, and a
        // start address (03, 05, S8).
        {"srec_cat img.bin -binary -crop 0x100 0x180 0x1800 0x1900 -fill 0xFF 0x1000 0x1200 -o salida -intel "
         "-address-length=3 -execution-start-address=0x1234 -crlf",
         intel},
        {"srec_cat img.bin -binary -crop 0 0x41 0x1FC0 0x2000 -o salida -motorola -address-length=3 "
         "-execution-start-address=0 -crlf",
         motorola},
        // S3 records, a count and no end record.
        {"srec_cat img.bin -binary -crop 0x20 0x1F00 -o salida -motorola -address-length=4 -output_block_size=32",
         motorola}};
    for (const auto& [orden, binario] : filas) {
        SCOPED_TRACE(orden);
        const std::string cd = "cd " + carpeta + " && ";
        ASSERT_EQ(std::system((cd + orden + " && " + binario + " 2>/dev/null").c_str()), 0);
        const std::string hecho = leerarchivo(carpeta + "/esperado.bin").value();
        Imagen esperada(8192);
        for (std::size_t k = 0; k < hecho.size() && k < esperada.bytes.size(); ++k)
            esperada.bytes[k] = static_cast<std::uint8_t>(hecho[k]), esperada.dado[k] = hecho[k] != 0;
        const LecturaImagen lectura = leertexto(leerarchivo(carpeta + "/salida").value(), 8192);
        EXPECT_EQ(resumen(lectura), resumen(esperada));
        EXPECT_TRUE(std::holds_alternative<Imagen>(lectura) && std::get<Imagen>(lectura).bytes == esperada.bytes);
    }
    std::filesystem::remove_all(carpeta);
}

} // namespace eeprog
