// A whole read of the chip through the real window, the real serial port and the emulator
// program on a pseudo-terminal: with the emulator holding each reply for the wire time of
// 9600 baud, and without. The read must keep up with the line, and the program must mostly
// wait on it rather than work. With a display (bench/run.sh starts Xvfb) the window paints on
// a real X server, where painting costs what it costs on a desktop; without one, offscreen.

#include "aplicacion.h"
#include "dialogofalso.h"
#include "emulador.h"
#include "pantallafalsa.h"
#include "ritmo.h"
#include "link/qt/puertoserie.h"
#include "shell/qt/ventanaform1.h"

#include <QCoreApplication>
#include <QGuiApplication>

#include <filesystem>
#include <memory>

namespace {

using namespace eeprog;

// 21508 bytes at 9600 baud, 10 bits a byte: 22.4 s.
constexpr double tiempodelinea = banco::segundosdelinea(21508);

// The share of a core holds for a read at the line's pace, which is what a board gives;
// without pacing the program has nothing to wait for and only its time counts.
void leerchip(benchmark::State& estado, bool ritmo, double maximo)
{
    if (!qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "xcb");
    prueba::crearaplicacion();
    const std::string reacciones = std::filesystem::temp_directory_path() / "eeprog-lectura-reacciones";
    prueba::Emulador placa(ritmo ? std::vector<std::string>{"--ritmo", "--reacciones", reacciones}
                                 : std::vector<std::string>{});
    VentanaForm1 ventana(Dependencias{std::make_unique<PuertoSerie>(placa.ruta()),
                                      std::make_unique<prueba::AvisosFalsos>(),
                                      std::make_unique<prueba::RelojFijo>(), std::make_unique<prueba::DialogoFalso>()});
    ventana.show();
    QCoreApplication::processEvents();
    double segundos = 0;
    double cpu = 0;
    for (auto _ : estado) {
        const double antes = banco::segundosdecpu();
        segundos += banco::cronometrar(estado, [&] { ventana.logica().leer_Click(); });
        cpu += banco::segundosdecpu() - antes;
    }
    if (ventana.logica().leido().textoleido.size() != 23040)
        banco::fallar(estado, "the read did not give 512 lines");
    banco::tope(estado, "segundos", segundos / static_cast<double>(estado.iterations()), maximo);
    estado.counters["plataforma_xcb"] = QGuiApplication::platformName() == QLatin1String("xcb");
    if (!ritmo) {
        estado.counters["cpu_porciento"] = 100 * cpu / segundos;
        return;
    }
    banco::tope(estado, "cpu_porciento", 100 * cpu / segundos, 10);
    placa.terminar();
    banco::reacciones(estado, reacciones);
    estado.counters["veces_la_linea"] = segundos / static_cast<double>(estado.iterations()) / tiempodelinea;
}

// Target: at most 1.08 times the wire time.
void lecturaaritmo(benchmark::State& estado)
{
    leerchip(estado, true, 1.08 * tiempodelinea);
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
