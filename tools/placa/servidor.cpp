#include "servidor.h"

#include "pseudoterminal.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <stdlib.h>
#include <termios.h>
#include <unistd.h>

namespace eeprog {

namespace {

// How long one look at the terminal may block; it bounds how late a signal is noticed.
constexpr int vigilancia = 100;
// How long to rest while no one has the terminal open: hang-up is reported at once, every time.
constexpr long descanso = 5'000'000;
// Two bytes of 10 bits at 9600 baud: the byte that came in and the reply that goes out.
constexpr long dosbytes = 2L * 10 * 1'000'000'000 / 9600;

timespec ahora()
{
    timespec momento{};
    clock_gettime(CLOCK_MONOTONIC, &momento);
    return momento;
}

// A paced reply is due at a set time; the time a sleeper may take to wake up is spent awake.
constexpr long despertar = 200'000;

timespec sumar(timespec momento, long nanosegundos)
{
    momento.tv_nsec += nanosegundos;
    momento.tv_sec += momento.tv_nsec / 1'000'000'000;
    momento.tv_nsec %= 1'000'000'000;
    if (momento.tv_nsec < 0) {
        momento.tv_nsec += 1'000'000'000;
        --momento.tv_sec;
    }
    return momento;
}

long nanosegundosentre(const timespec& antes, const timespec& despues)
{
    return (despues.tv_sec - antes.tv_sec) * 1'000'000'000L + (despues.tv_nsec - antes.tv_nsec);
}

bool llegado(const timespec& momento)
{
    const timespec actual = ahora();
    return actual.tv_sec > momento.tv_sec || (actual.tv_sec == momento.tv_sec && actual.tv_nsec >= momento.tv_nsec);
}

void descansar()
{
    timespec pausa{0, descanso};
    nanosleep(&pausa, nullptr);
}

// A signal cuts the write short; what is left then no longer matters.
void escribirtodo(int destino, const std::string& datos)
{
    std::size_t hecho = 0;
    while (hecho < datos.size()) {
        ssize_t escrito = write(destino, datos.data() + hecho, datos.size() - hecho);
        if (escrito <= 0) {
            return;
        }
        hecho += static_cast<std::size_t>(escrito);
    }
}

} // namespace

// A paced reply is due at a set time, and the system's usual slack of 50 us on every timer
// would make the board slower than the line it stands for.
Servidor::Servidor(Placa& placa, bool ritmo) : placa(placa), ritmo(ritmo)
{
    if (ritmo) {
        prctl(PR_SET_TIMERSLACK, 1UL);
    }
}

Servidor::~Servidor()
{
    if (maestro >= 0) {
        close(maestro);
    }
}

bool Servidor::abrir()
{
    maestro = abrirpseudoterminal(esclavo);
    return maestro >= 0;
}

const std::string& Servidor::ruta() const
{
    return esclavo;
}

void Servidor::servir(const volatile std::sig_atomic_t& terminar)
{
    while (!terminar) {
        vigilar();
    }
}

// Hang-up means no one has the terminal open; the first byte after one begins a session.
// Bytes sent just before a close still come with the hang-up, and the board hears them,
// but their replies would have no one to go to.
void Servidor::vigilar()
{
    pollfd vigilado{maestro, POLLIN, 0};
    if (poll(&vigilado, 1, vigilancia) <= 0) {
        return;
    }
    bool colgado = (vigilado.revents & POLLHUP) != 0;
    if ((vigilado.revents & POLLIN) != 0 && atender(!colgado)) {
        return;
    }
    if (colgado) {
        conectado = false;
        descansar();
    }
}

// A reply written as the last session closed would wait in the terminal for the next one.
void Servidor::comenzarsesion()
{
    conectado = true;
    respondido_.reset();
    tcflush(maestro, TCOFLUSH);
    placa.conectar();
}

// False when nothing could be read: some systems keep a closed terminal readable, to fail.
bool Servidor::atender(bool responder)
{
    unsigned char llegado[256];
    ssize_t leidos = read(maestro, llegado, sizeof llegado);
    if (leidos <= 0) {
        return false;
    }
    if (!conectado) {
        comenzarsesion();
    }
    const timespec llegada = ahora();
    if (respondido_) {
        reacciones_.push_back(nanosegundosentre(*respondido_, llegada) / 1000);
        respondido_.reset();
    }
    if (ultimo_ && nanosegundosentre(*ultimo_, llegada) >= TIEMPOREPOSO * 1'000'000L) {
        placa.silencio();
    }
    ultimo_ = llegada;
    timespec plazo = sumar(llegada, dosbytes);
    std::string respuestas;
    for (ssize_t i = 0; i < leidos; ++i) {
        if (auto respuesta = placa.recibir(llegado[i])) {
            respuestas += static_cast<char>(*respuesta);
        }
    }
    if (responder && !respuestas.empty()) {
        enviar(respuestas, plazo);
    }
    return true;
}

// The program sends one byte and waits, so a batch of several bytes only comes from a
// program out of step; its replies go out together at the first byte's time.
void Servidor::enviar(const std::string& respuestas, const timespec& plazo)
{
    if (ritmo) {
        // A sleeper wakes some tens of microseconds late, so the last stretch is waited awake.
        const timespec antes = sumar(plazo, -despertar);
        clock_nanosleep(CLOCK_MONOTONIC, TIMER_ABSTIME, &antes, nullptr);
        while (!llegado(plazo)) {
        }
    }
    escribirtodo(maestro, respuestas);
    respondido_ = ultimo_ = ahora();
}

} // namespace eeprog
