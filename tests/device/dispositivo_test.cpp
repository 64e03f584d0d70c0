#include "banco.h"
#include "chipprueba.h"
#include "device/grabacion.h"
#include "device/lectura.h"
#include "device/verificacion.h"
#include "records/apertura.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <numeric>

namespace eeprog {
namespace {

using namespace prueba;

const std::string ejemplo = ":0300100041424327\r\n:00000001FF\r\n";

std::unique_ptr<Registros> registrosde(const std::string& texto)
{
    auto registros = std::make_unique<Registros>();
    AvisosFalsos avisos;
    ponerenvector({texto, "", ""}, *registros, avisos);
    return registros;
}

std::vector<double> serie(int desde, int hasta)
{
    std::vector<double> valores(static_cast<std::size_t>(hasta - desde + 1));
    std::iota(valores.begin(), valores.end(), desde);
    return valores;
}

std::string enviando(const std::string& hex)
{
    return "Enviando..." + hex + "H";
}

std::string malrecibido(const std::string& hex)
{
    return "El dato transmitido " + hex + " no se ha recibido correctamente";
}

TEST(Lectura, SendsOneMoreCheckThenPacedFramesCountingEveryByte)
{
    Banco banco;
    auto leido = std::make_unique<Leido>();
    lectura(banco.enlace, *leido, banco.pantalla());
    const std::string pasos("\x00\x01\x02\x03\x04\x05\x06\x07\x08\x09\x0A\x0B\x0C\x0D\x0E\x0F", 16);
    EXPECT_EQ(banco.trafico().substr(0, 43),
              std::string("cr\x10\x00\x00\x00", 6) + pasos + std::string("r\x10\x00\x10\x00", 5) + pasos);
    std::string esperado = "c";
    for (int direccion = 0; direccion < 8192; direccion += 16)
        esperado += "r\x10" + std::string{char(direccion >> 8), char(direccion & 0xFF), '\0'} + pasos;
    EXPECT_EQ(banco.puerto.enviados().size(), 10754u);
    EXPECT_EQ(banco.trafico(), esperado);

    std::vector<std::string> cuentas;
    for (int k = 1; k <= 8192; ++k)
        cuentas.push_back(std::to_string(k) + "  Bytes leidos");
    cuentas.push_back("8192  Bytes leidos = 2000H");
    EXPECT_EQ(banco.panel1(), cuentas);
    EXPECT_EQ(banco.barra.tope, 512);
    EXPECT_EQ(banco.barra.valores, serie(0, 511));
}

TEST(Lectura, EachBlockBecomesOneDataLineWithItsChecksumAndTheBytesGoToVectorleido)
{
    struct Caso {
        OpcionesPlaca opciones;
        std::function<void(Chip&)> preparar;
        std::size_t linea;
        std::string esperado;
    };
    const std::vector<Caso> casos{
        {{},
         [](Chip& c) { std::iota(c.begin() + 0x120, c.begin() + 0x130, 0); },
         18,
         ":10012000000102030405060708090A0B0C0D0E0F57\r\n"},
        {{}, [](Chip&) {}, 0, ":10000000FFFFFFFFFFFFFFFFFFFFFFFFFFFFFFFF00\r\n"},
        {{}, [](Chip& c) { c.fill(0); }, 0, ":1000000000000000000000000000000000000000F0\r\n"},
        {{}, [](Chip& c) { azar(c, 7); }, 511, ":101FF000"},
        // A board silent after the check reads as the "E" of "Error" to the end.
        {{.silenciosa = true}, [](Chip& c) { c.fill(0x45); }, 0, ":1000000045454545454545454545454545454545A0\r\n"},
    };
    for (const Caso& caso : casos) {
        Banco banco(caso.opciones);
        Chip leible = banco.placa.chip();
        caso.preparar(leible);
        if (!caso.opciones.silenciosa)
            banco.placa.chip() = leible;
        auto leido = std::make_unique<Leido>();
        leido->vectorleido[8192] = 7;
        lectura(banco.enlace, *leido, banco.pantalla());
        const std::string& texto = leido->textoleido;
        EXPECT_EQ(texto.size(), 23040u);
        EXPECT_EQ(texto.substr(caso.linea * 45, caso.esperado.size()), caso.esperado);
        EXPECT_EQ(texto, lineashex(leible));
        EXPECT_TRUE(std::equal(leible.begin(), leible.end(), leido->vectorleido.begin()));
        EXPECT_EQ(leido->vectorleido[8192], 7);
    }
}

TEST(Grabacion, EachByteSentShowsInPanelOneAndAWrongEchoRightAfterIt)
{
    struct Caso {
        OpcionesPlaca opciones;
        std::string archivo;
        std::string datos; // the data bytes of its one record
        std::vector<std::string> panel;
        std::string chip; // 0x10 to 0x12 afterwards
    };
    const std::vector<Caso> casos{
        {{},
         ejemplo,
         "ABC",
         {enviando("3"), enviando("0"), enviando("10"), enviando("0"), enviando("41"), enviando("42"), enviando("43")},
         "ABC"},
        {{.ecoerroneo = 2},
         ejemplo,
         "ABC",
         {enviando("3"), enviando("0"), enviando("10"), enviando("0"), enviando("41"), enviando("42"),
          malrecibido("42"), enviando("43")},
         "ACC"},
        // Every echo times out and reads as 0x45, so only a 0x45 passes.
        {{.silenciosa = true},
         ":0300100041454324\r\n:00000001FF\r\n",
         "AEC",
         {enviando("3"), malrecibido("3"), enviando("0"), malrecibido("0"), enviando("10"), malrecibido("10"),
          enviando("0"), malrecibido("0"), enviando("41"), malrecibido("41"), enviando("45"), enviando("43"),
          malrecibido("43")},
         "\xFF\xFF\xFF"},
    };
    for (const Caso& caso : casos) {
        Banco banco(caso.opciones);
        grabacion(banco.enlace, *registrosde(caso.archivo), banco.pantalla());
        EXPECT_EQ(banco.trafico(), std::string("w\x03\x00\x10\x00", 5) + caso.datos);
        EXPECT_EQ(banco.panel1(), caso.panel);
        EXPECT_EQ(std::string(banco.placa.chip().begin() + 0x10, banco.placa.chip().begin() + 0x13), caso.chip);
        EXPECT_EQ(banco.barra.tope, 11);
        EXPECT_EQ(banco.barra.valores, serie(5, 11));
    }
}

// An S1 line with a count below 3 gives a negative count. The walk skips it by that count,
// which lands on the next record only when the line carries no checksum pair; with one it
// lands on the line's end entry, a 0, and the walk ends there, as the display's does.
TEST(Grabacion, AnS1LineTooShortForItsAddressSendsNothingForIt)
{
    const std::vector<std::pair<std::string, std::string>> casos{
        {"S1020010\r\nS1050020AABB75\r\nS9030000FC\r\n", std::string("w\x02\x00\x20\x00\xAA\xBB", 7)},
        {"S1020010EB\r\nS1050020AABB75\r\nS9030000FC\r\n", ""},
    };
    for (const auto& [archivo, trafico] : casos) {
        Banco banco;
        grabacion(banco.enlace, *registrosde(archivo), banco.pantalla());
        EXPECT_EQ(banco.trafico(), trafico) << archivo;
        EXPECT_EQ(banco.placa.chip()[0x10], 0xFF);
    }
}

// The echoes of count, address and type are compared too, under addresses 4 below the
// record's; every difference goes to panel 1 and to the log, and the run goes on.
TEST(Verificacion, EveryDifferenceIsReportedWithItsAddressHeaderPassesIncluded)
{
    struct Caso {
        OpcionesPlaca opciones;
        std::string archivo;
        std::vector<std::pair<int, unsigned char>> chip;
        std::string trafico;                  // after the frame's check
        std::vector<std::string> diferencias; // address, expected, read
    };
    const std::string leer = std::string("cr\x03\x00\x10\x00", 6) + "ABC";
    const std::vector<Caso> casos{
        {{}, ejemplo, {{0x10, 0x41}, {0x11, 0x5A}, {0x12, 0x43}}, leer, {"0011 42 5A"}},
        {{}, ejemplo, {{0x10, 0x41}, {0x11, 0x42}, {0x12, 0x43}}, leer, {}},
        {{},
         ":021F00000A0CC9\r\n:00000001FF\r\n",
         {{0x1F00, 0x0B}, {0x1F01, 0x0D}},
         std::string("cr\x02\x1F\x00\x00\x0A\x0C", 8),
         {"1F00 0A 0B", "1F01 0C 0D"}},
        {{.silenciosa = true},
         ":0300000041454334\r\n:00000001FF\r\n",
         {},
         std::string("cr\x03\x00\x00\x00", 6) + "AEC",
         {"FFFC 03 45", "FFFD 00 45", "FFFE 00 45", "FFFF 00 45", "0000 41 45", "0002 43 45"}},
        {{}, "", {}, "c", {}},
    };
    for (const Caso& caso : casos) {
        Banco banco(caso.opciones);
        for (const auto& [direccion, valor] : caso.chip)
            banco.placa.chip()[static_cast<std::size_t>(direccion)] = valor;
        auto registros = registrosde(caso.archivo);
        verificacion(banco.enlace, *registros, banco.pantalla());
        std::vector<std::string> panel;
        std::string log;
        for (const std::string& d : caso.diferencias) {
            const std::string texto =
                "Direccion = " + d.substr(0, 4) + "  Buffer = " + d.substr(5, 2) + "   Leido = " + d.substr(8, 2);
            panel.push_back("error.. " + texto);
            log += "                 Error.. " + texto + "\r\n";
        }
        EXPECT_EQ(banco.trafico(), caso.trafico) << caso.archivo;
        EXPECT_EQ(banco.panel1(), panel);
        EXPECT_EQ(banco.caja.contenido, log);
        EXPECT_EQ(banco.barra.tope, registros->totalvector);
        EXPECT_EQ(banco.barra.actual, registros->totalvector);
    }
}

} // namespace
} // namespace eeprog
