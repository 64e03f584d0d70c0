// eeprog-cli against the emulator at the pace of a real line: a whole read and a whole 8 KB
// image programmed by the old protocol at 9600 baud, and a whole read by the fast one at
// 115200. Each must keep up with the line, and mostly wait on it. And against the simulated
// board running the firmware, where it is built: the board's own time for each order, by
// both protocols, against the line's and the chip's write cycles.

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

// The fast read: the check and the question at 9600 (c, c; v, V and the version), then from
// the board the greeting, 64 block frames of 134 bytes and the farewell, at 115200, while
// the program's frames go the other way at the same time.
constexpr double lecturarapida = (2 + 3) * 10 / 9600.0 + (4 + 64 * 134 + 4) * 10 / 115200.0;

// The full images that grabar takes, 8 KB and 32 KB, written anew for each benchmark, and
// the chip the simulated board starts with: the image with one byte changed.
void escribirimagen(const std::string& carpeta, std::size_t tamano = 8192)
{
    std::string imagen(tamano, '\0');
    for (std::size_t k = 0; k < imagen.size(); ++k)
        imagen[k] = static_cast<char>(k * 7);
    const std::string sufijo = tamano == 8192 ? "" : "-256";
    std::ofstream(carpeta + "/eeprog-cli-bench" + sufijo + ".bin", std::ios::binary) << imagen;
    imagen[0x1234] ^= 0x01;
    std::ofstream(carpeta + "/eeprog-cli-bench-cambiada.bin", std::ios::binary) << imagen;
}

void orden(benchmark::State& estado, const std::vector<std::string>& palabras, double linea)
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
    estado.counters["segundos_de_linea"] = linea;
    estado.counters["cpu_porciento"] = 100 * cpu / segundos;
    banco::tope(estado, "veces_la_linea", media / linea, palabras.front() == "--lento" ? 1.08 : 1.10);
}

// Targets: at most 1.08 times the wire time at 9600, 1.10 at 115200, where the host's own
// delays weigh more against a shorter line.
void leer(benchmark::State& estado)
{
    orden(estado, {"--lento", "leer", "-o", std::filesystem::temp_directory_path() / "eeprog-cli-bench.hex"},
          banco::segundosdelinea(byteslectura));
}

void grabar(benchmark::State& estado)
{
    orden(estado, {"--lento", "grabar", std::filesystem::temp_directory_path() / "eeprog-cli-bench.bin"},
          banco::segundosdelinea(bytesgrabacion));
}

void leerrapido(benchmark::State& estado)
{
    orden(estado, {"leer", "-o", std::filesystem::temp_directory_path() / "eeprog-cli-bench.hex"}, lecturarapida);
}

// The board's own seconds for one order, from the simulated board's --tiempos: they do not
// depend on how fast this machine simulates it. The chip's write cycle is given in
// microseconds, and the chip starts as the image with one byte changed.
double segundosdeplaca(benchmark::State& estado, const std::vector<std::string>& palabras, const char* ciclo,
                       const char* chip)
{
    const std::string carpeta = std::filesystem::temp_directory_path();
    const std::string tiempos = carpeta + "/eeprog-cli-bench-tiempos";
    escribirimagen(carpeta, palabras.front() == "--chip" ? 32768 : 8192);
    std::filesystem::remove(tiempos);
    prueba::Emulador placa({"--ciclo", ciclo, "--tiempos", tiempos, "--imagen",
                            carpeta + "/eeprog-cli-bench-cambiada.bin", "--chip", chip},
                           EEPROG_SIMPLACA);
    std::vector<std::string> completa{"-q", "--puerto", placa.ruta()};
    completa.insert(completa.end(), palabras.begin(), palabras.end());
    const int salida = prueba::correrorden(completa, carpeta).estado;
    placa.terminar();
    if (salida > 1)
        banco::fallar(estado, "eeprog-cli ended with " + std::to_string(salida));
    double segundos = 0;
    std::ifstream(tiempos) >> segundos;
    return segundos;
}

