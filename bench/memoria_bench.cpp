// Resident memory of the real program once it has started: eeprog run on Qt's offscreen
// platform with serial port 1 naming no device, given time for its start-up, then measured
// from /proc and stopped.

#include "objetivo.h"

#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <thread>

extern char** environ;

namespace {

using namespace eeprog::banco;

// VmRSS of a running process, in KiB; -1 when its status has none.
long residente(pid_t pid)
{
    std::ifstream estado("/proc/" + std::to_string(pid) + "/status");
    std::string palabra;
    while (estado >> palabra)
        if (palabra == "VmRSS:") {
            long kib = -1;
            estado >> kib;
            return kib;
        }
    return -1;
}

// Starts the program, lets it run through its start-up and gives its VmRSS in KiB; -1 when
// it could not be started or ended on its own. The window is up within milliseconds and a
// check with no device behind the port ends in about 100 ms, so the wait is ample.
long medirprograma()
{
    char programa[] = EEPROG_PROGRAMA;
    char* argumentos[] = {programa, nullptr};
    pid_t pid = -1;
    if (posix_spawn(&pid, programa, nullptr, nullptr, argumentos, environ) != 0)
        return -1;
    std::this_thread::sleep_for(std::chrono::milliseconds(1500));
    // A program that has ended is a zombie, whose status has no VmRSS.
    const long kib = waitpid(pid, nullptr, WNOHANG) == 0 ? residente(pid) : -1;
    kill(pid, SIGKILL);
    waitpid(pid, nullptr, 0);
    return kib;
}

// Target: under 80 MiB, the largest of the runs.
void memoriaalarrancar(benchmark::State& estado)
{
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    setenv("EEPROG_COM1", "/dev/eeprog-no-existe", 1);
    long mayor = 0;
    for (auto _ : estado) {
        const long kib = medirprograma();
        if (kib < 0) {
            fallar(estado, "eeprog did not start or ended before it was measured");
            return;
        }
        mayor = std::max(mayor, kib);
    }
    tope(estado, "VmRSS_MiB", static_cast<double>(mayor) / 1024, 80);
}
BENCHMARK(memoriaalarrancar)->Unit(benchmark::kMillisecond)->Iterations(3);

} // namespace

int main(int argc, char** argv)
{
    return principal(argc, argv);
}
