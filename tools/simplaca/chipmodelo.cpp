#include "chipmodelo.h"

#include <algorithm>
#include <cstdio>

namespace eeprog {

namespace {

// The -15 part's times, in nanoseconds.
constexpr std::int64_t accesodireccion = 150;
constexpr std::int64_t accesoce = 150;
constexpr std::int64_t accesooe = 70;
constexpr std::int64_t pulsominimo = 100;
constexpr std::int64_t ventanacarga = 150'000;

struct Paso {
    std::uint16_t direccion;
    std::uint8_t dato;
};

// The software data protection's command sequences, loaded as the start of a page load.
constexpr Paso activar[] = {{0x1555, 0xAA}, {0x0AAA, 0x55}, {0x1555, 0xA0}};
constexpr Paso desactivar[] = {{0x1555, 0xAA}, {0x0AAA, 0x55}, {0x1555, 0x80},
                               {0x1555, 0xAA}, {0x0AAA, 0x55}, {0x1555, 0x20}};

template <typename Cargas, std::size_t N> bool empiezacon(const Cargas& cargas, const Paso (&secuencia)[N])
{
    return cargas.size() >= N &&
           std::equal(secuencia, secuencia + N, cargas.begin(), [](const Paso& paso, auto& carga) {
               return paso.direccion == carga.direccion && paso.dato == carga.dato;
           });
}

bool conduce(const Patas& patas)
{
    return !patas.ce && !patas.oe && patas.we;
}

std::string hexadecimal(unsigned valor, int cifras)
{
    char texto[8];
    std::snprintf(texto, sizeof texto, "0x%0*X", cifras, valor);
    return texto;
}

} // namespace

ChipModelo::ChipModelo(const Memoria& contenido, std::int64_t ciclo, bool protegido)
    : celdas(contenido), ciclo(ciclo), proteccion(protegido)
{}

void ChipModelo::cambiar(const Patas& nuevas, std::int64_t ahora)
{
    avanzar(ahora);
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
        acabarpulso(antes.datos, ahora);
    if (!conduce(antes) && conduce(nuevas) && estado != Estado::reposo)
        alterno = !alterno;
    vigilarconflicto(ahora);
}

// A pulse still going holds the load window open: the chip counts it from the pulse's end.
void ChipModelo::avanzar(std::int64_t ahora)
{
    if (estado == Estado::cargando && !iniciopulso && ahora >= finventana)
        empezarciclo();
    if (estado == Estado::escribiendo && ahora >= finciclo) {
        acabarciclo();
        valida = std::max(valida, finciclo);
    }
}

std::optional<std::int64_t> ChipModelo::proximo() const
{
    if (estado == Estado::cargando && !iniciopulso)
        return finventana;
    if (estado == Estado::escribiendo)
        return finciclo;
    return std::nullopt;
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
    return celdas[patas.direccion & (tamano - 1)];
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
    direccionpulso = patas.direccion & (tamano - 1);
}

void ChipModelo::acabarpulso(std::uint8_t dato, std::int64_t ahora)
{
    const std::int64_t ancho = ahora - *iniciopulso;
    iniciopulso.reset();
    if (ancho < pulsominimo) {
        anotar(ahora, "pulso de escritura de " + std::to_string(ancho) + " ns en " + hexadecimal(direccionpulso, 4) +
                          ", menos de " + std::to_string(pulsominimo) + " ns; no se carga");
    } else if (estado == Estado::escribiendo) {
        anotar(ahora, "carga de " + hexadecimal(dato, 2) + " en " + hexadecimal(direccionpulso, 4) +
                          " durante el ciclo de escritura; se pierde");
    } else {
        cargar(direccionpulso, dato, ahora);
    }
}

void ChipModelo::cargar(std::uint16_t direccion, std::uint8_t dato, std::int64_t ahora)
{
    cargas.push_back({direccion, dato});
    ultimo = dato;
    alterno = false;
    estado = Estado::cargando;
    finventana = ahora + ventanacarga;
}

// The whole load is judged when the window closes. A load the protection refuses still runs
// its write cycle, polled as any other, and stores nothing.
void ChipModelo::empezarciclo()
{
    pendientes.clear();
    protecciondespues = proteccion;
    if (empiezacon(cargas, desactivar)) {
        protecciondespues = false;
        pendientes.assign(cargas.begin() + std::size(desactivar), cargas.end());
    } else if (empiezacon(cargas, activar)) {
        protecciondespues = true;
        pendientes.assign(cargas.begin() + std::size(activar), cargas.end());
    } else if (!proteccion) {
        pendientes = cargas;
    }
    cargas.clear();
    estado = Estado::escribiendo;
    finciclo = finventana + ciclo;
}

void ChipModelo::acabarciclo()
{
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
                          hexadecimal(patas.conducidos, 2) + ") en " + hexadecimal(patas.direccion & (tamano - 1), 4));
    enconflicto = ambos;
}

void ChipModelo::anotar(std::int64_t ahora, const std::string& texto)
{
    registro.push_back(std::to_string(ahora) + " ns: " + texto);
}

} // namespace eeprog
