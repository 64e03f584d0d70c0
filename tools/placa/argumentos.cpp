#include "argumentos.h"

#include "link/modelo.h"
#include "orden.h"

#include <iostream>
#include <limits>

namespace eeprog {

namespace {

enum Opcion {
    imagen = 1,
    volcado,
    muda,
    silenciosa,
    ecoerroneo,
    ritmo,
    enlace,
    reacciones,
    protegido,
    estado,
    ayuda,
    lenta,
    ciclo,
    byteerroneo,
    respuestaerronea,
    chip
};

constexpr long ciclomaximo = 1'000'000;

const option opciones[] = {
    {"imagen", required_argument, nullptr, imagen},
    {"volcado", required_argument, nullptr, volcado},
    {"muda", no_argument, nullptr, muda},
    {"silenciosa", no_argument, nullptr, silenciosa},
    {"eco-erroneo", required_argument, nullptr, ecoerroneo},
    {"ritmo", no_argument, nullptr, ritmo},
    {"enlace", required_argument, nullptr, enlace},
    {"reacciones", required_argument, nullptr, reacciones},
    {"protegido", no_argument, nullptr, protegido},
    {"estado", required_argument, nullptr, estado},
    {"lenta", no_argument, nullptr, lenta},
    {"ciclo", required_argument, nullptr, ciclo},
    {"byte-erroneo", required_argument, nullptr, byteerroneo},
    {"respuesta-erronea", required_argument, nullptr, respuestaerronea},
    {"chip", required_argument, nullptr, chip},
    {"ayuda", no_argument, nullptr, ayuda},
    {"help", no_argument, nullptr, ayuda},
    {nullptr, 0, nullptr, 0},
};

// The Nth of something, from 1.
bool cuenta(const char* opcion, const char* valor, long& destino)
{
    if (const auto numero = numeroentre(valor, 1, std::numeric_limits<long>::max())) {
        destino = *numero;
        return true;
    }
    std::cerr << "eeprog-placa: " << opcion << " pide un número mayor que 0: " << valor << '\n';
    return false;
}

bool tomar(int opcion, const char* valor, Argumentos& argumentos)
{
    switch (opcion) {
    case imagen:
        argumentos.imagen = valor;
        return true;
    case volcado:
        argumentos.volcado = valor;
        return true;
    case muda:
        argumentos.placa.muda = true;
        return true;
    case silenciosa:
        argumentos.placa.silenciosa = true;
        return true;
    case ritmo:
        argumentos.ritmo = true;
        return true;
    case enlace:
        argumentos.enlace = valor;
        return true;
    case reacciones:
        argumentos.reacciones = valor;
        return true;
    case protegido:
        argumentos.placa.protegido = true;
        return true;
    case estado:
        argumentos.estado = valor;
        return true;
    case ayuda:
        argumentos.ayuda = true;
        return true;
    case lenta:
        argumentos.placa.lenta = true;
        return true;
    case ciclo:
        if (const auto numero = numeroentre(valor, 1, ciclomaximo)) {
            argumentos.ciclo = *numero;
            return true;
        }
        std::cerr << "eeprog-placa: --ciclo pide microsegundos, de 1 a " << ciclomaximo << ": " << valor << '\n';
        return false;
    case chip:
        if (const Modelo* modelo = buscarmodelo(valor)) {
            argumentos.placa.zocalo = modelo->numero;
            return true;
        }
        std::cerr << "eeprog-placa: --chip pide AT28C64B o AT28C256: " << valor << '\n';
        return false;
    case ecoerroneo:
        return cuenta("--eco-erroneo", valor, argumentos.placa.ecoerroneo);
    case byteerroneo:
        return cuenta("--byte-erroneo", valor, argumentos.placa.byteerroneo);
    case respuestaerronea:
        return cuenta("--respuesta-erronea", valor, argumentos.placa.respuestaerronea);
    default:
        return false;
    }
}

} // namespace

std::optional<Argumentos> leerargumentos(int argc, char* argv[])
{
    Argumentos argumentos;
    const auto tomarla = [&](int opcion, const char* valor) { return tomar(opcion, valor, argumentos); };
    if (!recorreropciones("eeprog-placa", argc, argv, opciones, tomarla))
        return std::nullopt;
    return argumentos;
}

std::string uso()
{
    return "Uso: eeprog-placa [OPCIONES]\n"
           "Emula la placa programadora con su chip en un pseudoterminal.\n"
           "La primera línea de la salida es la ruta del puerto; eeprog lo usa con\n"
           "EEPROG_COM1=RUTA. La placa sigue activa hasta Ctrl+C.\n"
           "\n"
           "  --imagen ARCHIVO     contenido inicial del chip (binario, desde 0x0000)\n"
           "  --volcado ARCHIVO    guarda el chip entero al terminar\n"
           "  --chip MODELO        el chip del zócalo: AT28C64B (el de siempre) o AT28C256\n"
           "  --enlace RUTA        crea también el enlace RUTA hacia el puerto\n"
           "  --ritmo              responde al paso de una línea real, a 9600 baudios\n"
           "                       o a 115200 con el protocolo rápido\n"
           "  --ciclo MICROSEGUNDOS  con --ritmo, lo que dura cada ciclo de escritura\n"
           "                       del chip (si no, no dura nada)\n"
           "  --lenta              una placa con el programa anterior: solo habla el\n"
           "                       protocolo de 9600 baudios\n"
           "  --protegido          el chip empieza con su protección de escritura\n"
           "                       (las órdenes d y p la quitan y la ponen)\n"
           "  --estado ARCHIVO     al terminar, escribe si el chip queda protegido\n"
           "                       o desprotegido\n"
           "  --muda               no responde nunca\n"
           "  --silenciosa         responde a la primera comprobación de cada sesión\n"
           "                       y después se queda callada hasta que se reabre\n"
           "  --reacciones ARCHIVO al terminar, escribe el tiempo de reacción del\n"
           "                       programa a cada respuesta, en microsegundos\n"
           "  --eco-erroneo N      el N-ésimo byte de datos escrito se oye mal\n"
           "                       (un bit cambiado): se guarda y se devuelve así\n"
           "  --byte-erroneo N     el N-ésimo byte que oye con el protocolo rápido\n"
           "                       llega con un bit cambiado\n"
           "  --respuesta-erronea N  el N-ésimo byte que envía con el protocolo rápido\n"
           "                       sale con un bit cambiado\n"
           "  --ayuda, --help      muestra esta ayuda\n";
}

} // namespace eeprog
