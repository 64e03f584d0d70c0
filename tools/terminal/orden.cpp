#include "orden.h"

#include <signal.h>

#include <cerrno>
#include <cstdlib>
#include <initializer_list>
#include <iostream>

namespace eeprog {

namespace {

// A signal handler may only set a flag of this type, so the flag lives here.
volatile std::sig_atomic_t fin = 0;

void anotarfin(int)
{
    fin = 1;
}

} // namespace

bool recorreropciones(const char* programa, int argc, char* argv[], const option* claves,
                      const std::function<bool(int clave, const char* valor)>& tomar)
{
    opterr = 0; // getopt's own messages are not in Spanish
    optind = 1;
    for (int clave = 0; (clave = getopt_long(argc, argv, ":", claves, nullptr)) != -1;) {
        if (!tomar(clave, optarg)) {
            std::cerr << programa << ": opción no válida o sin su valor: " << argv[optind - 1] << '\n';
            return false;
        }
    }
    if (optind < argc) {
        std::cerr << programa << ": sobra el argumento " << argv[optind] << '\n';
        return false;
    }
    return true;
}

std::optional<long> numeroentre(const char* texto, long minimo, long maximo)
{
    char* final = nullptr;
    errno = 0;
    const long numero = std::strtol(texto, &final, 10);
    if (errno != 0 || final == texto || *final != '\0' || numero < minimo || numero > maximo)
        return std::nullopt;
    return numero;
}

const volatile std::sig_atomic_t& vigilarfin()
{
    struct sigaction accion {};
    accion.sa_handler = anotarfin;
    sigemptyset(&accion.sa_mask);
    for (const int senal : {SIGINT, SIGTERM, SIGHUP})
        sigaction(senal, &accion, nullptr);
    return fin;
}

} // namespace eeprog
