// eeprog-cli against the emulator at the pace of a real 9600-baud line: a whole read, and a
// whole 8 KB image programmed. Each must keep up with the line, and mostly wait on it. And the
// same against the simulated board running the firmware, where it is built: seconds, not the
// minutes a simulation at the line's own pace would take.

#include "emulador.h"
#include "ordencli.h"
#include "ritmo.h"

#include <filesystem>
#include <fstream>

namespace {

using namespace eeprog;

// The check of the frame, then 512 frames of 21 exchanges; the read sends one more check.
constexpr int byteslectura = 21508;
constexpr int bytesgrabacion = 21506;

// The full image that grabar takes, written anew for each benchmark.
void escribirimagen(const std::string& carpeta)
{
    std::string imagen(8192, '\0');
    for (std::size_t k = 0; k < imagen.size(); ++k)
        imagen[k] = static_cast<char>(k * 7);
    std::ofstream(carpeta + "/eeprog-cli-bench.bin", std::ios::binary) << imagen;
}

void orden(benchmark::State& estado, const std::vector<std::string>& palabras, int bytes)
{
    const std::string carpeta = std::filesystem::temp_directory_path();
    const std::string reacciones = carpeta + "/eeprog-cli-bench-reacciones";
    escribirimagen(carpeta);
    double segundos = 0;
    double cpu = 0;
    for (auto _ : estado) {
        prueba::Emulador placa({"--ritmo", "--reacciones", reacciones});
        std::vector<std::string> completa{"-q", "--puerto", placa.ruta()};
        completa.insert(completa.end(), palabras.begin(), palabras.end());
        const double antes = banco::segundosdecpu(RUSAGE_CHILDREN);
        int salida = -1;
        segundos += banco::cronometrar(estado, [&] { salida = prueba::correrorden(completa, carpeta).estado; });
        cpu += banco::segundosdecpu(RUSAGE_CHILDREN) - antes;
        placa.terminar();
        if (salida != 0)
            banco::fallar(estado, "eeprog-cli ended with " + std::to_string(salida));
    }
    banco::reacciones(estado, reacciones);
    const double media = segundos / static_cast<double>(estado.iterations());
    estado.counters["segundos_de_linea"] = banco::segundosdelinea(bytes);
    estado.counters["cpu_porciento"] = 100 * cpu / segundos;
    banco::tope(estado, "veces_la_linea", media / banco::segundosdelinea(bytes), 1.08);
}

// Targets: at most 1.08 times the wire time.
void leer(benchmark::State& estado)
{
    orden(estado, {"leer", "-o", std::filesystem::temp_directory_path() / "eeprog-cli-bench.hex"}, byteslectura);
}

void grabar(benchmark::State& estado)
{
    orden(estado, {"grabar", std::filesystem::temp_directory_path() / "eeprog-cli-bench.bin"}, bytesgrabacion);
}

// The firmware's chip runs write cycles of 1 ms, the simulated board's default.
void simulada(benchmark::State& estado, const std::vector<std::string>& palabras)
{
    const std::string carpeta = std::filesystem::temp_directory_path();
    escribirimagen(carpeta);
    for (auto _ : estado) {
        prueba::Emulador placa({}, EEPROG_SIMPLACA);
        std::vector<std::string> completa{"-q", "--puerto", placa.ruta()};
        completa.insert(completa.end(), palabras.begin(), palabras.end());
        int salida = -1;
        banco::tope(estado, "segundos",
                    banco::cronometrar(estado, [&] { salida = prueba::correrorden(completa, carpeta).estado; }), 15);
        if (salida != 0)
            banco::fallar(estado, "eeprog-cli ended with " + std::to_string(salida));
    }
}

void leersimulada(benchmark::State& estado)
{
    simulada(estado, {"leer", "-o", std::filesystem::temp_directory_path() / "eeprog-cli-bench.hex"});
}

void grabarsimulada(benchmark::State& estado)
{
    simulada(estado, {"grabar", std::filesystem::temp_directory_path() / "eeprog-cli-bench.bin", "--verificar"});
}

} // namespace

BENCHMARK(leer)->Iterations(1)->UseManualTime()->Unit(benchmark::kSecond);
BENCHMARK(grabar)->Iterations(1)->UseManualTime()->Unit(benchmark::kSecond);

int registrarsimulada = [] {
    if (std::string(EEPROG_SIMPLACA).empty())
        return 0;
    benchmark::RegisterBenchmark("leersimulada", leersimulada)
        ->Iterations(1)
        ->UseManualTime()
        ->Unit(benchmark::kSecond);
    benchmark::RegisterBenchmark("grabarsimulada", grabarsimulada)
        ->Iterations(1)
        ->UseManualTime()
        ->Unit(benchmark::kSecond);
    return 0;
}();

int main(int argc, char** argv)
{
    return banco::principal(argc, argv);
}
