#include "device/canalrapido.h"

#include "device/lectura.h"
#include "link/protocolo.h"

#include <algorithm>
#include <deque>
#include <map>

namespace eeprog {

namespace {

constexpr std::size_t cargagrabada = 3;
// Blocks a read request asks for: 512 bytes, 47 ms of the line.
constexpr int bloquesporpeticion = 4;

std::string dosbytes(int valor)
{
    return {static_cast<char>(valor >> 8 & 0xFF), static_cast<char>(valor & 0xFF)};
}

int dosbytesde(const std::string& texto, std::size_t desde)
{
    return static_cast<unsigned char>(texto[desde]) << 8 | static_cast<unsigned char>(texto[desde + 1]);
}

// The frames' bytes by page, the last one given for an address standing, in address order.
std::vector<CanalRapido::Pagina> paginasde(const std::vector<Trama>& tramas, int tamano)
{
    std::map<int, CanalRapido::Pagina> paginas;
    for (const Trama& trama : tramas) {
        for (int k = 0; k < trama.datos(); ++k) {
            const int direccion = (trama.direccion() + k) & (tamano - 1);
            const int i = direccion % rapido::tamanopagina;
            CanalRapido::Pagina& pagina = paginas[direccion - i];
            pagina.direccion = direccion - i;
            const auto bit = static_cast<std::uint8_t>(1 << (i % 8));
            if ((pagina.mascara[static_cast<std::size_t>(i / 8)] & bit) == 0)
                ++pagina.dados;
            pagina.mascara[static_cast<std::size_t>(i / 8)] |= bit;
            pagina.datos[static_cast<std::size_t>(i)] = static_cast<std::uint8_t>(trama.valores[4 + k] & 0xFF);
        }
    }
    std::vector<CanalRapido::Pagina> lista;
    for (const auto& [direccion, pagina] : paginas)
        lista.push_back(pagina);
    return lista;
}

rapido::Trama tramadepagina(const CanalRapido::Pagina& pagina)
{
    return {rapido::pagina, dosbytes(pagina.direccion) + std::string(pagina.mascara.begin(), pagina.mascara.end()) +
                                std::string(pagina.datos.begin(), pagina.datos.end())};
}

bool dado(const CanalRapido::Pagina& pagina, int i)
{
    return (pagina.mascara[static_cast<std::size_t>(i / 8)] >> (i % 8) & 1) != 0;
}

// The given bytes of a page that the board read back otherwise.
void apuntar(const CanalRapido::Pagina& pagina, const std::string& leida, std::vector<Diferencia>& diferencias)
{
    for (int i = 0; i < rapido::tamanopagina; ++i) {
        const int obtenido = static_cast<unsigned char>(leida[static_cast<std::size_t>(i)]);
        if (dado(pagina, i) && obtenido != pagina.datos[static_cast<std::size_t>(i)])
            diferencias.push_back({pagina.direccion + i, pagina.datos[static_cast<std::size_t>(i)], obtenido});
    }
}

} // namespace

bool CanalRapido::saludar()
{
    const bool connumero = version_ >= rapido::versionmodelos;
    enlace_.enviar({rapido::hola, connumero ? std::string(1, static_cast<char>(modelo_.numero)) : std::string()});
    const auto respuesta = enlace_.recibir();
    return respuesta && respuesta->tipo == rapido::saludo;
}

// The end frame is not sent twice: a board already back at 9600 would take its bytes for
// commands of the old protocol.
bool CanalRapido::terminar()
{
    enlace_.enviar({rapido::fin, {}});
    const auto respuesta = enlace_.recibir();
    enlace_.velocidad(rapido::baudioslentos);
    return respuesta && respuesta->tipo == rapido::adios;
}

void CanalRapido::leer(Leido& leido, const Avance& avance)
{
    Memoria memoria(static_cast<std::size_t>(modelo_.tamano));
    leerbloques(std::vector<bool>(static_cast<std::size_t>(bloques()), true), memoria, avance);
    leido.textoleido.clear();
    std::copy(memoria.begin(), memoria.end(), leido.vectorleido.begin());
    for (int bloque = 0; bloque < modelo_.tamano / protocolo::tamanobloque; ++bloque)
        leido.textoleido += linealeida(leido, bloque);
}

// Requests of a few blocks each, the next one sent as soon as one's blocks are in, so the
// board always has one waiting and the line never waits on a round trip; and a program that
// dies in the middle leaves the board two requests at most to send into the void. The
// blocks that did not come whole are asked for again after the last.
void CanalRapido::leerbloques(std::vector<bool> pedidos, Memoria& memoria, const Avance& avance)
{
    int hechos = 0;
    for (int ronda = 0; ronda < intentos; ++ronda) {
        std::vector<std::pair<int, int>> peticiones;
        for (int bloque = 0; bloque < bloques(); ++bloque) {
            if (!pedidos[static_cast<std::size_t>(bloque)])
                continue;
            if (peticiones.empty() || peticiones.back().first + peticiones.back().second != bloque ||
                peticiones.back().second == bloquesporpeticion)
                peticiones.emplace_back(bloque, 0);
            ++peticiones.back().second;
        }
        if (peticiones.empty()) {
            findetrama(avance, 0);
            return;
        }
        std::size_t enviadas = 0;
        const auto pedir = [&] {
            if (enviadas < peticiones.size()) {
                const auto [desde, cuantos] = peticiones[enviadas++];
                enlace_.enviar({rapido::leer, dosbytes(desde * rapido::tamanobloque) + dosbytes(cuantos)});
            }
        };
        pedir();
        pedir();
        for (std::size_t i = 0;
             i < peticiones.size() && recibirbloques(peticiones[i].second, pedidos, memoria, hechos, avance); ++i)
            pedir();
    }
    throw LineaRota{};
}

// False when the line went out of step: it has been left quiet, and what was still asked
// for is asked again.
bool CanalRapido::recibirbloques(int cuantos, std::vector<bool>& pedidos, Memoria& memoria, int& hechos,
                                 const Avance& avance)
{
    for (int i = 0; i < cuantos; ++i) {
        const auto trama = enlace_.recibir();
        if (!trama)
            return false;
        if (trama->tipo == rapido::danada)
            continue;
        const int direccion = trama->tipo == rapido::bloque ? dosbytesde(trama->carga, 0) : -1;
        if (direccion < 0 || direccion % rapido::tamanobloque != 0 || direccion >= modelo_.tamano) {
            enlace_.callar();
            return false;
        }
        std::copy(trama->carga.begin() + 2, trama->carga.end(), memoria.begin() + direccion);
        auto pedido = pedidos.begin() + direccion / rapido::tamanobloque;
        if (*pedido) {
            *pedido = false;
            hechos += rapido::tamanobloque;
            avance.dato(hechos);
        }
    }
    return true;
}

// Two pages in flight: the board takes the second in while it writes the first. A page is
// done only when a reply with its address says so; one that met a bad frame, a reply that
// did not come whole or a line out of step goes again.
std::vector<Diferencia> CanalRapido::escribir(const std::vector<Trama>& tramas, const Avance& avance)
{
    const std::vector<Pagina> paginas = paginasde(tramas, modelo_.tamano);
    std::deque<std::size_t> pendientes;
    std::deque<std::size_t> envuelo;
    std::vector<int> envios(paginas.size(), 0);
    std::vector<Diferencia> diferencias;
    int hechos = 0;
    for (std::size_t i = 0; i < paginas.size(); ++i)
        pendientes.push_back(i);
    // The pages in flight before hasta go again; hasta itself is done with.
    const auto repetir = [&](std::deque<std::size_t>::iterator hasta) {
        for (auto i = hasta; i != envuelo.begin();)
            pendientes.push_front(*--i);
        envuelo.erase(envuelo.begin(), hasta == envuelo.end() ? hasta : hasta + 1);
    };
    while (!pendientes.empty() || !envuelo.empty()) {
        while (envuelo.size() < 2 && !pendientes.empty()) {
            const std::size_t i = pendientes.front();
            pendientes.pop_front();
            if (++envios[i] > intentos)
                throw LineaRota{};
            enlace_.enviar(tramadepagina(paginas[i]));
            envuelo.push_back(i);
        }
        const auto respuesta = enlace_.recibir();
        if (respuesta && (respuesta->tipo == rapido::mal || respuesta->tipo == rapido::danada)) {
            pendientes.push_front(envuelo.front());
            envuelo.pop_front();
            continue;
        }
        const auto suya = !respuesta || respuesta->tipo != rapido::grabada
                              ? envuelo.end()
                              : std::find_if(envuelo.begin(), envuelo.end(), [&](std::size_t i) {
                                    return paginas[i].direccion == dosbytesde(respuesta->carga, 0);
                                });
        if (suya == envuelo.end()) {
            if (respuesta)
                enlace_.callar();
            repetir(envuelo.end());
            continue;
        }
        const Pagina& pagina = paginas[*suya];
        if (respuesta->carga[2] != 0)
            apuntar(pagina, respuesta->carga.substr(cargagrabada), diferencias);
        repetir(suya);
        hechos += pagina.dados;
        avance.dato(hechos);
        findetrama(avance, envuelo.size());
    }
    return diferencias;
}

std::vector<Diferencia> CanalRapido::comparar(const std::vector<Trama>& tramas, const Avance& avance)
{
    std::vector<bool> pedidos(static_cast<std::size_t>(bloques()), false);
    for (const Trama& trama : tramas)
        for (int k = 0; k < trama.datos(); ++k)
            pedidos[static_cast<std::size_t>(direccionen(trama.direccion() + k) / rapido::tamanobloque)] = true;
    const auto leidos =
        std::max(1, static_cast<int>(std::count(pedidos.begin(), pedidos.end(), true)) * rapido::tamanobloque);
    const int total = bytesde(tramas);
    Memoria memoria(static_cast<std::size_t>(modelo_.tamano));
    leerbloques(
        pedidos, memoria,
        {[&](int hechos) { avance.dato(static_cast<int>(static_cast<long>(total) * hechos / leidos)); }, avance.trama});
    std::vector<Diferencia> diferencias;
    for (const Trama& trama : tramas) {
        for (int k = 0; k < trama.datos(); ++k) {
            const int direccion = direccionen(trama.direccion() + k);
            const int esperado = trama.valores[static_cast<std::size_t>(4 + k)];
            const int obtenido = memoria[static_cast<std::size_t>(direccion)];
            if ((esperado & 0xFF) != obtenido)
                diferencias.push_back({direccion, esperado, obtenido});
        }
    }
    return diferencias;
}

// The sequence and its write cycle take the board some 10 ms, well within one reply's budget.
bool CanalRapido::proteger(bool poner)
{
    const std::string byte(1, poner ? '\1' : '\0');
    enlace_.enviar({rapido::proteccion, byte});
    const auto respuesta = enlace_.recibir();
    return respuesta && respuesta->tipo == rapido::protegida && respuesta->carga == byte;
}

// An interruption at a frame's end waits for the pages still in flight and ends the session,
// so the board is idle at 9600 when the port closes.
void CanalRapido::findetrama(const Avance& avance, std::size_t envuelo)
{
    try {
        avance.trama();
    } catch (...) {
        for (; envuelo > 0; --envuelo)
            enlace_.recibir();
        terminar();
        throw;
    }
}

} // namespace eeprog
