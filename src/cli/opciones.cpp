#include "cli/opciones.h"

#include "cli/salida.h"

#include <getopt.h>

#include <array>
#include <optional>
#include <string_view>

namespace eeprog {

namespace {

const std::string ayuda = R"(Uso: eeprog-cli [OPCIONES] ORDEN [ARCHIVO]
Lee, graba y verifica el AT28C64B o el AT28C256 en la placa de eeprog, desde la
línea de órdenes.

Órdenes:
  comprobar           comprueba que la placa responde
  leer                lee el chip entero: el Intel HEX que guarda eeprog, o la
                      imagen binaria del chip (-o X.bin o --formato bin)
  grabar ARCHIVO      graba los bytes del archivo (Intel HEX, S-record o imagen
                      binaria) y compara cada eco con el byte enviado
  verificar ARCHIVO   compara el chip con el archivo y da cada diferencia
  borrar              escribe FF en todo el chip
  vacio               dice si todo el chip está en FF
  desproteger         quita la protección de escritura del chip
  proteger            la pone (la placa graba a través de ella)
  prueba              prueba las líneas de dirección y de datos entre la placa
                      y el chip, y dice cuál falla y cómo; deja el chip como
                      estaba

Opciones:
  --puerto DISPOSITIVO  el puerto de la placa (si no, EEPROG_COM1 o /dev/ttyS0)
  --chip MODELO         AT28C64B (si no se dice) o AT28C256; también 28C64B y
                        28C256. El AT28C256 pide el protocolo rápido de la placa
  -o, --salida ARCHIVO  el archivo que escribe leer (sin -o, o con -, la salida
                        estándar)
  --formato hex|bin     el formato del archivo, en vez de su nombre
  --verificar           con grabar: verifica el chip después
  --solo-cambios        con grabar: lee antes el chip y graba solo las páginas de
                        64 bytes en que difiere del archivo
  --lento               el protocolo de 9600 baudios aunque la placa tenga el
                        rápido (115200 baudios, por bloques y páginas)
  -v, --detalles        dice con qué protocolo se habló con la placa
  --como-ventana        con grabar y verificar: lee el archivo como la ventana
  -q, --silencioso      sin barra de progreso ni resumen; los errores se dicen
  --version             muestra la versión
  -h, --ayuda, --help   muestra esta ayuda

Estado de salida:
  0    hecho, y el chip está como se pidió
  1    el chip no está como se pidió: diferencias, ecos erróneos, no vacío; o
       prueba halló una línea que falla
  2    uso incorrecto
  3    un archivo que no se puede leer, se rechaza o no se puede escribir
  4    no hay placa: el dispositivo no se abre, o la placa no responde
  130  interrumpido con Ctrl+C: el puerto se cierra y no queda archivo a medias
)";

enum Clave { puerto = 1, formato, verificar, comoventana, version, lento, solocambios, chip };

const std::array<option, 14> largas{{
    {"puerto", required_argument, nullptr, puerto},
    {"chip", required_argument, nullptr, chip},
    {"salida", required_argument, nullptr, 'o'},
    {"formato", required_argument, nullptr, formato},
    {"verificar", no_argument, nullptr, verificar},
    {"como-ventana", no_argument, nullptr, comoventana},
    {"silencioso", no_argument, nullptr, 'q'},
    {"lento", no_argument, nullptr, lento},
    {"solo-cambios", no_argument, nullptr, solocambios},
    {"detalles", no_argument, nullptr, 'v'},
    {"version", no_argument, nullptr, version},
    {"ayuda", no_argument, nullptr, 'h'},
    {"help", no_argument, nullptr, 'h'},
    {nullptr, 0, nullptr, 0},
}};

constexpr std::array<std::pair<std::string_view, Orden>, 9> ordenes{{
    {"comprobar", Orden::comprobar},
    {"leer", Orden::leer},
    {"grabar", Orden::grabar},
    {"verificar", Orden::verificar},
    {"borrar", Orden::borrar},
    {"vacio", Orden::vacio},
    {"desproteger", Orden::desproteger},
    {"proteger", Orden::proteger},
    {"prueba", Orden::prueba},
}};

Respuesta maluso(const std::string& motivo)
{
    return {salida::uso, "eeprog-cli: " + motivo + " (eeprog-cli --ayuda da el uso)\n"};
}

std::optional<Orden> orden(std::string_view palabra)
{
    for (const auto& [nombre, valor] : ordenes)
        if (nombre == palabra)
            return valor;
    return std::nullopt;
}

// An option that another order would take is wrong use rather than ignored, so a typo in a
// makefile shows at once.
std::optional<std::string> incompatible(const Opciones& o, bool consalida)
{
    const bool conarchivo = o.orden == Orden::grabar || o.orden == Orden::verificar;
    if (consalida && o.orden != Orden::leer)
        return "-o solo va con leer";
    if (o.verificar && o.orden != Orden::grabar)
        return "--verificar solo va con grabar";
    if (o.solocambios && o.orden != Orden::grabar)
        return "--solo-cambios solo va con grabar";
    if (o.solocambios && o.comoventana)
        return "--solo-cambios no va con --como-ventana, que graba como la ventana";
    if (o.comoventana && !conarchivo)
        return "--como-ventana solo va con grabar y verificar";
    if (o.comoventana && o.formato == Formato::bin)
        return "--como-ventana lee Intel HEX y S-record, no imágenes binarias";
    if (o.salida.empty())
        return "-o pide un nombre de archivo";
    // The old protocol and the window's way of reading files know only the first chip.
    if ((o.lento || o.comoventana) && o.modelo != &at28c64b)
        return std::string(o.lento ? "--lento" : "--como-ventana") + " solo va con el " + at28c64b.nombre;
    return std::nullopt;
}

// The words after the options: the order, and the file of the orders that take one.
std::optional<std::string> posicionales(Opciones& o, int argc, char* argv[])
{
    if (optind >= argc)
        return "falta la orden";
    const auto elegida = orden(argv[optind]);
    if (!elegida)
        return std::string("orden desconocida: ") + argv[optind];
    o.orden = *elegida;
    ++optind;
    if (o.orden == Orden::grabar || o.orden == Orden::verificar) {
        if (optind >= argc)
            return std::string("falta el archivo de ") + argv[optind - 1];
        o.archivo = argv[optind++];
    }
    if (optind < argc)
        return std::string("sobra el argumento ") + argv[optind];
    return std::nullopt;
}

} // namespace

