// Building the memory editor's grids at start-up: 4096 rows of addresses and 65536 erased
// bytes twice over, first in the grids alone, then as the window's start-up does it with
// the widgets that draw them.

#include "editor/cuadriculas.h"
#include "objetivo.h"
#include "ventana.h"

namespace {

using namespace eeprog;
using namespace eeprog::banco;

// Target: under 50 ms.
void dibujarrejillas(benchmark::State& estado)
{
    double segundos = 0;
    for (auto _ : estado) {
        Cuadriculas cuadriculas;
        segundos += cronometrar(estado, [&] { dibujareditor(cuadriculas); });
    }
    topems(estado, segundos, 50);
}
BENCHMARK(dibujarrejillas)->Unit(benchmark::kMillisecond)->UseManualTime();

// The window built and shown, its start-up with the grids and the board check included, up
// to its first drawing. Target: under 50 ms.
void abrirventana(benchmark::State& estado)
{
    double segundos = 0;
    for (auto _ : estado) {
        Ventana ventana;
        segundos += cronometrar(estado, [&] { ventana.abrir(); });
    }
    topems(estado, segundos, 50);
}
BENCHMARK(abrirventana)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(20);

} // namespace

int main(int argc, char** argv)
{
    return banco::principal(argc, argv);
}
