#include "opciones.h"

#include "orden.h"

#include <iostream>
#include <limits>

namespace eeprog {

namespace {

enum Clave {
    firmware = 1,
    enlace,
    imagen,
    volcado,
    faltas,
    protegido,
    ciclo,
    ayuda,
    muerto,
    estado,
    ruido,
    tiempos,
    chip,
    averia,
    sinchip
};

const option claves[] = {
    {"firmware", required_argument, nullptr, firmware},
    {"enlace", required_argument, nullptr, enlace},
    {"imagen", required_argument, nullptr, imagen},
    {"volcado", required_argument, nullptr, volcado},
    {"faltas", required_argument, nullptr, faltas},
    {"protegido", no_argument, nullptr, protegido},
    {"ciclo", required_argument, nullptr, ciclo},
    {"tiempos", required_argument, nullptr, tiempos},
    {"ayuda", no_argument, nullptr, ayuda},
    {"help", no_argument, nullptr, ayuda},
    {"chip-muerto", no_argument, nullptr, muerto},
    {"chip", required_argument, nullptr, chip},
    {"averia", required_argument, nullptr, averia},
    {"sin-chip", no_argument, nullptr, sinchip},
    {"estado", required_argument, nullptr, estado},
    {"ruido", required_argument, nullptr, ruido},
    {nullptr, 0, nullptr, 0},
};

// A second is far past any real chip's cycle, and keeps the nanoseconds well inside range.
constexpr long ciclomaximo = 1'000'000;

bool tomar(int clave, const char* valor, Opciones& opciones)
{
    switch (clave) {
    case firmware:
        opciones.firmware = valor;
        return true;
    case enlace:
        opciones.enlace = valor;
        return true;
    case imagen:
        opciones.imagen = valor;
        return true;
    case volcado:
        opciones.volcado = valor;
        return true;
    case faltas:
        opciones.faltas = valor;
        return true;
    case protegido:
        opciones.protegido = true;
        return true;
    case ayuda:
        opciones.ayuda = true;
        return true;
    case chip:
        opciones.chip = buscartipo(valor);
        if (opciones.chip == nullptr)
            std::cerr << "eeprog-simplaca: --chip pide AT28C64B, AT28C256 o AT28C64: " << valor << '\n';
        return opciones.chip != nullptr;
    case averia:
        if (const auto leida = leeraveria(valor)) {
            opciones.averias.push_back(*leida);
            return true;
        }
        std::cerr << "eeprog-simplaca: --averia pide LINEA=abierta, =0, =1, =unida:LINEA o =cruzada:LINEA, con "
                     "las líneas A0-A14 y D0-D7: "
                  << valor << '\n';
        return false;
    case sinchip:
        opciones.sinchip = true;
        return true;
    case muerto:
        opciones.muerto = true;
        return true;
    case estado:
        opciones.estado = valor;
        return true;
    case tiempos:
        opciones.tiempos = valor;
        return true;
    case ruido:
        if (const auto numero = numeroentre(valor, 1, std::numeric_limits<long>::max())) {
            opciones.ruido = *numero;
            return true;
        }
        std::cerr << "eeprog-simplaca: --ruido pide un número mayor que 0: " << valor << '\n';
        return false;
    case ciclo:
        if (const auto numero = numeroentre(valor, 1, ciclomaximo)) {
            opciones.ciclo = *numero;
            return true;
        }
        std::cerr << "eeprog-simplaca: --ciclo pide microsegundos, de 1 a " << ciclomaximo << ": " << valor << '\n';
        return false;
    default:
        return false;
    }
}

} // namespace

std::optional<Opciones> leeropciones(int argc, char* argv[])
{
    Opciones opciones;
    const auto tomarla = [&](int clave, const char* valor) { return tomar(clave, valor, opciones); };
    if (!recorreropciones("eeprog-simplaca", argc, argv, claves, tomarla))
        return std::nullopt;
    return opciones;
}

std::string usosimulada()
{
    return "Uso: eeprog-simplaca [OPCIONES]\n"
           "Simula la placa programadora: su ATmega16 a 7,3728 MHz corre el firmware\n"
           "de la placa y maneja un AT28C64B simulado; su puerto serie es un\n"
           "pseudoterminal. La primera línea de la salida es la ruta del puerto. La\n"
           "placa sigue activa hasta Ctrl+C.\n"
           "\n"
           "  --firmware ELF       el firmware de la placa; sin esta opción, el\n"
           "                       eeprog-placa.elf que dejó junto al programa su\n"
           "                       construcción o su instalación\n"
           "  --enlace RUTA        crea también el enlace RUTA hacia el puerto\n"
           "  --imagen ARCHIVO     contenido inicial del chip (binario, desde 0x0000);\n"
           "                       sin él, el chip está borrado (todo FF)\n"
           "  --volcado ARCHIVO    guarda el chip entero al terminar\n"
           "  --chip MODELO        el chip del zócalo: AT28C64B (el de siempre), AT28C256,\n"
           "                       o AT28C64 (sin B), cuya pata 1 es su salida RDY/BUSY\n"
           "  --averia LINEA=FALLO  rompe el cable de una línea entre el microcontrolador\n"
           "                       y el zócalo (A0-A14, D0-D7): abierta, 0, 1 (pegada a\n"
           "                       masa o a 5 V), unida:LINEA (en corto con otra) o\n"
           "                       cruzada:LINEA (cambiada con otra); se repite\n"
           "  --sin-chip           el zócalo vacío: el bus de datos flota\n"
           "  --protegido          el chip empieza con la protección de datos puesta\n"
           "  --ciclo MICROSEGUNDOS  duración del ciclo de escritura del chip (1000)\n"
           "  --faltas ARCHIVO     al terminar, escribe una línea por cada falta en el\n"
           "                       bus del chip (vacío si no hubo ninguna)\n"
           "  --chip-muerto        el chip no guarda nada de lo que se le escribe, aunque\n"
           "                       cumple sus ciclos de escritura, como uno gastado\n"
           "  --estado ARCHIVO     al terminar, escribe \"protegido\" o \"desprotegido\",\n"
           "                       según la protección de datos del chip\n"
           "  --ruido N            el N-ésimo byte del programa llega con error de\n"
           "                       trama, como lo dejaría el ruido en la línea\n"
           "  --tiempos ARCHIVO    al acabar cada sesión del puerto, añade una línea:\n"
           "                       los segundos de la placa desde el primer byte que\n"
           "                       oyó hasta el último que envió, y los ciclos de\n"
           "                       escritura que hizo el chip en ella\n"
           "  --ayuda, --help      muestra esta ayuda\n";
}

} // namespace eeprog
