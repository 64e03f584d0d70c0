#pragma once

#include <benchmark/benchmark.h>

#include <chrono>
#include <iostream>
#include <string>

// What the benchmarks share: timing the work alone, and holding a figure to its target so
// that a miss shows as an error and makes the program end with a failure.
namespace eeprog::banco {

inline int fallos = 0;

// Times the work, outside whatever the iteration sets up or tears down, and gives that time
// to the benchmark (which must use manual time) as the iteration's time, in seconds.
template <class Trabajo> double cronometrar(benchmark::State& estado, Trabajo trabajo)
{
    const auto inicio = std::chrono::steady_clock::now();
    trabajo();
    const double segundos = std::chrono::duration<double>(std::chrono::steady_clock::now() - inicio).count();
    estado.SetIterationTime(segundos);
    return segundos;
}

inline void fallar(benchmark::State& estado, const std::string& motivo)
{
    ++fallos;
    estado.SkipWithError(motivo.c_str());
}

// A figure must stay under its target. The figure is shown as a counter either way, with the
// others of its run, and a miss is told on the error output.
inline void tope(benchmark::State& estado, const std::string& nombre, double figura, double maximo)
{
    estado.counters[nombre] = figura;
    if (figura < maximo)
        return;
    ++fallos;
    std::cerr << "Fuera de objetivo: " << nombre << " = " << figura << ", target under " << maximo << '\n';
}

// The mean of the timed seconds, in milliseconds, against a target.
inline void topems(benchmark::State& estado, double segundos, double maximo)
{
    tope(estado, "media_ms", 1000 * segundos / static_cast<double>(estado.iterations()), maximo);
}

inline int principal(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return fallos == 0 ? 0 : 1;
}

} // namespace eeprog::banco
