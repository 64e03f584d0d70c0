#include "device/pruebalineas.h"

#include "records/hexadecimal.h"

#include <algorithm>
#include <bit>
#include <set>

namespace eeprog {

namespace {

// Reads of the address walk: a cut line, which the chip takes at random, shows as a byte that
// changes from one read to the next.
constexpr int pasadas = 3;
// Reads of the walk when a byte changed: enough for each of two cells to show.
constexpr int miradas = 8;

std::vector<Trama> tramasde(const std::vector<int>& direcciones, const std::vector<int>& valores)
{
    std::vector<Trama> tramas;
    for (std::size_t i = 0; i < direcciones.size(); ++i)
        tramas.push_back({{1, direcciones[i] >> 8 & 0xFF, direcciones[i] & 0xFF, 0, valores[i]}});
    return tramas;
}

// Each data line alone high, then each alone low.
std::vector<int> patrones()
{
    std::vector<int> lista;
    for (int bit = 0; bit < 8; ++bit)
        lista.push_back(1 << bit);
    for (int bit = 0; bit < 8; ++bit)
        lista.push_back(0xFF ^ 1 << bit);
    return lista;
}

// Address 0 and each address line alone high, then the last address and each line alone low:
// two of them that reach one cell differ in the lines at fault.
std::vector<int> recorrido(const Modelo& modelo)
{
    std::vector<int> lista{0};
    for (int k = 0; k < modelo.lineas; ++k)
        lista.push_back(1 << k);
    const int ultima = modelo.tamano - 1;
    lista.push_back(ultima);
    for (int k = 0; k < modelo.lineas; ++k)
        lista.push_back(ultima ^ 1 << k);
    return lista;
}

// A value of its own for each address of the walk: 37 is odd, so no two of 256 are the same.
std::vector<int> marcas(std::size_t cuantas, int primera)
{
    std::vector<int> lista;
    for (std::size_t i = 0; i < cuantas; ++i)
        lista.push_back(static_cast<int>((primera + 37 * i) & 0xFF));
    return lista;
}

std::string linea(char grupo, long numero)
{
    return grupo + std::to_string(numero);
}

int bit(int valor, int numero)
{
    return valor >> numero & 1;
}

// What a data line did over the walk, or nothing when it followed each pattern.
std::string comodato(int numero, const std::vector<int>& esperados, const std::vector<int>& leidos)
{
    const auto cumple = [&](const auto& regla) {
        for (std::size_t t = 0; t < leidos.size(); ++t)
            if (bit(leidos[t], numero) != regla(esperados[t]))
                return false;
        return true;
    };
    if (cumple([&](int v) { return bit(v, numero); }))
        return "";
    if (cumple([](int) { return 0; }))
        return "atascada a 0";
    if (cumple([](int) { return 1; }))
        return "atascada a 1";
    for (int otra = 0; otra < 8; ++otra)
        if (otra != numero && cumple([&](int v) { return bit(v, numero) & bit(v, otra); }))
            return "unida a " + linea('D', otra);
    return "no da lo que se le escribe";
}

class Probador {
public:
    Probador(Canal& canal, const Modelo& modelo, const Avance& avance) : canal_(canal), modelo_(modelo), avance_(avance)
    {}

    // A write that does not take goes again behind the protection's sequence; on a chip without
    // the protection, with a line at fault, the sequence's bytes land as data at its two
    // addresses, so they are kept too.
    Prueba probar()
    {
        const auto direcciones = recorrido(modelo_);
        auto tocadas = direcciones;
        tocadas.push_back(modelo_.clave1);
        tocadas.push_back(modelo_.clave2);
        auto guardados = leer(tocadas);
        Prueba prueba;
        if (probardatos(guardados.front(), prueba.averias)) {
            probardirecciones(direcciones, guardados, prueba.averias);
        } else {
            // Only address 0 and the sequence's were written: the rest, read through a data
            // line at fault, is best left alone.
            tocadas = {tocadas.front(), modelo_.clave1, modelo_.clave2};
            guardados = {guardados.front(), guardados[guardados.size() - 2], guardados.back()};
        }
        prueba.tocados = static_cast<int>(tocadas.size());
        if (!sinchip_)
            prueba.sinreponer = reponer(tocadas, guardados);
        return prueba;
    }

private:
    // A closer look at a cut line reads more than a healthy board's test, which the bar counts.
    Avance paso() const
    {
        return {[this](int hechos) { avance_.dato(std::min(hechos_ + hechos, bytesdeprueba(modelo_))); },
                avance_.trama};
    }

