#include "cli/programador.h"

#include "cli/entrada.h"
#include "cli/interrupcion.h"
#include "cli/marcatrama.h"
#include "cli/salida.h"
#include "device/canallento.h"
#include "device/canalrapido.h"
#include "device/lectura.h"
#include "device/pruebalineas.h"
#include "device/verificacion.h"
#include "link/conexion.h"
#include "link/protocolo.h"
#include "records/disco.h"
#include "records/guardado.h"
#include "records/hexadecimal.h"

#include <algorithm>
#include <chrono>
#include <memory>
#include <set>
#include <thread>

namespace eeprog {

namespace {

// A reply given up in the middle of an operation: the board has gone, and waiting out every
// byte that is left would take a tenth of a second each.
struct PlacaCallada {};

// The board's firmware does not know the chip asked for.
struct PlacaAnterior {};

// The board's idle time, and some more for a byte still on its way when the last run ended.
constexpr std::chrono::milliseconds esperareposo{protocolo::reposo * 7 / 5};

// A Ctrl+C meanwhile ends the run before it has sent anything.
void esperarreposo()
{
    const auto fin = std::chrono::steady_clock::now() + esperareposo;
    while (std::chrono::steady_clock::now() < fin) {
        if (interrumpido())
            throw Interrupcion{};
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
}

std::string cuenta(std::size_t numero, const std::string& singular, const std::string& plural)
{
    return std::to_string(numero) + " " + (numero == 1 ? singular : plural);
}

std::string imagenbinaria(const Leido& leido, int tamano)
{
    std::string imagen(static_cast<std::size_t>(tamano), '\0');
    std::transform(leido.vectorleido.begin(), leido.vectorleido.begin() + tamano, imagen.begin(),
                   [](std::int16_t valor) { return static_cast<char>(valor & 0xFF); });
    return imagen;
}

std::vector<Trama> chipborrado(int tamano)
{
    auto imagen = std::make_unique<Imagen>(tamano);
    imagen->bytes.fill(0xFF);
    imagen->dado.set();
    return tramasdeimagen(*imagen);
}

} // namespace

Programador::Programador(Puerto& puerto, std::string dispositivo, const Opciones& opciones, Terminal terminal)
    : enlace_(puerto), rapido_(puerto), dispositivo_(std::move(dispositivo)), opciones_(opciones), terminal_(terminal)
{}

int Programador::ejecutar()
{
    switch (opciones_.orden) {
    case Orden::comprobar:
        return comprobar();
    case Orden::leer:
        return leer();
    case Orden::grabar:
        return grabar();
    case Orden::verificar:
        return verificar();
    case Orden::borrar:
        return borrar();
    case Orden::vacio:
        return vacio();
    case Orden::desproteger:
        return proteccion(false);
    case Orden::proteger:
        return proteccion(true);
    case Orden::prueba:
        return prueba();
    }
    return salida::uso;
}

int Programador::comprobar()
{
    return conplaca([this] {
        resumen("Programador..... C O N E C T A D O !!!!");
        return salida::hecho;
    });
}

int Programador::leer()
{
    if (opciones_.salida != "-" && !sepuedeescribir(opciones_.salida)) {
        error("no se puede escribir el archivo " + opciones_.salida);
        return salida::archivo;
    }
    auto leido = std::make_unique<Leido>();
    const int estado = conchip([&] {
        leerentero(*leido);
        return salida::hecho;
    });
    if (estado != salida::hecho)
        return estado;
    return guardar(esbinario(opciones_.salida, opciones_.formato) ? imagenbinaria(*leido, tamano())
                                                                  : textoguardado(leido->textoleido));
}

// With --verificar the first frame is read before it is written: a chip that then holds the
// same wrong bytes there has ignored the writes. Our board writes through the chip's
// protection, so the chip is missing or dead; a board with an older program does not.
int Programador::grabar()
{
    return conarchivo([this](const std::vector<Trama>& tramas) {
        if (opciones_.solocambios)
            return grabarcambios(tramas);
        if (!opciones_.verificar)
            return escribir(tramas, "Grabando");
        const auto antes = canal_->comparar({tramas.front()}, {[](int) {}});
        const int escrito = escribir(tramas, "Grabando");
        const auto despues = diferencias(tramas);
        if (despues.empty())
            return escrito;
        const auto igual = [&](const Diferencia& a) {
            return std::any_of(despues.begin(), despues.end(), [&](const Diferencia& d) {
                return d.direccion == a.direccion && d.obtenido == a.obtenido;
            });
        };
        if (!antes.empty() && std::all_of(antes.begin(), antes.end(), igual))
            error("el chip no ha cambiado donde se grabó: revise que esté bien puesto en el zócalo; si la placa "
                  "lleva un programa anterior y el chip tiene la protección de escritura, eeprog-cli desproteger la "
                  "quita");
        return salida::distinto;
    });
}

// The chip is read first; then only the pages where it differs from the file are written,
// with the file's bytes of those pages.
int Programador::grabarcambios(const std::vector<Trama>& tramas)
{
    auto leido = std::make_unique<Leido>();
    leerentero(*leido);
    const auto cadabyte = [&](const auto& hacer) {
        for (const Trama& trama : tramas)
            for (int k = 0; k < trama.datos(); ++k)
                hacer(static_cast<std::size_t>((trama.direccion() + k) % tamano()),
                      static_cast<std::uint8_t>(trama.valores[static_cast<std::size_t>(4 + k)]));
    };
    std::set<std::size_t> paginas;
    cadabyte([&](std::size_t direccion, std::uint8_t valor) {
        if (valor != leido->vectorleido[direccion])
            paginas.insert(direccion / rapido::tamanopagina);
    });
    auto cambios = std::make_unique<Imagen>(tamano());
    cadabyte([&](std::size_t direccion, std::uint8_t valor) {
        if (paginas.count(direccion / rapido::tamanopagina) != 0) {
            cambios->bytes[direccion] = valor;
            cambios->dado.set(direccion);
        }
    });
    int estado = paginas.empty() ? salida::hecho : escribir(tramasdeimagen(*cambios), "Grabando");
    if (estado == salida::hecho && opciones_.verificar && !diferencias(tramas).empty())
        estado = salida::distinto;
    resumen(cuenta(paginas.size(), "página grabada", "páginas grabadas") + " de " +
            std::to_string(tamano() / rapido::tamanopagina) + ": las que diferían del archivo");
    return estado;
}

int Programador::verificar()
{
    return conarchivo([this](const std::vector<Trama>& tramas) { return comparar(tramas); });
}

int Programador::borrar()
{
    return conchip([this] { return escribir(chipborrado(tamano()), "Borrando"); });
}

int Programador::vacio()
{
    auto leido = std::make_unique<Leido>();
    return conchip([&] {
        leerentero(*leido);
        const auto& bytes = leido->vectorleido;
        const auto lleno =
            std::find_if(bytes.begin(), bytes.begin() + tamano(), [](std::int16_t valor) { return valor != 0xFF; });
        if (lleno == bytes.begin() + tamano()) {
            resumen("El chip está vacío: sus " + std::to_string(tamano()) + " bytes están en FF");
            return salida::hecho;
        }
        resultado("El chip no está vacío: Direccion = " + cuatrocifras(lleno - bytes.begin()) +
                  "  Leido = " + doscifras(*lleno));
        return salida::distinto;
    });
}

// The board is known idle when the port closes after the last frame's end, or an interruption
// thrown there; then the next run needs no wait.
int Programador::conplaca(const std::function<int()>& operacion, bool condatos)
{
    if (!enlace_.serial()) {
        error("no se puede abrir el dispositivo " + dispositivo_);
        return salida::sinplaca;
    }
    const MarcaTrama marca(dispositivo_);
    int estado = salida::sinplaca;
    bool hablado = false;
    bool enreposo = false;
    try {
        if (marca.puesta()) {
            esperarreposo();
            enlace_.descartar();
        }
        marca.poner();
        hablado = true;
        if (comprobarconexion(enlace_)) {
            if (condatos)
                elegircanal();
            estado = operacion();
            enreposo = !canal_ || canal_->terminar();
        } else {
            error(dispositivo_ + ": Programador..... NO EXISTE CONECCION");
        }
    } catch (const Interrupcion&) {
        terminal_.progreso.terminar();
        error("interrumpido: el puerto queda cerrado y no se escribe ningún archivo");
        estado = salida::interrumpido;
        enreposo = hablado;
    } catch (const Abandono&) {
        terminal_.progreso.terminar();
        error("interrumpido en medio de una trama: la placa vuelve al reposo tras medio segundo sin recibir nada");
        estado = salida::interrumpido;
    } catch (const PlacaAnterior&) {
        error(dispositivo_ + ": el programa de la placa es anterior al " + opciones_.modelo->nombre +
              ", que pide la versión " + std::to_string(rapido::versionmodelos) +
              " de su protocolo rápido: grabe en ella el de esta versión de eeprog");
        estado = salida::sinplaca;
    } catch (const PlacaCallada&) {
        terminal_.progreso.terminar();
        error(dispositivo_ + ": la placa dejó de responder");
        estado = salida::sinplaca;
    } catch (const LineaRota&) {
        terminal_.progreso.terminar();
        error(dispositivo_ + ": la placa dejó de responder o cada trama llegó mal");
        estado = salida::sinplaca;
    }
    enlace_.cerrar();
    if (enreposo)
        marca.quitar();
    return estado;
}

// The orders that move the chip's bytes, by the protocol the board is asked for.
int Programador::conchip(const std::function<int()>& operacion)
{
    return conplaca(operacion, true);
}

// The file is read and judged whole before the board hears a byte.
int Programador::conarchivo(const std::function<int(const std::vector<Trama>&)>& operacion)
{
    const auto tramas = tramasdearchivo(opciones_);
    if (const auto* motivo = std::get_if<std::string>(&tramas)) {
        error(*motivo);
        return salida::archivo;
    }
    return conchip([&] { return operacion(std::get<std::vector<Trama>>(tramas)); });
}

// The fast protocol when the board has it and the run does not ask for the old one. A board
// that echoes the question or says nothing is an older one; one whose first fast exchange
// fails is back at 9600 after its idle time, and is checked again before the old protocol.
// The old protocol knows the AT28C64B alone, and the fast one's first version too: another
// chip asked of such a board ends the run, which leaves the board to its idle time.
void Programador::elegircanal()
{
    canal_ = std::make_unique<CanalLento>(enlace_);
    if (opciones_.lento) {
        detalle(canal_->nombre() + ", como se pidió con --lento");
        return;
    }
    const auto version = rapido_.preguntar();
    const bool otrochip = opciones_.modelo != &at28c64b;
    if (otrochip && version.value_or(0) < rapido::versionmodelos)
        throw PlacaAnterior{};
    if (!version) {
        detalle(canal_->nombre() + ": la placa no tiene el protocolo rápido");
        return;
    }
    rapido_.velocidad(rapido::baudios);
    auto rapida = std::make_unique<CanalRapido>(rapido_, *opciones_.modelo, *version);
    if (rapida->saludar()) {
        detalle(rapida->nombre() + ", versión " + std::to_string(*version) + " de la placa");
        canal_ = std::move(rapida);
        return;
    }
    rapido_.velocidad(rapido::baudioslentos);
    esperarreposo();
    enlace_.descartar();
    if (!comprobarconexion(enlace_))
        throw PlacaCallada{};
    if (otrochip)
        throw LineaRota{};
    detalle(canal_->nombre() + ": el primer intercambio rápido falló");
}

void Programador::leerentero(Leido& leido)
{
    canal_->leer(leido, avance("Leyendo", tamano()));
    terminal_.progreso.terminar();
}

// A first interruption waits for the frame's end, so the board is left idle; a second, or a
// board that has gone quiet, ends the operation at the next byte.
Avance Programador::avance(const std::string& accion, int total)
{
    terminal_.progreso.empezar(accion, total);
    return {[this](int hechos) {
                if (abandonado())
                    throw Abandono{};
                if (enlace_.sinrespuestas() > 0)
                    throw PlacaCallada{};
                terminal_.progreso.avanzar(hechos);
            },
            [] {
                if (interrumpido())
                    throw Interrupcion{};
            }};
}

int Programador::escribir(const std::vector<Trama>& tramas, const std::string& accion)
{
    const int bytes = bytesde(tramas);
    const auto ecos = canal_->escribir(tramas, avance(accion, bytes));
    terminal_.progreso.terminar();
    for (const Diferencia& eco : ecos)
        resultado("El dato transmitido " + doscifras(eco.esperado) + " no se ha recibido correctamente: Direccion = " +
                  cuatrocifras(eco.direccion) + "  Eco = " + doscifras(eco.obtenido));
    const std::string hecho = cuenta(static_cast<std::size_t>(bytes), "byte grabado", "bytes grabados");
    if (ecos.empty()) {
        resumen(hecho);
        return salida::hecho;
    }
    resultado(hecho + ", " + cuenta(ecos.size(), "eco erróneo", "ecos erróneos"));
    senalarlinea(ecos);
    return salida::distinto;
}

int Programador::comparar(const std::vector<Trama>& tramas)
{
    return diferencias(tramas).empty() ? salida::hecho : salida::distinto;
}

// Verifies, and says each difference and then their count.
std::vector<Diferencia> Programador::diferencias(const std::vector<Trama>& tramas)
{
    const int bytes = bytesde(tramas);
    auto halladas = canal_->comparar(tramas, avance("Verificando", bytes));
    terminal_.progreso.terminar();
    for (const Diferencia& d : halladas)
        resultado("Error.. " + diferencia(d.direccion, d.esperado, d.obtenido));
    const std::string total = cuenta(static_cast<std::size_t>(bytes), "byte verificado", "bytes verificados") + ", " +
                              cuenta(halladas.size(), "diferencia", "diferencias");
    if (halladas.empty())
        resumen(total);
    else
        resultado(total);
    senalarlinea(halladas);
    return halladas;
}

// Bytes wrong in one bit alone, the same everywhere, are more likely the board's wire than the
// chip's cells.
void Programador::senalarlinea(const std::vector<Diferencia>& diferencias)
{
    const int linea = lineacomun(diferencias);
    if (linea >= 0)
        error("todas las diferencias están en el bit " + std::to_string(linea) + ": puede ser la línea D" +
              std::to_string(linea) + " de la placa, que eeprog-cli prueba comprueba");
}

int Programador::proteccion(bool proteger)
{
    return conchip([&] {
        if (!canal_->proteger(proteger)) {
            error(dispositivo_ + ": la placa no dice haberlo hecho; su programa puede ser anterior a esta orden");
            return salida::sinplaca;
        }
        resumen(proteger ? "Protección de escritura puesta" : "Protección de escritura quitada");
        return salida::hecho;
    });
}

// One line per fault; a board whose lines all behave says so and which lines it tried.
int Programador::prueba()
{
    return conchip([this] {
        const Modelo& modelo = *opciones_.modelo;
        const Prueba hecha = probarlineas(*canal_, modelo, avance("Probando", bytesdeprueba(modelo)));
        terminal_.progreso.terminar();
        for (const std::string& averia : hecha.averias)
            resultado(averia);
        if (hecha.sinreponer > 0)
            resultado(std::to_string(hecha.sinreponer) + " de los " + std::to_string(hecha.tocados) +
                      " bytes que tocó la prueba no han quedado como estaban");
        if (!hecha.averias.empty() || hecha.sinreponer > 0)
            return salida::distinto;
        resumen("Las líneas A0-A" + std::to_string(modelo.lineas - 1) + " y D0-D7 responden bien; los " +
                std::to_string(hecha.tocados) + " bytes probados están como estaban");
        return salida::hecho;
    });
}

int Programador::guardar(const std::string& texto)
{
    const std::string& nombre = opciones_.salida;
    if (nombre == "-") {
        if (std::fwrite(texto.data(), 1, texto.size(), terminal_.resultados) != texto.size() ||
            std::fflush(terminal_.resultados) != 0) {
            error("no se puede escribir en la salida estándar");
            return salida::archivo;
        }
        return salida::hecho;
    }
    if (!escribirarchivo(nombre, texto)) {
        error("no se puede escribir el archivo " + nombre);
        return salida::archivo;
    }
    resumen(std::to_string(tamano()) + " bytes leídos en " + nombre);
    return salida::hecho;
}

void Programador::error(const std::string& mensaje)
{
    std::fprintf(terminal_.errores, "eeprog-cli: %s\n", mensaje.c_str());
}

void Programador::resultado(const std::string& mensaje)
{
    std::fprintf(terminal_.resultados, "%s\n", mensaje.c_str());
}

// What -v asks for, on the error output beside the progress bar.
void Programador::detalle(const std::string& mensaje)
{
    if (opciones_.detalles)
        std::fprintf(terminal_.errores, "eeprog-cli: %s\n", mensaje.c_str());
}

// The lines that say all went right; -q leaves them out.
void Programador::resumen(const std::string& mensaje)
{
    if (!opciones_.silencioso)
        resultado(mensaje);
}

} // namespace eeprog
