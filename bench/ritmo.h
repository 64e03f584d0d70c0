#pragma once

#include "objetivo.h"

#include <sys/resource.h>

#include <algorithm>
#include <fstream>
#include <string>
#include <vector>

// What the benchmarks against a board at the line's pace share: the wire time, the CPU time
// used, and the program's reaction to each reply as the emulator saw it.
namespace eeprog::banco {

// One exchange is a byte out and its reply back, 10 bits each at 9600 baud.
constexpr double segundosdelinea(int bytes)
{
    return bytes * 10 / 9600.0;
}

// User and system time of this process, or of the children it has waited for.
inline double segundosdecpu(int quien = RUSAGE_SELF)
{
    rusage uso{};
    getrusage(quien, &uso);
    const auto segundos = [](timeval t) { return static_cast<double>(t.tv_sec) + t.tv_usec / 1e6; };
    return segundos(uso.ru_utime) + segundos(uso.ru_stime);
}

// The median and the 99th percentile of the reaction times the emulator wrote (--reacciones),
// in milliseconds, as counters.
inline void reacciones(benchmark::State& estado, const std::string& archivo)
{
    std::vector<long> tiempos;
    std::ifstream entrada(archivo);
    for (long microsegundos = 0; entrada >> microsegundos;)
        tiempos.push_back(microsegundos);
    if (tiempos.empty()) {
        fallar(estado, "the emulator wrote no reaction times");
        return;
    }
    std::sort(tiempos.begin(), tiempos.end());
    const auto percentil = [&](double p) { return tiempos[static_cast<std::size_t>(p * (tiempos.size() - 1))] / 1000.0; };
    estado.counters["reaccion_mediana_ms"] = percentil(0.5);
    estado.counters["reaccion_p99_ms"] = percentil(0.99);
}

} // namespace eeprog::banco
