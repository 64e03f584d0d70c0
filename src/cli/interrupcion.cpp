#include "cli/interrupcion.h"

#include <csignal>
#include <initializer_list>

#include <signal.h>

namespace eeprog {

namespace {

// A signal handler may only set a flag of this type, so the flag lives here.
volatile std::sig_atomic_t senalada = 0;

void anotar(int)
{
    senalada = 1;
}

} // namespace

// Without SA_RESTART the signal also breaks a wait on the port, so the stop is prompt.
void vigilarinterrupciones()
{
    struct sigaction accion {};
    accion.sa_handler = anotar;
    sigemptyset(&accion.sa_mask);
    for (const int senal : {SIGINT, SIGTERM})
        sigaction(senal, &accion, nullptr);
}

bool interrumpido()
{
    return senalada != 0;
}

} // namespace eeprog
