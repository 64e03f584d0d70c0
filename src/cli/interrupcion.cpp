#include "cli/interrupcion.h"

#include "plataforma/senales.h"

namespace eeprog {

namespace {

const volatile std::sig_atomic_t* senaladas = nullptr;

int cuenta()
{
    return senaladas != nullptr ? *senaladas : 0;
}

} // namespace

void vigilarinterrupciones()
{
    senaladas = &vigilarsenales({SIGINT, SIGTERM, SIGHUP});
}

bool interrumpido()
{
    return cuenta() >= 1;
}

bool abandonado()
{
    return cuenta() >= 2;
}

} // namespace eeprog
