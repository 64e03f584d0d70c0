#include "plataforma/senales.h"

#include <signal.h>

namespace eeprog {

namespace {

volatile std::sig_atomic_t senalada = 0;

void anotar(int)
{
    senalada = senalada + 1;
}

} // namespace

const volatile std::sig_atomic_t& vigilarsenales(std::initializer_list<int> senales)
{
    struct sigaction accion {};
    accion.sa_handler = anotar;
    sigemptyset(&accion.sa_mask);
    for (const int senal : senales)
        sigaction(senal, &accion, nullptr);
    return senalada;
}

} // namespace eeprog