    // A byte is read as a difference from 0.
    std::vector<int> leer(const std::vector<int>& direcciones)
    {
        std::vector<int> valores(direcciones.size(), 0);
        for (const Diferencia& d : canal_.comparar(tramasde(direcciones, valores), paso()))
            for (std::size_t i = 0; i < direcciones.size(); ++i)
                if (direcciones[i] == d.direccion)
                    valores[i] = d.obtenido;
        hechos_ += static_cast<int>(direcciones.size());
        return valores;
    }

    void escribir(const std::vector<int>& direcciones, const std::vector<int>& valores)
    {
        canal_.escribir(tramasde(direcciones, valores), paso());
        hechos_ += static_cast<int>(direcciones.size());
    }

    // At address 0, each pattern read twice. A data line the microcontroller reads cut off
    // from the chip changes between the two; one that follows a rule does not. A byte that is
    // one written there, or the one there before, is a data bus that works at a cell that
    // moves: an address line, which the walk of the addresses names. False when the data
    // lines leave nothing to learn of the address lines.
    bool probardatos(int guardado, std::vector<std::string>& averias)
    {
        const auto escritos = patrones();
        std::vector<int> esperados;
        std::vector<int> leidos;
        int cambiantes = 0;
        for (int patron : escritos) {
            escribir({0}, {patron});
            for (int vez = 0; vez < 2; ++vez) {
                esperados.push_back(patron);
                leidos.push_back(leer({0}).front());
            }
            cambiantes |= leidos.back() ^ leidos[leidos.size() - 2];
        }
        if (std::all_of(leidos.begin(), leidos.end(), [&](int v) { return v == leidos.front(); })) {
            averias.push_back("el chip no guarda nada, ni por una escritura protegida: se lee siempre " +
                              doscifras(leidos.front()) +
                              "; está muerto, es de otro tipo, o una línea rompe la secuencia de la protección");
            return false;
        }
        const auto conocidos = std::count_if(leidos.begin(), leidos.end(), [&](int v) {
            return v == guardado || std::find(escritos.begin(), escritos.end(), v) != escritos.end();
        });
        const int sueltas = std::popcount(static_cast<unsigned>(cambiantes));
        if (sueltas > 2) {
            if (2 * conocidos >= static_cast<long>(leidos.size()))
                return true;
            averias.push_back("no hay chip en el zócalo: el bus de datos flota");
            sinchip_ = true;
            return false;
        }
        if (conocidos == static_cast<long>(leidos.size()))
            return true;
        // A write that came back wrong went again behind the protection's sequence, whose
        // bytes a cut line may have made right: the chip may then ignore the plain writes
        // after it, and the other lines show bytes of before.
        for (int numero = 0; numero < 8; ++numero) {
            const std::string como = bit(cambiantes, numero) ? "cortada (se lee al azar)"
                                     : sueltas > 0           ? ""
                                                             : comodato(numero, esperados, leidos);
            const bool dicha = como.starts_with("unida") && como.back() - '0' < numero; // by the other line
            if (!como.empty() && !dicha)
                averias.push_back(linea('D', numero) + ": " + como);
        }
        return false;
    }

    // What one walk of the addresses showed: the addresses that read the value another was
    // given, those that read the byte there before, and whether a byte changed between reads.
    struct Vuelta {
        std::set<std::pair<int, int>> parejas;
        std::set<int> perdidas;
        bool cambia = false;
        bool iguales = true;
    };

    Vuelta recorrer(const std::vector<int>& direcciones, const std::vector<int>& valores,
                    const std::vector<int>& guardados)
    {
        escribir(direcciones, valores);
        Vuelta vuelta;
        std::vector<int> primera;
        for (int vez = 0; vez < pasadas; ++vez) {
            const auto leidos = leer(direcciones);
            if (primera.empty())
                primera = leidos;
            for (std::size_t x = 0; x < direcciones.size(); ++x) {
                vuelta.cambia = vuelta.cambia || leidos[x] != primera[x];
                vuelta.iguales = vuelta.iguales && leidos[x] == primera.front();
                const auto otra = std::find(valores.begin(), valores.end(), leidos[x]);
                if (otra != valores.end() && *otra != valores[x])
                    vuelta.parejas.insert(
                        {direcciones[x], direcciones[static_cast<std::size_t>(otra - valores.begin())]});
            }
        }
        for (std::size_t x = 0; x < direcciones.size(); ++x)
            if (primera[x] != valores[x] && primera[x] == guardados[x])
                vuelta.perdidas.insert(direcciones[x]);
        return vuelta;
    }

