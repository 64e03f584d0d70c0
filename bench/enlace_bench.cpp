// The serial link against the emulator program on a pseudo-terminal, without pacing: what
// the program itself costs per exchange, and how long a check waits for a board that is not
// there.

#include "emulador.h"
#include "link/conexion.h"
#include "link/enlace.h"
#include "link/qt/puertoserie.h"

#include <QCoreApplication>

#include <benchmark/benchmark.h>

namespace {

using eeprog::Enlace;
using eeprog::PuertoSerie;
using eeprog::prueba::Emulador;

void aplicacion()
{
    static int argc = 1;
    static char nombre[] = "enlace_bench";
    static char* argv[] = {nombre, nullptr};
    if (!QCoreApplication::instance())
        new QCoreApplication(argc, argv);
}

// Target: 1000 exchanges in under 1.3 s.
void milcomprobaciones(benchmark::State& estado)
{
    aplicacion();
    Emulador placa;
    PuertoSerie puerto(placa.ruta());
    Enlace enlace(puerto);
    enlace.serial();
    int fallidas = 0;
    for (auto _ : estado) {
        for (int i = 0; i < 1000; ++i)
            fallidas += eeprog::comprobarconexion(enlace) ? 0 : 1;
    }
    enlace.cerrar();
    estado.counters["fallidas"] = fallidas;
}
BENCHMARK(milcomprobaciones)->Unit(benchmark::kMillisecond)->Iterations(5);

// A whole start-up check, port opened and closed, against whatever stands behind the name.
void comprobarcadavez(benchmark::State& estado, const std::string& dispositivo)
{
    PuertoSerie puerto(dispositivo);
    Enlace enlace(puerto);
    for (auto _ : estado) {
        enlace.serial();
        benchmark::DoNotOptimize(eeprog::comprobarconexion(enlace));
        enlace.cerrar();
    }
}

// Target: about 100 ms, then the start-up goes on.
void comprobacionsinplaca(benchmark::State& estado)
{
    aplicacion();
    Emulador placa({"--muda"});
    comprobarcadavez(estado, placa.ruta());
}
BENCHMARK(comprobacionsinplaca)->Unit(benchmark::kMillisecond)->Iterations(10);

// The same with no device at all behind the name.
void comprobacionsinpuerto(benchmark::State& estado)
{
    aplicacion();
    comprobarcadavez(estado, "/dev/eeprog-no-existe");
}
BENCHMARK(comprobacionsinpuerto)->Unit(benchmark::kMillisecond)->Iterations(10);

} // namespace

BENCHMARK_MAIN();
