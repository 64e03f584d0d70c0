// A whole read of the chip through the real window, the real serial port and the emulator
// program on a pseudo-terminal: with the emulator holding each reply for the wire time of
// 9600 baud, and without. The read must keep up with the line, and the program must mostly
// wait on it rather than work.

#include "aplicacion.h"
#include "dialogofalso.h"
#include "emulador.h"
#include "objetivo.h"
#include "pantallafalsa.h"
#include "shell/qt/puertoserie.h"
#include "shell/qt/ventanaform1.h"

#include <QCoreApplication>

#include <sys/resource.h>

#include <memory>

namespace {

using namespace eeprog;

// 21508 bytes at 9600 baud, 10 bits a byte: 22.4 s.
constexpr double tiempodelinea = 21508 * 10 / 9600.0;

double segundosdecpu()
{
    rusage uso{};
    getrusage(RUSAGE_SELF, &uso);
    const auto segundos = [](timeval t) { return static_cast<double>(t.tv_sec) + t.tv_usec / 1e6; };
    return segundos(uso.ru_utime) + segundos(uso.ru_stime);
}

// The share of a core holds for a read at the line's pace, which is what a board gives;
// without pacing the program has nothing to wait for and only its time counts.
void leerchip(benchmark::State& estado, bool ritmo, double maximo)
{
    prueba::crearaplicacion();
    prueba::Emulador placa(ritmo ? std::vector<std::string>{"--ritmo"} : std::vector<std::string>{});
    VentanaForm1 ventana(Dependencias{std::make_unique<PuertoSerie>(placa.ruta()),
                                      std::make_unique<prueba::AvisosFalsos>(),
                                      std::make_unique<prueba::RelojFijo>(), std::make_unique<prueba::DialogoFalso>()});
    ventana.show();
    QCoreApplication::processEvents();
    double segundos = 0;
    double cpu = 0;
    for (auto _ : estado) {
        const double antes = segundosdecpu();
        segundos += banco::cronometrar(estado, [&] { ventana.logica().leer_Click(); });
        cpu += segundosdecpu() - antes;
    }
    if (ventana.logica().leido().textoleido.size() != 23040)
        banco::fallar(estado, "the read did not give 512 lines");
    banco::tope(estado, "segundos", segundos / static_cast<double>(estado.iterations()), maximo);
    if (ritmo)
        banco::tope(estado, "cpu_porciento", 100 * cpu / segundos, 10);
    else
        estado.counters["cpu_porciento"] = 100 * cpu / segundos;
}

// Target: at most 1.25 times the wire time.
void lecturaaritmo(benchmark::State& estado)
{
    leerchip(estado, true, 1.25 * tiempodelinea);
}

// Target: under 13 s with no pacing at all.
void lecturasinritmo(benchmark::State& estado)
{
    leerchip(estado, false, 13);
}

} // namespace

BENCHMARK(lecturasinritmo)->Iterations(3)->UseManualTime()->Unit(benchmark::kSecond);
BENCHMARK(lecturaaritmo)->Iterations(1)->UseManualTime()->Unit(benchmark::kSecond);

int main(int argc, char** argv)
{
    return banco::principal(argc, argv);
}
