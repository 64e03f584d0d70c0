#include "averias.h"

#include <charconv>

namespace eeprog {

namespace {

std::optional<Linea> leerlinea(std::string_view texto)
{
    if (texto.size() < 2 || (texto[0] != 'A' && texto[0] != 'D'))
        return std::nullopt;
    Linea linea{texto[0] == 'D', 0};
    const auto [fin, error] = std::from_chars(texto.data() + 1, texto.data() + texto.size(), linea.numero);
    if (error != std::errc{} || fin != texto.data() + texto.size() || linea.numero < 0 ||
        linea.numero >= (linea.dato ? 8 : 15))
        return std::nullopt;
    return linea;
}

} // namespace

std::optional<Averia> leeraveria(std::string_view texto)
{
    const std::size_t igual = texto.find('=');
    const auto linea = leerlinea(texto.substr(0, igual));
    if (igual == std::string_view::npos || !linea)
        return std::nullopt;
    const std::string_view tipo = texto.substr(igual + 1);
    if (tipo == "abierta")
        return Averia{Averia::Tipo::abierta, *linea};
    if (tipo == "0" || tipo == "1")
        return Averia{tipo == "0" ? Averia::Tipo::cero : Averia::Tipo::uno, *linea};
    for (const auto& [nombre, clase] : {std::pair{std::string_view("unida:"), Averia::Tipo::unida},
                                        std::pair{std::string_view("cruzada:"), Averia::Tipo::cruzada}}) {
        if (!tipo.starts_with(nombre))
            continue;
        const auto otra = leerlinea(tipo.substr(nombre.size()));
        if (!otra || otra->dato != linea->dato || otra->numero == linea->numero)
            return std::nullopt;
        return Averia{clase, *linea, *otra};
    }
    return std::nullopt;
}

Cableado::Cableado(const std::vector<Averia>& averias, bool sinchip) : sinchip_(sinchip)
{
    for (int k = 0; k < 15; ++k)
        direcciones[static_cast<std::size_t>(k)].fuente = k;
    for (int k = 0; k < 8; ++k)
        datos[static_cast<std::size_t>(k)].fuente = k;
    for (const Averia& averia : averias)
        averia.linea.dato ? aplicar(datos, averia) : aplicar(direcciones, averia);
}

// The wiring is the same both ways: a swap or a short joins the same two pins whichever side
// drives them.
template <std::size_t N> void Cableado::aplicar(std::array<Hilo, N>& hilos, const Averia& averia)
{
    Hilo& hilo = hilos[static_cast<std::size_t>(averia.linea.numero)];
    Hilo& otro = hilos[static_cast<std::size_t>(averia.otra.numero)];
    switch (averia.tipo) {
    case Averia::Tipo::abierta:
        hilo.abierta = true;
        break;
    case Averia::Tipo::cero:
    case Averia::Tipo::uno:
        hilo.fijo = averia.tipo == Averia::Tipo::uno;
        break;
    case Averia::Tipo::unida:
        hilo.unida = averia.otra.numero;
        otro.unida = averia.linea.numero;
        break;
    case Averia::Tipo::cruzada:
        std::swap(hilo.fuente, otro.fuente);
        break;
    }
}

// Each pin's level as the other side's pins make it, and in llegan the pins something drives.
template <std::size_t N>
unsigned Cableado::traer(const std::array<Hilo, N>& hilos, unsigned niveles, unsigned conducidos, unsigned& llegan)
{
    unsigned salida = 0;
    llegan = 0;
    for (std::size_t k = 0; k < N; ++k) {
        const Hilo& hilo = hilos[k];
        bool nivel = false;
        bool llega = false;
        if (hilo.fijo) {
            nivel = *hilo.fijo, llega = true;
        } else if (hilo.abierta) {
            nivel = (azar() & 1) != 0;
        } else {
            nivel = true;
            for (const int pata : {hilo.fuente, hilo.unida}) {
                if (pata >= 0 && (conducidos >> pata & 1)) {
                    nivel = nivel && (niveles >> pata & 1);
                    llega = true;
                }
            }
            nivel = nivel && llega;
        }
        salida |= static_cast<unsigned>(nivel) << k;
        llegan |= static_cast<unsigned>(llega) << k;
    }
    return salida;
}

// The address lines are always driven, A13 and A14 only for a chip that has them. On the data
// bus a line tied to a rail counts only while the microcontroller drives the bus: on a read
// it is the chip's pin that meets it, and the microcontroller's reading shows it.
Patas Cableado::alchip(const Patas& micro)
{
    Patas chip = micro;
    unsigned llegan = 0;
    const unsigned conducidas = 0x1FFFu | static_cast<unsigned>(micro.altas) << 13;
    chip.direccion = static_cast<std::uint16_t>(traer(direcciones, micro.direccion, conducidas, llegan));
    chip.altas = static_cast<std::uint8_t>(llegan >> 13 & 3);
    if (micro.conducidos != 0) {
        chip.datos = static_cast<std::uint8_t>(traer(datos, micro.datos, micro.conducidos, llegan) & llegan);
        chip.conducidos = static_cast<std::uint8_t>(llegan);
    }
    return chip;
}

std::uint8_t Cableado::almicro(std::uint8_t delchip, std::uint8_t propio, std::uint8_t conducidos)
{
    if (sinchip_)
        delchip = static_cast<std::uint8_t>(azar());
    unsigned llegan = 0;
    const auto leido = static_cast<std::uint8_t>(traer(datos, delchip, 0xFFu, llegan));
    std::uint8_t fijos = 0, niveles = 0;
    for (std::size_t k = 0; k < datos.size(); ++k)
        if (datos[k].fijo) {
            fijos = static_cast<std::uint8_t>(fijos | 1u << k);
            niveles = static_cast<std::uint8_t>(niveles | static_cast<unsigned>(*datos[k].fijo) << k);
        }
    const auto propios = static_cast<std::uint8_t>(conducidos & ~fijos);
    return static_cast<std::uint8_t>((propio & propios) | (niveles & fijos) | (leido & ~propios & ~fijos));
}

} // namespace eeprog
