// Opening a full chip's Intel HEX file: 512 lines of 16 bytes taken into the record buffer
// and shown in the grids; then the same through the window's Abrir, the file read from
// disk.

#include "objetivo.h"
#include "records/cargarhex.h"
#include "records/mostrarvector.h"
#include "shell/qt/barraestado.h"
#include "ventana.h"

#include <cstdio>
#include <filesystem>
#include <fstream>

namespace {

using namespace eeprog;
using namespace eeprog::banco;

const std::string tamanolleno = "8191 Bytes = 1FFF Hexa";

std::string doscifrashex(int valor)
{
    char texto[3];
    std::snprintf(texto, sizeof texto, "%02X", valor & 0xFF);
    return texto;
}

// 8192 bytes at addresses 0 to 8191, each the low byte of its address, and the end record.
std::string textolleno()
{
    std::string texto;
    for (int direccion = 0; direccion < 8192; direccion += 16) {
        int suma = 16 + (direccion >> 8) + (direccion & 0xFF);
        texto += ":10" + doscifrashex(direccion >> 8) + doscifrashex(direccion) + "00";
        for (int k = 0; k < 16; ++k) {
            texto += doscifrashex(direccion + k);
            suma += (direccion + k) & 0xFF;
        }
        texto += doscifrashex(-suma) + "\r\n";
    }
    return texto + ":00000001FF\r\n";
}

// Target: under 50 ms.
void abrirhexcompleto(benchmark::State& estado)
{
    static Registros registros;
    Cuadriculas cuadriculas;
    dibujareditor(cuadriculas);
    prueba::PanelesFalsos paneles;
    prueba::CajaFalsa caja;
    prueba::RelojFijo reloj;
    Informe informe(caja, reloj);
    const ArchivoAbierto archivo{textolleno(), "/tmp/lleno.hex", "lleno.hex"};
    double segundos = 0;
    for (auto _ : estado) {
        caja.contenido.clear();
        segundos += cronometrar(estado, [&] {
            cargarhex(archivo.textoarchivo, registros);
            mostrarvector(registros, archivo, {cuadriculas, paneles, informe});
        });
    }
    if (paneles.textos[2] != tamanolleno)
        fallar(estado, "the file showed as " + paneles.textos[2]);
    else
        topems(estado, segundos, 50);
}
BENCHMARK(abrirhexcompleto)->Unit(benchmark::kMillisecond)->UseManualTime();

// Abrir in the window, up to the drawing of the grids that follows. Target: under 50 ms.
void abrirhexventana(benchmark::State& estado)
{
    const std::filesystem::path ruta = std::filesystem::temp_directory_path() / "eeprog_bench_lleno.hex";
    std::ofstream(ruta, std::ios::binary) << textolleno();
    Ventana ventana;
    ventana.abrir();
    double segundos = 0;
    for (auto _ : estado) {
        ventana.dialogo->elegir = ruta.string();
        segundos += cronometrar(estado, [&] {
            ventana.ventana->logica().abrir_Click();
            QCoreApplication::processEvents();
        });
    }
    std::filesystem::remove(ruta);
    const std::string tamano = ventana.ventana->StatusBar1().textopanel(2).toStdString();
    if (tamano != tamanolleno)
        fallar(estado, "the file showed as " + tamano);
    else
        topems(estado, segundos, 50);
}
BENCHMARK(abrirhexventana)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(20);

} // namespace

int main(int argc, char** argv)
{
    return banco::principal(argc, argv);
}
