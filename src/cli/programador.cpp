#include "cli/programador.h"

#include "cli/entrada.h"
#include "cli/interrupcion.h"
#include "cli/marcatrama.h"
#include "cli/salida.h"
#include "device/lectura.h"
#include "device/proteccion.h"
#include "device/verificacion.h"
#include "link/conexion.h"
#include "link/protocolo.h"
#include "records/disco.h"
#include "records/guardado.h"
#include "records/hexadecimal.h"

#include <algorithm>
#include <chrono>
#include <memory>
#include <thread>

namespace eeprog {

namespace {

// A reply given up in the middle of an operation: the board has gone, and waiting out every
// byte that is left would take a tenth of a second each.
struct PlacaCallada {};

// The board's idle time, and some more for a byte still on its way when the last run ended.
constexpr std::chrono::milliseconds esperareposo{protocolo::reposo * 6 / 5};

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

std::string imagenbinaria(const Leido& leido)
{
    std::string imagen(protocolo::tamanochip, '\0');
    std::transform(leido.vectorleido.begin(), leido.vectorleido.begin() + protocolo::tamanochip, imagen.begin(),
                   [](std::int16_t valor) { return static_cast<char>(valor & 0xFF); });
    return imagen;
}

std::vector<Trama> chipborrado()
{
    Imagen imagen;
    imagen.bytes.fill(0xFF);
    imagen.dado.set();
    return tramasdeimagen(imagen);
}

} // namespace

Programador::Programador(Puerto& puerto, std::string dispositivo, const Opciones& opciones, Terminal terminal)
    : enlace_(puerto), dispositivo_(std::move(dispositivo)), opciones_(opciones), terminal_(terminal)
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
    const int estado = conplaca([&] {
        leerentero(*leido);
        return salida::hecho;
    });
    if (estado != salida::hecho)
        return estado;
    return guardar(esbinario(opciones_.salida, opciones_.formato) ? imagenbinaria(*leido)
                                                                  : textoguardado(leido->textoleido));
}

// With --verificar the first frame is read before it is written: a chip that then holds the
// same wrong bytes there has ignored the writes. Our board writes through the chip's
// protection, so the chip is missing or dead; a board with an older program does not.
int Programador::grabar()
{
    return conarchivo([this](const std::vector<Trama>& tramas) {
        if (!opciones_.verificar)
            return escribir(tramas, "Grabando");
        const auto antes = comparartramas(enlace_, {tramas.front()}, {[](int) {}});
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
                  "lleva un programa anterior y el chip tiene la protección de escritura, eeprog-cli desproteger la quita");
        return salida::distinto;
    });
}

int Programador::verificar()
{
    return conarchivo([this](const std::vector<Trama>& tramas) { return comparar(tramas); });
}

int Programador::borrar()
{
    return conplaca([this] { return escribir(chipborrado(), "Borrando"); });
}

int Programador::vacio()
{
    auto leido = std::make_unique<Leido>();
    return conplaca([&] {
        leerentero(*leido);
        const auto& bytes = leido->vectorleido;
        const auto lleno = std::find_if(bytes.begin(), bytes.begin() + protocolo::tamanochip,
                                        [](std::int16_t valor) { return valor != 0xFF; });
        if (lleno == bytes.begin() + protocolo::tamanochip) {
            resumen("El chip está vacío: sus 8192 bytes están en FF");
            return salida::hecho;
        }
        resultado("El chip no está vacío: Direccion = " + cuatrocifras(lleno - bytes.begin()) +
                  "  Leido = " + doscifras(*lleno));
        return salida::distinto;
    });
}

// The board is known idle when the port closes after the last frame's end, or an interruption
// thrown there; then the next run needs no wait.
int Programador::conplaca(const std::function<int()>& operacion)
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
            estado = operacion();
            enreposo = true;
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
    } catch (const PlacaCallada&) {
        terminal_.progreso.terminar();
        error(dispositivo_ + ": la placa dejó de responder");
        estado = salida::sinplaca;
    }
    enlace_.cerrar();
    if (enreposo)
        marca.quitar();
    return estado;
}

// The file is read and judged whole before the board hears a byte.
int Programador::conarchivo(const std::function<int(const std::vector<Trama>&)>& operacion)
{
    const auto tramas = tramasdearchivo(opciones_);
    if (const auto* motivo = std::get_if<std::string>(&tramas)) {
        error(*motivo);
        return salida::archivo;
    }
    return conplaca([&] { return operacion(std::get<std::vector<Trama>>(tramas)); });
}

void Programador::leerentero(Leido& leido)
{
    leerchip(enlace_, leido, avance("Leyendo", protocolo::tamanochip));
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
    const auto ecos = escribirtramas(enlace_, tramas, avance(accion, bytes));
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
    auto halladas = comparartramas(enlace_, tramas, avance("Verificando", bytes));
    terminal_.progreso.terminar();
    for (const Diferencia& d : halladas)
        resultado("Error.. " + diferencia(d.direccion, d.esperado, d.obtenido));
    const std::string total = cuenta(static_cast<std::size_t>(bytes), "byte verificado", "bytes verificados") + ", " +
                              cuenta(halladas.size(), "diferencia", "diferencias");
    if (halladas.empty())
        resumen(total);
    else
        resultado(total);
    return halladas;
}

int Programador::proteccion(bool proteger)
{
    return conplaca([&] {
        if (!cambiarproteccion(enlace_, proteger)) {
            error(dispositivo_ + ": la placa no dice haberlo hecho; su programa puede ser anterior a esta orden");
            return salida::sinplaca;
        }
        resumen(proteger ? "Protección de escritura puesta" : "Protección de escritura quitada");
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
    resumen("8192 bytes leídos en " + nombre);
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

// The lines that say all went right; -q leaves them out.
void Programador::resumen(const std::string& mensaje)
{
    if (!opciones_.silencioso)
        resultado(mensaje);
}

} // namespace eeprog
