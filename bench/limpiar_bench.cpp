// Rewriting every byte cell of the editor, the size of clearing it: fghex back to "FF" and
// fgascii emptied, 131072 writes over cells that showed a file.

#include "editor/cuadriculas.h"
#include "objetivo.h"
#include "ventana.h"

namespace {

using namespace eeprog;
using namespace eeprog::banco;

// Every cell holds a byte of its own before the clearing, so that each write changes it.
void llenar(Cuadriculas& cuadriculas)
{
    for (int fila = 0; fila < filasrejilla; ++fila)
        for (int columna = 0; columna < columnasrejilla; ++columna)
            ponerbyte(cuadriculas, fila, columna, (fila + columna) & 0xFF);
}

void limpiar(Cuadriculas& cuadriculas)
{
    for (int fila = 0; fila < filasrejilla; ++fila) {
        for (int columna = 0; columna < columnasrejilla; ++columna) {
            cuadriculas.fghex.TextMatrix(fila, columna, "FF");
            cuadriculas.fgascii.TextMatrix(fila, columna, "");
        }
    }
}

// Target: under 50 ms.
void limpiarrejillas(benchmark::State& estado)
{
    Cuadriculas cuadriculas;
    dibujareditor(cuadriculas);
    double segundos = 0;
    for (auto _ : estado) {
        llenar(cuadriculas);
        segundos += cronometrar(estado, [&] { limpiar(cuadriculas); });
    }
    topems(estado, segundos, 50);
}
BENCHMARK(limpiarrejillas)->Unit(benchmark::kMillisecond)->UseManualTime();

// The same on the window's grids: the widgets hear of the cells in sight, and the drawing
// that follows is counted. Target: under 50 ms.
void limpiarventana(benchmark::State& estado)
{
    Ventana ventana;
    ventana.abrir();
    Cuadriculas& cuadriculas = ventana.ventana->cuadriculas();
    double segundos = 0;
    for (auto _ : estado) {
        llenar(cuadriculas);
        QCoreApplication::processEvents();
        segundos += cronometrar(estado, [&] {
            limpiar(cuadriculas);
            QCoreApplication::processEvents();
        });
    }
    topems(estado, segundos, 50);
}
BENCHMARK(limpiarventana)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(20);

} // namespace

int main(int argc, char** argv)
{
    return banco::principal(argc, argv);
}
