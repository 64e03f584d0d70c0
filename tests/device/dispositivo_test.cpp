#include "chipprueba.h"
#include "device/grabacion.h"
#include "device/grabaredit.h"
#include "device/lectura.h"
#include "device/pruebalineas.h"
#include "device/tramas.h"
#include "device/verificacion.h"
#include "pantallafalsa.h"
#include "puertoplaca.h"
#include "records/cargarhex.h"
#include "records/cargarobj.h"

#include <gtest/gtest.h>

namespace eeprog {
namespace {

using namespace prueba;
using namespace std::string_literals;

// The board in the same process, the port open; the bitacora gets panel 1's texts.
struct Banco {
    explicit Banco(OpcionesPlaca opciones = {}) : placa(opciones) { enlace.serial(); }
    PantallaOperacion pantalla() { return {paneles, barra, informe}; }

    Placa placa;
    PuertoPlaca puerto{placa};
    Enlace enlace{puerto};
    Bitacora bitacora;
    PanelesFalsos paneles{&bitacora};
    BarraFalsa barra;
    CajaFalsa caja;
    RelojFijo reloj;
    Informe informe{caja, reloj};
};

Registros registrosde(const std::string& texto)
{
    Registros registros;
    (texto[0] == 'S' ? cargarobj : cargarhex)(texto, registros);
    return registros;
}

// A frame built by hand: the order, the count, the address high byte first, type 0, the data.
std::string marco(char orden, int cuenta, int direccion, const std::string& datos)
{
    return std::string{orden, char(cuenta), char(direccion >> 8), char(direccion & 0xFF), '\0'} + datos;
}

// One more check, then 512 read frames paced by the bytes 0 to 15; each block becomes 16
// entries of vectorleido and one Intel HEX line, its checksum made here with printf.
TEST(Lectura, ReadsTheWholeChipIntoVectorleidoAndIntelHexLinesWithTheirChecksums)
{
    Banco banco;
    azar(banco.placa.chip(), 7);
    Leido leido;
    lectura(banco.enlace, leido, banco.pantalla());

    std::string trafico = "c";
    for (int direccion = 0; direccion < 8192; direccion += 16)
        trafico += marco('r', 16, direccion, "\0\1\2\3\4\5\6\7\10\11\12\13\14\15\16\17"s); // paced by 0 to 15
    EXPECT_EQ(banco.puerto.enviados(), trafico);
    std::vector<std::string> panel;
    for (int k = 1; k <= 8192; ++k)
        panel.push_back("panel 1 " + std::to_string(k) + "  Bytes leidos");
    panel.push_back("panel 1 8192  Bytes leidos = 2000H");
    EXPECT_EQ(banco.bitacora.sucesos, panel);
    EXPECT_EQ(std::pair(banco.barra.tope, banco.barra.actual), std::pair(512.0, 511.0));
    EXPECT_EQ(leido.textoleido, lineashex(banco.placa.chip()));
    EXPECT_TRUE(std::equal(banco.placa.chip().begin(), banco.placa.chip().end(), leido.vectorleido.begin()));
}

// A sparse image goes out in runs of consecutive bytes cut at the 16-byte blocks, each frame's
// end told after its last byte (0 below); verifying checks again, then offers each byte, and
// names the address of the one that differs.
TEST(Tramas, AnImageGoesOutInRunsCutAtBlocksAndIsVerifiedAfterACheck)
{
    Banco banco;
    Imagen imagen(8192);
    for (const int direccion : {0x0E, 0x0F, 0x10, 0x12, 0x1FFF})
        imagen.dado.set(direccion), imagen.bytes[direccion] = direccion & 0xFF;
    const auto tramas = tramasdeimagen(imagen);
    std::vector<int> hechos;
    const Avance avance{[&](int n) { hechos.push_back(n); }, [&] { hechos.push_back(0); }};
    EXPECT_TRUE(escribirtramas(banco.enlace, tramas, avance).empty());
    const auto marcos = [](char orden) {
        return marco(orden, 2, 0x0E, "\x0E\x0F") + marco(orden, 1, 0x10, "\x10") + marco(orden, 1, 0x12, "\x12") +
               marco(orden, 1, 0x1FFF, "\xFF");
    };
    EXPECT_EQ(banco.puerto.enviados(), marcos('w'));
    EXPECT_EQ(hechos, (std::vector<int>{1, 2, 0, 3, 0, 4, 0, 5, 0}));
    banco.placa.chip()[0x12] = 0x99;
    const auto diferencias = comparartramas(banco.enlace, tramas, {[](int) {}});
    EXPECT_EQ(banco.puerto.enviados(), marcos('w') + "c" + marcos('r'));
    ASSERT_EQ(diferencias.size(), 1u);
    EXPECT_EQ(std::tuple(diferencias[0].direccion, diferencias[0].esperado, diferencias[0].obtenido),
              std::tuple(0x12, 0x12, 0x99));
}

// The board's echo is the only check: a wrong one (marked below) shows in panel 1 right
// after its byte, and the run goes on. A silent board's echoes all time out.
TEST(Grabacion, SendsTheRecordAsAWriteFrameAndShowsEachByteAndEachWrongEcho)
{
    const std::tuple<const char*, OpcionesPlaca, std::string> casos[]{
        {"SecondDataByteEchoedWrong", {.ecoerroneo = 2}, "     ! "}, {"SilentBoard", {.silenciosa = true}, "!!!!!!!"}};
    for (const auto& [nombre, opciones, malos] : casos) { // malos: a mark for each wrong echo
        Banco banco(opciones);
        grabacion(banco.enlace, registrosde(":0300100041424327\r\n:00000001FF\r\n"), banco.pantalla());
        std::vector<std::string> panel;
        for (int i = 0; const char* hex : {"3", "0", "10", "0", "41", "42", "43"}) {
            panel.push_back("panel 1 Enviando..."s + hex + "H");
            if (malos[i++] == '!')
                panel.push_back("panel 1 El dato transmitido "s + hex + " no se ha recibido correctamente");
        }
        EXPECT_EQ(banco.puerto.enviados(), marco('w', 3, 0x10, "ABC")) << nombre;
        EXPECT_EQ(banco.bitacora.sucesos, panel) << nombre;
        EXPECT_EQ(std::pair(banco.barra.tope, banco.barra.actual), std::pair(11.0, 11.0)) << nombre;
    }
}

// An S1 line with a count below 3 gives a negative count: the walk skips the record by it.
TEST(Grabacion, AnS1LineTooShortForItsAddressSendsNothingForIt)
{
    Banco banco;
    grabacion(banco.enlace, registrosde("S1020010\r\nS1050020AABB75\r\nS9030000FC\r\n"), banco.pantalla());
    EXPECT_EQ(banco.puerto.enviados(), marco('w', 2, 0x20, "\xAA\xBB"));
}

// Each difference goes to panel 1 and to the log, with its address, and the run goes on.
void diferencias(const Banco& banco, const std::vector<std::string>& esperadas) // address, expected, read
{
    std::vector<std::string> panel;
    std::string log;
    for (const std::string& d : esperadas) {
        const std::string texto =
            "Direccion = " + d.substr(0, 4) + "  Buffer = " + d.substr(5, 2) + "   Leido = " + d.substr(8, 2);
        panel.push_back("panel 1 error.. " + texto);
        log += "                 Error.. " + texto + "\r\n";
    }
    EXPECT_EQ(banco.bitacora.sucesos, panel);
    EXPECT_EQ(banco.caja.contenido, log);
}

TEST(Verificacion, OffersEachExpectedByteAndReportsEveryDifferenceWithItsAddressHeadersIncluded)
{
    Banco banco;
    for (auto [direccion, valor] : {std::pair{0x10, 'A'}, {0x11, 'Z'}, {0x12, 'C'}, {0x1F00, '\x0B'}, {0x1F01, '\x0D'}})
        banco.placa.chip()[direccion] = valor;
    verificacion(banco.enlace, registrosde(":0300100041424327\r\n:021F00000A0CC9\r\n:00000001FF\r\n"),
                 banco.pantalla());
    EXPECT_EQ(banco.puerto.enviados(), "c" + marco('r', 3, 0x10, "ABC") + marco('r', 2, 0x1F00, "\x0A\x0C"));
    diferencias(banco, {"0011 42 5A", "1F00 0A 0B", "1F01 0C 0D"});
    EXPECT_EQ(std::pair(banco.barra.tope, banco.barra.actual), std::pair(17.0, 17.0));

    // The echoes of count, address and type are compared too, under the 4 addresses below
    // the record's, which wrap below 0; a time-out reads as 0x45, so the "E" passes.
    Banco callada({.silenciosa = true}); // it answers the check, then nothing
    verificacion(callada.enlace, registrosde(":0300000041454334\r\n:00000001FF\r\n"), callada.pantalla());
    diferencias(callada, {"FFFC 03 45", "FFFD 00 45", "FFFE 00 45", "FFFF 00 45", "0000 41 45", "0002 43 45"});
}

// Rows 0 to the highest edited go out whether edited or not, each to the address of its
// label (row 512 as 0x2000: the board folds it onto the chip) and each byte as its fgascii
// cell stands, fghex aside. A cleared cell still owes the frame its byte and goes out as
// the erased value. Panel 1 shows each byte by its glyph; the bar counts the bytes.
TEST(Grabaredit, SendsEveryRowUpToTheHighestEditedAndTheLogCountsItsBytes)
{
    Banco banco;
    Cuadriculas cuadriculas;
    dibujareditor(cuadriculas);
    cuadriculas.fgascii.TextMatrix(0, 1, ""), cuadriculas.fgascii.TextMatrix(2, 0, "A");
    grabaredit(banco.enlace, cuadriculas, 600, banco.pantalla());

    const std::string borrado(16, '\xFF');
    std::string trafico;
    for (int fila = 0; fila <= 600; ++fila)
        trafico += marco('w', 16, fila * 16, fila == 2 ? "A" + borrado.substr(1) : borrado);
    EXPECT_EQ(banco.puerto.enviados(), trafico);
    std::vector<std::string> panel(9616, "panel 1 Enviando... \u00A0");
    panel[1] = "panel 1 Enviando... ";
    panel[32] = "panel 1 Enviando... A";
    EXPECT_EQ(banco.bitacora.sucesos, panel);
    EXPECT_EQ(std::pair(banco.barra.tope, banco.barra.actual), std::pair(9616.0, 9616.0));
    // The log's count takes an edit of row 0 alone for none, as filaeditada starts at 0.
    EXPECT_EQ(std::pair(bytesgrabados(0), bytesgrabados(600)), std::pair(0, 9616));
}

// Two or more bytes wrong in the same one bit name that data line; one byte, or bytes wrong
// in other bits or in two, name none.
TEST(Pruebalineas, DifferencesThatAllLieInOneBitNameThatDataLine)
{
    EXPECT_EQ(lineacomun({{0x10, 0x00, 0x10}, {0x1FFF, 0xEF, 0xFF}}), 4);
    EXPECT_EQ(lineacomun({{0x10, 0x00, 0x80}, {0x11, 0x81, 0x01}, {0x12, 0x7F, 0xFF}}), 7);
    EXPECT_EQ(lineacomun({{0x10, 0x00, 0x10}}), -1);
    EXPECT_EQ(lineacomun({{0x10, 0x00, 0x10}, {0x11, 0x00, 0x20}}), -1);
    EXPECT_EQ(lineacomun({{0x10, 0x00, 0x30}, {0x11, 0x00, 0x30}}), -1);
}

} // namespace
} // namespace eeprog
