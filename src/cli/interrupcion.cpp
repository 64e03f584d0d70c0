#include "cli/interrupcion.h"

#include "plataforma/senales.h"

namespace eeprog {

namespace {

const volatile std::sig_atomic_t* senalada = nullptr;

} // namespace

void vigilarinterrupciones()
{
    senalada = &vigilarsenales({SIGINT, SIGTERM});
}

bool interrumpido()
{
    return senalada != nullptr && *senalada != 0;
}

} // namespace eeprog