std::variant<Opciones, Respuesta> interpretar(int argc, char* argv[])
{
    Opciones o;
    bool consalida = false;
    opterr = 0; // getopt's own messages are not in Spanish
    optind = 0; // not 1: glibc then also forgets a scan an earlier call left in the middle of a word
    for (int clave = 0; (clave = getopt_long(argc, argv, ":o:qvh", largas.data(), nullptr)) != -1;) {
        const std::string valor = optarg ? optarg : "";
        switch (clave) {
        case puerto:
            o.puerto = valor;
            break;
        case chip:
            o.modelo = buscarmodelo(valor);
            if (o.modelo == nullptr)
                return maluso("--chip es AT28C64B o AT28C256, no " + valor);
            break;
        case 'o':
            o.salida = valor;
            consalida = true;
            break;
        case formato:
            if (valor != "hex" && valor != "bin")
                return maluso("--formato es hex o bin, no " + valor);
            o.formato = valor == "hex" ? Formato::hex : Formato::bin;
            break;
        case verificar:
            o.verificar = true;
            break;
        case comoventana:
            o.comoventana = true;
            break;
        case 'q':
            o.silencioso = true;
            break;
        case 'v':
            o.detalles = true;
            break;
        case lento:
            o.lento = true;
            break;
        case solocambios:
            o.solocambios = true;
            break;
        case version:
            return Respuesta{salida::hecho, "eeprog-cli " EEPROG_VERSION "\n"};
        case 'h':
            return Respuesta{salida::hecho, ayuda};
        case ':':
            return maluso(std::string("falta el valor de ") + argv[optind - 1]);
        default:
            return maluso(std::string("opción desconocida: ") + argv[optind - 1]);
        }
    }
    if (auto motivo = posicionales(o, argc, argv))
        return maluso(*motivo);
    if (auto motivo = incompatible(o, consalida))
        return maluso(*motivo);
    return o;
}

bool esbinario(const std::string& nombre, Formato formato)
{
    if (formato != Formato::segunnombre)
        return formato == Formato::bin;
    return nombre.size() >= 4 && nombre.compare(nombre.size() - 4, 4, ".bin") == 0;
}

} // namespace eeprog
