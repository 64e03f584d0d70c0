#include "chipmodelo.h"

#include "link/modelo.h"

#include <algorithm>
#include <cstdio>
#include <limits>

namespace eeprog {

namespace {

// The -15 part's times, in nanoseconds.
constexpr std::int64_t accesodireccion = 150;
constexpr std::int64_t accesoce = 150;
constexpr std::int64_t accesooe = 70;
constexpr std::int64_t pulsominimo = 100;
constexpr std::int64_t preparaciondato = 50;   // tDS
constexpr std::int64_t ventanacarga = 150'000; // tBLC
constexpr std::int64_t inhibicion = 5'000'000; // writes refused after power-up

struct Paso {
    std::uint16_t direccion;
    std::uint8_t dato;
};

// The software data protection's command sequences, loaded as the start of a page load.
std::array<Paso, 3> activar(const TipoChip& tipo)
{
    return {{{tipo.clave1, 0xAA}, {tipo.clave2, 0x55}, {tipo.clave1, 0xA0}}};
}

std::array<Paso, 6> desactivar(const TipoChip& tipo)
{
    return {{{tipo.clave1, 0xAA},
             {tipo.clave2, 0x55},
             {tipo.clave1, 0x80},
             {tipo.clave1, 0xAA},
             {tipo.clave2, 0x55},
             {tipo.clave1, 0x20}}};
}

template <typename Cargas, std::size_t N> bool empiezacon(const Cargas& cargas, const std::array<Paso, N>& secuencia)
{
    return cargas.size() >= N &&
           std::equal(secuencia.begin(), secuencia.end(), cargas.begin(), [](const Paso& paso, auto& carga) {
               return paso.direccion == carga.direccion && paso.dato == carga.dato;
           });
}

bool conduce(const Patas& patas)
{
    return !patas.ce && !patas.oe && patas.we;
}

// A line changes when its level changes while driven, or when it is taken or let go.
std::uint8_t cambiados(const Patas& antes, const Patas& despues)
{
    return static_cast<std::uint8_t>(((antes.datos & antes.conducidos) ^ (despues.datos & despues.conducidos)) |
                                     (antes.conducidos ^ despues.conducidos));
}

std::string hexadecimal(unsigned valor, int cifras)
{
    char texto[8];
    std::snprintf(texto, sizeof texto, "0x%0*X", cifras, valor);
    return texto;
}

} // namespace

const TipoChip* buscartipo(std::string_view palabra)
{
    for (const TipoChip& tipo : tiposchip)
        if (nombra(palabra, tipo.nombre))
            return &tipo;
    return nullptr;
}

ChipModelo::ChipModelo(Memoria contenido, std::int64_t ciclo, bool protegido, bool muerto, const TipoChip& tipo)
    : tipo(tipo), celdas(std::move(contenido)), ciclo(ciclo), proteccion(protegido), muerto(muerto)
{
    celdas.resize(static_cast<std::size_t>(tipo.tamano), 0);
    cambiodato.fill(std::numeric_limits<std::int64_t>::min() / 2);
}

void ChipModelo::cambiar(const Patas& nuevas, std::int64_t ahora)
{
    avanzar(ahora);
    if (const auto valor = salida(); valor && ahora >= valida)
        enbus = *valor;
    const Patas antes = patas;
    patas = nuevas;
    if (nuevas.direccion != antes.direccion)
        valida = std::max(valida, ahora + accesodireccion);
    if (antes.ce && !nuevas.ce)
        valida = std::max(valida, ahora + accesoce);
    if (antes.oe && !nuevas.oe)
        valida = std::max(valida, ahora + accesooe);
    if (!pulsando(antes) && pulsando(nuevas))
        empezarpulso(ahora);
    // The data latch on the rising edge: what was on the bus up to it.
    if (pulsando(antes) && !pulsando(nuevas))
        acabarpulso(antes, ahora);
    if (!conduce(antes) && conduce(nuevas) && estado != Estado::reposo)
        alterno = !alterno;
    anotarcambios(antes, ahora);
    vigilarconflicto(ahora);
    if (tipo.listo && nuevas.altas != 0 && antes.altas == 0)
        anotar(ahora, std::string("A13 o A14 conducidas (") + hexadecimal(nuevas.altas, 1) + ") con un " + tipo.nombre +
                          " en el zócalo: su pata 1 es la salida RDY/BUSY");
}

// A pulse still going holds the load window open: the chip counts it from the pulse's end.
// At the end of a write cycle the outputs go from the status to the byte without letting go
// of the bus, so a read then is no fault.
void ChipModelo::avanzar(std::int64_t ahora)
{
    if (estado == Estado::cargando && !iniciopulso && ahora >= finventana)
        empezarciclo();
    if (estado == Estado::escribiendo && ahora >= finciclo)
        acabarciclo();
}

// While busy the chip answers any address with its status: I/O7 inverted from the last byte
// loaded (DATA polling), I/O6 toggling from one read to the next (the toggle bit), and I/O0-5
// as that byte had them, which the data sheet leaves open.
std::optional<std::uint8_t> ChipModelo::salida() const
{
    if (!conduce(patas))
        return std::nullopt;
    if (estado != Estado::reposo)
        return static_cast<std::uint8_t>(ultimo ^ 0x80 ^ (alterno ? 0x40 : 0));
    return celdas[celda(patas.direccion)];
}

// Bits the microcontroller drives read as it drives them, the chip's once its access times
// have passed. Nobody drives the rest: they float, and read as anything but what was last on
// the bus, so a firmware that samples too early or too late never gets the byte by luck.
std::uint8_t ChipModelo::muestrear(std::int64_t cuando)
{
    avanzar(cuando);
    const auto propio = salida();
    const bool valido = propio && cuando >= valida;
    const auto ajenos = static_cast<std::uint8_t>(~patas.conducidos);
    auto valor = static_cast<std::uint8_t>((patas.datos & patas.conducidos) | (valido ? *propio & ajenos : 0));
    if (valido || ajenos == 0)
        return valor;
    const std::string donde = "lectura del bus de datos en " + hexadecimal(celda(patas.direccion), 4);
    if (propio)
        anotar(cuando, donde + " " + std::to_string(valida - cuando) +
                           " ns antes de que el chip dé el dato; los bits " + hexadecimal(ajenos, 2) + " aún no valen");
    else
        anotar(cuando, donde + " con los bits " + hexadecimal(ajenos, 2) + " sin conducir por nadie; flotan");
    return static_cast<std::uint8_t>(valor | flotar(ajenos, enbus));
}

// /WE and /CE both low with /OE high: a write pulse. /OE low inhibits the write.
bool ChipModelo::pulsando(const Patas& estas) const
{
    return !estas.ce && !estas.we && estas.oe;
}

// The address latches on the later falling edge of /WE and /CE.
void ChipModelo::empezarpulso(std::int64_t ahora)
{
    iniciopulso = ahora;
    direccionpulso = static_cast<std::uint16_t>(celda(patas.direccion));
}

void ChipModelo::acabarpulso(const Patas& capturadas, std::int64_t ahora)
{
    const std::int64_t inicio = *iniciopulso;
    const std::int64_t ancho = ahora - inicio;
    iniciopulso.reset();
    if (inicio < inhibicion) {
        anotar(ahora, "pulso de escritura en " + hexadecimal(direccionpulso, 4) + " antes de los " +
                          std::to_string(inhibicion / 1'000'000) + " ms del encendido; se ignora");
    } else if (ancho < pulsominimo) {
        anotar(ahora, "pulso de escritura de " + std::to_string(ancho) + " ns en " + hexadecimal(direccionpulso, 4) +
                          ", menos de " + std::to_string(pulsominimo) + " ns; no se carga");
    } else if (estado == Estado::escribiendo) {
        anotar(ahora, "carga de " + hexadecimal(capturadas.datos, 2) + " en " + hexadecimal(direccionpulso, 4) +
                          " durante el ciclo de escritura; se pierde");
    } else {
        cargar(direccionpulso, capturar(capturadas, ahora), ahora);
    }
}

// The byte on the bus at the latch edge. A line nobody drives, or one still settling within
// the setup time, latches whatever level it happens to have.
std::uint8_t ChipModelo::capturar(const Patas& capturadas, std::int64_t ahora)
{
    const std::string dato = "dato cargado en " + hexadecimal(direccionpulso, 4) + " con los bits ";
    const auto sueltos = static_cast<std::uint8_t>(~capturadas.conducidos);
    if (sueltos != 0)
        anotar(ahora, dato + hexadecimal(sueltos, 2) + " del bus de datos sin conducir; guarda cualquier cosa");
    const std::uint8_t tarde = tardios(capturadas.conducidos, ahora);
    if (tarde != 0)
        anotar(ahora, dato + hexadecimal(tarde, 2) + " cambiados menos de " + std::to_string(preparaciondato) +
                          " ns antes del flanco que lo captura; guarda cualquier cosa");
    const auto dudosos = static_cast<std::uint8_t>(sueltos | tarde);
    return static_cast<std::uint8_t>((capturadas.datos & ~dudosos) | flotar(dudosos, capturadas.datos));
}

// The driven lines that changed within the setup time before ahora.
std::uint8_t ChipModelo::tardios(std::uint8_t lineas, std::int64_t ahora) const
{
    std::uint8_t bits = 0;
    for (int bit = 0; bit < 8; ++bit)
        if ((lineas >> bit & 1) && ahora - cambiodato[bit] < preparaciondato)
            bits = static_cast<std::uint8_t>(bits | 1 << bit);
    return bits;
}

void ChipModelo::cargar(std::uint16_t direccion, std::uint8_t dato, std::int64_t ahora)
{
    cargas.push_back({direccion, dato, ahora});
    ultimo = dato;
    alterno = false;
    estado = Estado::cargando;
    finventana = ahora + ventanacarga;
}

// The whole load is judged when the window closes: only then is it known whether it began
// with a command, whose bytes lie outside any page. A load the protection refuses still runs
// its write cycle, polled as any other, and stores nothing.
void ChipModelo::empezarciclo()
{
    protecciondespues = proteccion;
    std::size_t ordenes = 0;
    if (empiezacon(cargas, desactivar(tipo))) {
        protecciondespues = false;
        ordenes = desactivar(tipo).size();
    } else if (empiezacon(cargas, activar(tipo))) {
        protecciondespues = true;
        ordenes = activar(tipo).size();
    }
    pendientes = enpagina(cargas.begin() + static_cast<std::ptrdiff_t>(ordenes));
    if (ordenes == 0 && proteccion)
        pendientes.clear();
    cargas.clear();
    estado = Estado::escribiendo;
    finciclo = finventana + ciclo;
    ++cuentaciclos;
}

// One write cycle writes one page, the page of the first data byte: the others are lost.
std::vector<ChipModelo::Carga> ChipModelo::enpagina(std::vector<Carga>::const_iterator desde)
{
    std::vector<Carga> dentro;
    const unsigned propia = desde == cargas.end() ? 0 : desde->direccion & pagina();
    for (auto carga = desde; carga != cargas.end(); ++carga) {
        if ((carga->direccion & pagina()) == propia) {
            dentro.push_back(*carga);
            continue;
        }
        anotar(carga->cuando, "carga de " + hexadecimal(carga->dato, 2) + " en " + hexadecimal(carga->direccion, 4) +
                                  " fuera de la página " + hexadecimal(propia, 4) + "-" +
                                  hexadecimal(propia | (tipo.tamano - 1 - pagina()), 4) +
                                  " de su carga; no se escribe");
    }
    return dentro;
}

// Only the bytes loaded are written; the rest of their page keeps what it had.
void ChipModelo::acabarciclo()
{
    if (!muerto)
        for (const Carga& carga : pendientes)
            celdas[carga.direccion] = carga.dato;
    pendientes.clear();
    proteccion = protecciondespues;
    estado = Estado::reposo;
}

// Logged once as it begins, not at every change while it lasts.
void ChipModelo::vigilarconflicto(std::int64_t ahora)
{
    const bool ambos = conduce(patas) && patas.conducidos != 0;
    if (ambos && !enconflicto)
        anotar(ahora, "el chip y el microcontrolador conducen a la vez el bus de datos (bits " +
                          hexadecimal(patas.conducidos, 2) + ") en " + hexadecimal(celda(patas.direccion), 4));
    enconflicto = ambos;
}

// Each line change counts from its last change, for the setup time.
void ChipModelo::anotarcambios(const Patas& antes, std::int64_t ahora)
{
    const std::uint8_t bits = cambiados(antes, patas);
    for (int bit = 0; bit < 8; ++bit)
        if (bits >> bit & 1)
            cambiodato[bit] = ahora;
}

// Random levels for the bits given, never all as in evitar: a floating line that happened to
// keep its old level would hide the fault.
std::uint8_t ChipModelo::flotar(std::uint8_t bits, std::uint8_t evitar)
{
    if (bits == 0)
        return 0;
    auto valor = static_cast<std::uint8_t>(azar() >> 8);
    if (((valor ^ evitar) & bits) == 0)
        valor = static_cast<std::uint8_t>(valor ^ bits);
    return static_cast<std::uint8_t>(valor & bits);
}

void ChipModelo::anotar(std::int64_t ahora, const std::string& texto)
{
    registro.push_back(std::to_string(ahora) + " ns: " + texto);
}

} // namespace eeprog
