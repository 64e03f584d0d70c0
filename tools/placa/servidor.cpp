#include "servidor.h"

#include "pseudoterminal.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <stdlib.h>
#include <termios.h>
#include <unistd.h>

#include <algorithm>

namespace eeprog {

namespace {

// How long one look at the terminal may block; it bounds how late a signal is noticed.
constexpr long vigilancia = 100'000'000;

// How long to rest while no one has the terminal open: hang-up is reported at once, every time.
constexpr long descanso = 5'000'000;

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

const timespec& elultimo(const timespec& uno, const timespec& otro)
{
    return nanosegundosentre(uno, otro) > 0 ? otro : uno;
}

bool llegado(const timespec& momento)
{
    return nanosegundosentre(momento, ahora()) >= 0;
}

// Ten bits a byte: start, eight data bits and stop.
long tiempobyte(long baudios)
{
    return 10 * 1'000'000'000L / baudios;
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
Servidor::Servidor(Placa& placa, bool ritmo, long ciclo) : placa(placa), ritmo(ritmo), ciclo(ciclo)
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
// but their replies would have no one to go to. A reply due soon bounds the wait.
void Servidor::vigilar()
{
    timespec espera{0, vigilancia};
    if (!cola_.empty()) {
        const long falta = std::clamp(nanosegundosentre(ahora(), cola_.front().cuando) - despertar, 0L, vigilancia);
        espera = {0, falta};
    }
    pollfd vigilado{maestro, POLLIN, 0};
    if (ppoll(&vigilado, 1, &espera, nullptr) > 0) {
        const bool colgado = (vigilado.revents & POLLHUP) != 0;
        const bool leido = (vigilado.revents & POLLIN) != 0 && atender(!colgado);
        if (colgado && !leido) {
            conectado = false;
            cola_.clear();
            descansar();
            return;
        }
    }
    enviarvencidos();
}

// A reply written as the last session closed would wait in the terminal for the next one.
void Servidor::comenzarsesion()
{
    conectado = true;
    respondido_.reset();
    cola_.clear();
    tcflush(maestro, TCOFLUSH);
    placa.conectar();
}

// False when nothing could be read: some systems keep a closed terminal readable, to fail.
bool Servidor::atender(bool responder)
{
    unsigned char llegados[256];
    ssize_t leidos = read(maestro, llegados, sizeof llegados);
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
    pasartiempo(llegada);
    ultimo_ = llegada;
    timespec entrada = elultimo(llegada, lineaentrada_);
    for (ssize_t i = 0; i < leidos; ++i) {
        responderbyte(llegados[i], entrada, responder);
    }
    lineaentrada_ = entrada;
    return true;
}

void Servidor::pasartiempo(const timespec& llegada)
{
    if (!ultimo_) {
        return;
    }
    const long quieto = nanosegundosentre(*ultimo_, llegada);
    if (quieto >= TIEMPOREPOSO * 1'000'000L) {
        placa.silencio();
    } else if (quieto >= TIEMPOHUECO * 1'000'000L) {
        placa.hueco();
    }
}

// Each byte takes its time on the line at the speed the board had when it came, its reply
// waits for the write cycles it started, after those of the byte before, and goes out once
// the line is free.
void Servidor::responderbyte(unsigned char byte, timespec& entrada, bool responder)
{
    const long duracion = tiempobyte(placa.baudios());
    entrada = sumar(entrada, duracion);
    const int antes = placa.ciclos();
    const std::string respuesta = placa.recibir(byte);
    timespec listo = entrada;
    if (placa.ciclos() > antes) {
        chiplibre_ = sumar(elultimo(chiplibre_, entrada), (placa.ciclos() - antes) * ciclo * 1000);
        listo = chiplibre_;
    }
    if (!responder) {
        return;
    }
    for (const char dicho : respuesta) {
        lineasalida_ = sumar(elultimo(lineasalida_, listo), duracion);
        cola_.push_back({dicho, lineasalida_});
    }
}

// Without ritmo every reply goes at once. A sleeper wakes some tens of microseconds late, so
// the last stretch before a byte is due is waited awake.
void Servidor::enviarvencidos()
{
    if (cola_.empty()) {
        return;
    }
    if (ritmo) {
        if (nanosegundosentre(ahora(), cola_.front().cuando) > despertar) {
            return;
        }
        while (!llegado(cola_.front().cuando)) {
        }
    }
    std::string datos;
    while (!cola_.empty() && (!ritmo || llegado(cola_.front().cuando))) {
        datos += cola_.front().byte;
        cola_.pop_front();
    }
    escribirtodo(maestro, datos);
    ultimo_ = ahora();
    if (cola_.empty()) {
        respondido_ = ultimo_;
    }
}

} // namespace eeprog