    // Two walks with values of their own: a pair of addresses that reach one cell shows in
    // both, a byte that the chip held already and happens to be another's value in one. The
    // lines joined are those in which such a pair differs. A byte that changes is a line the
    // chip takes at random. The byte there before, at an address line below the page's, is a
    // page load that reached two of the chip's pages.
    void probardirecciones(const std::vector<int>& direcciones, const std::vector<int>& guardados,
                           std::vector<std::string>& averias)
    {
        const Vuelta una = recorrer(direcciones, marcas(direcciones.size(), 0x5A), guardados);
        const Vuelta otra = recorrer(direcciones, marcas(direcciones.size(), 0xA5), guardados);
        if (una.iguales && otra.iguales) {
            averias.push_back("el chip no responde a las direcciones: todas dan el mismo byte");
            return;
        }
        if (una.cambia || otra.cambia) {
            averias.push_back(cortada(direcciones));
            return;
        }
        std::set<int> lineas;
        for (const auto& [x, y] : una.parejas)
            if (otra.parejas.count({x, y}) != 0)
                for (int k = 0; k < modelo_.lineas; ++k)
                    if (bit(x ^ y, k))
                        lineas.insert(k);
        if (lineas.size() == 2)
            averias.push_back(linea('A', *lineas.begin()) + ": unida a " + linea('A', *lineas.rbegin()));
        else
            for (int k : lineas)
                averias.push_back(linea('A', k) + ": atascada a 0 o a 1 (el chip no la ve cambiar)");
        const int bajas = std::countr_zero(static_cast<unsigned>(modelo_.pagina));
        for (int k = 0; k < bajas; ++k)
            if (una.perdidas.count(1 << k) != 0 && otra.perdidas.count(1 << k) != 0)
                averias.push_back(linea('A', k) + ": llega al chip como una línea de página, cruzada con una de " +
                                  linea('A', bajas) + "-" + linea('A', modelo_.lineas - 1));
    }

    // Where a line is cut the chip's writes go astray, and the bytes seen are mostly those
    // there before; but an address and the one that differs from it in that line alone reach
    // the same two cells, and many reads of each show the same two bytes.
    std::string cortada(const std::vector<int>& direcciones)
    {
        std::vector<std::set<int>> vistos(direcciones.size());
        for (int vez = 0; vez < miradas; ++vez) {
            const auto leidos = leer(direcciones);
            for (std::size_t x = 0; x < direcciones.size(); ++x)
                vistos[x].insert(leidos[x]);
        }
        const auto mismas = [&](std::size_t x, std::size_t y) {
            return vistos[x].size() > 1 && vistos[x] == vistos[y];
        };
        const auto n = static_cast<std::size_t>(modelo_.lineas);
        std::vector<std::string> lineas;
        for (std::size_t k = 0; k < n; ++k)
            if (mismas(0, 1 + k) || mismas(1 + n, 2 + n + k))
                lineas.push_back(linea('A', static_cast<long>(k)));
        if (lineas.size() != 1)
            return "una línea de dirección cortada: una misma dirección se lee distinta cada vez";
        return lineas.front() + ": cortada (el chip la toma al azar)";
    }

    // Only the bytes that read otherwise now: one read through a data line at fault and
    // written back would take the fault into the chip. One byte at a time, each a write of
    // its own: with a line at fault a page's bytes may not all reach one of the chip's pages.
    int reponer(const std::vector<int>& direcciones, const std::vector<int>& guardados)
    {
        const auto antes = leer(direcciones);
        for (std::size_t i = 0; i < direcciones.size(); ++i) {
            if (antes[i] != guardados[i])
                escribir({direcciones[i]}, {guardados[i]});
            else
                ++hechos_; // as good as put back, for the bar
        }
        const auto ahora = leer(direcciones);
        int distintos = 0;
        for (std::size_t i = 0; i < direcciones.size(); ++i)
            distintos += ahora[i] != guardados[i];
        return distintos;
    }

    Canal& canal_;
    const Modelo& modelo_;
    const Avance& avance_;
    int hechos_ = 0;
    bool sinchip_ = false;
};

} // namespace

Prueba probarlineas(Canal& canal, const Modelo& modelo, const Avance& avance)
{
    return Probador(canal, modelo, avance).probar();
}

int lineacomun(const std::vector<Diferencia>& diferencias)
{
    if (diferencias.size() < 2)
        return -1;
    const int primera = (diferencias.front().esperado ^ diferencias.front().obtenido) & 0xFF;
    const bool todas = std::all_of(diferencias.begin(), diferencias.end(),
                                   [&](const Diferencia& d) { return ((d.esperado ^ d.obtenido) & 0xFF) == primera; });
    return todas && std::has_single_bit(static_cast<unsigned>(primera))
               ? std::countr_zero(static_cast<unsigned>(primera))
               : -1;
}

int bytesdeprueba(const Modelo& modelo)
{
    const int recorridas = 2 * modelo.lineas + 2;
    const int tocadas = recorridas + 2;
    return 4 * tocadas + 3 * static_cast<int>(patrones().size()) + 2 * (1 + pasadas) * recorridas;
}

} // namespace eeprog
