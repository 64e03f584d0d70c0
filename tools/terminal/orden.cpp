#include "orden.h"

#include "enlacesimbolico.h"

#include <cerrno>
#include <cstdlib>
#include <iostream>

namespace eeprog {

bool recorreropciones(const char* programa, int argc, char* argv[], const option* claves,
                      const std::function<bool(int clave, const char* valor)>& tomar)
{
    opterr = 0; // getopt's own messages are not in Spanish
    optind = 0; // not 1: glibc then also forgets a scan an earlier call left in the middle of a word
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

bool anunciar(const char* programa, const std::string& ruta, const std::string& enlace)
{
    if (!enlace.empty() && !enlazar(enlace, ruta)) {
        std::cerr << programa << ": no se puede crear el enlace " << enlace << '\n';
        return false;
    }
    std::cout << ruta << std::endl;
    return true;
}

} // namespace eeprog