void simulada(benchmark::State& estado, const std::vector<std::string>& palabras, const char* ciclo, double maximo)
{
    const char* chip = palabras.front() == "--chip" ? "AT28C256" : "AT28C64B";
    for (auto _ : estado) {
        const double segundos = segundosdeplaca(estado, palabras, ciclo, chip);
        estado.SetIterationTime(segundos);
        banco::tope(estado, "segundos_de_placa", segundos, maximo);
    }
}

const std::string imagenbanco = std::filesystem::temp_directory_path() / "eeprog-cli-bench.bin";
const std::string lecturabanco = std::filesystem::temp_directory_path() / "eeprog-cli-bench.hex";

// The fast protocol: a read is 0.745 s of line; 128 write cycles of 10 ms are 1.28 s, and
// the read-back 0.75 s; a page changed costs a read and one cycle.
void leersimulada(benchmark::State& estado)
{
    simulada(estado, {"leer", "-o", lecturabanco}, "10000", 0.80);
}
void grabarsimulada(benchmark::State& estado)
{
    simulada(estado, {"grabar", imagenbanco, "--verificar"}, "10000", 2.2);
}
void grabarsimulada2ms(benchmark::State& estado)
{
    simulada(estado, {"grabar", imagenbanco, "--verificar"}, "2000", 2.2);
}
void cambiossimulada(benchmark::State& estado)
{
    simulada(estado, {"grabar", "--solo-cambios", imagenbanco}, "10000", 1.0);
}
// The 28C256: its 32 KB are 2.84 s of line at 115200, and 512 write cycles of 10 ms 5.12 s.
const std::string imagenbanco256 = std::filesystem::temp_directory_path() / "eeprog-cli-bench-256.bin";
void leersimulada256(benchmark::State& estado)
{
    simulada(estado, {"--chip", "AT28C256", "leer", "-o", lecturabanco}, "10000", 3.1);
}
void grabarsimulada256(benchmark::State& estado)
{
    simulada(estado, {"--chip", "AT28C256", "grabar", imagenbanco256, "--verificar"}, "10000", 8.5);
}
// The old protocol on the same board, for the ratio: each exchange is two bytes of line, a
// byte written waits for its own write cycle, and the program's reaction to each reply counts
// in real time, as it would with a real board: some 60 % more than the line for a read, a
// quarter more than line and cycles for a write.
void leersimuladalento(benchmark::State& estado)
{
    simulada(estado, {"--lento", "leer", "-o", lecturabanco}, "10000", 1.6 * banco::segundosdelinea(byteslectura));
}
void grabarsimuladalento(benchmark::State& estado)
{
    const double lineayciclos = banco::segundosdelinea(bytesgrabacion + byteslectura) + 8192 * 0.010;
    simulada(estado, {"--lento", "grabar", imagenbanco, "--verificar"}, "10000", 1.25 * lineayciclos);
}

} // namespace

BENCHMARK(leer)->Iterations(1)->UseManualTime()->Unit(benchmark::kSecond);
BENCHMARK(grabar)->Iterations(1)->UseManualTime()->Unit(benchmark::kSecond);
BENCHMARK(leerrapido)->Iterations(1)->UseManualTime()->Unit(benchmark::kSecond);

int registrarsimulada = [] {
    if (std::string(EEPROG_SIMPLACA).empty())
        return 0;
    const std::pair<const char*, void (*)(benchmark::State&)> bancos[] = {
        {"leersimulada", leersimulada},           {"grabarsimulada", grabarsimulada},
        {"grabarsimulada2ms", grabarsimulada2ms}, {"cambiossimulada", cambiossimulada},
        {"leersimuladalento", leersimuladalento}, {"grabarsimuladalento", grabarsimuladalento},
        {"leersimulada256", leersimulada256},     {"grabarsimulada256", grabarsimulada256},
    };
    for (const auto& [nombre, banco] : bancos)
        benchmark::RegisterBenchmark(nombre, banco)->Iterations(1)->UseManualTime()->Unit(benchmark::kSecond);
    return 0;
}();

int main(int argc, char** argv)
{
    return banco::principal(argc, argv);
}
