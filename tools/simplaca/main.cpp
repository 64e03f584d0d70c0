// eeprog-simplaca: the programmer board simulated down to its pins, its own firmware running
// on a simulated ATmega16 beside a simulated AT28C64B, served on a pseudo-terminal.

#include "chipmodelo.h"
#include "enlacesimbolico.h"
#include "imagen.h"
#include "lugarfirmware.h"
#include "opciones.h"
#include "orden.h"
#include "plataforma/senales.h"
#include "placasimulada.h"
#include "puente.h"
#include "tiempos.h"

#include <algorithm>
#include <csignal>
#include <ctime>
#include <fstream>
#include <iostream>
#include <limits>
#include <vector>

namespace {

std::int64_t reloj()
{
    timespec momento{};
    clock_gettime(CLOCK_MONOTONIC, &momento);
    return momento.tv_sec * 1'000'000'000LL + momento.tv_nsec;
}

// Each byte from the program lets the core run this far ahead of the wall clock, as fast as
// the host goes: past the UART's byte times and the longest write cycle, so a reply never
// waits for real time. With nothing to do the core keeps to real time.
constexpr std::int64_t adelanto = 50'000'000;
// Once the board has sent a byte, the program's answer takes real time: the core then keeps
// to the wall clock from that byte on, this little ahead, until the program's next byte, so
// the board's own time counts the program's delay as a real board's would, and not as far
// as the core could race meanwhile.
constexpr std::int64_t holgura = 1'000'000;
// The longest the core runs between two looks at the terminal.
constexpr std::int64_t tramo = 1'000'000;

// The least a program takes from a byte of the board's to the first byte of its answer: a
// UART's driver some tens of microseconds, a USB adapter a millisecond. Without it a byte
// could reach the board at the very instant of the reply that caused it.
constexpr std::int64_t reaccion = 20'000;

bool detenida()
{
    std::cerr << "eeprog-simplaca: el microcontrolador se ha detenido (el firmware terminó o falló)\n";
    return false;
}

bool simular(eeprog::PlacaSimulada& placa, eeprog::Puente& puente, eeprog::Tiempos& tiempos,
             const volatile std::sig_atomic_t& terminar)
{
    std::int64_t anclareloj = reloj();
    std::int64_t anclasim = placa.ahora();
    std::int64_t respondido = 0; // when the board's last byte reached the program
    std::int64_t primero = 0;    // the board's first byte since the program's last, and its wall time
    std::int64_t respondidoreloj = 0;
    bool esperando = false; // the board has spoken since the program's last byte
    while (!terminar) {
        std::int64_t permitido = anclasim + (reloj() - anclareloj) + adelanto;
        if (esperando)
            permitido = std::min(permitido, primero + (reloj() - respondidoreloj) + holgura);
        const std::int64_t sobra = placa.ahora() - permitido;
        const std::string llegado = puente.recibir(sobra < 0 ? 0 : static_cast<int>(1 + sobra / 1'000'000));
        placa.velocidadlinea(puente.baudios());
        if (!llegado.empty()) {
            const std::int64_t despierta = respondido + reaccion;
            while (placa.ahora() < despierta) {
                if (!placa.correr(despierta))
                    return detenida();
                puente.enviar(placa.tomarsalida());
            }
            tiempos.oido(placa.ahora());
            placa.recibir(llegado);
            anclareloj = reloj();
            anclasim = placa.ahora();
            permitido = anclasim + adelanto;
            esperando = false;
        }
        if (placa.ahora() < permitido && !placa.correr(std::min(permitido, placa.ahora() + tramo)))
            return detenida();
        const std::string salida = placa.tomarsalida();
        if (!salida.empty() && !esperando) {
            primero = placa.ahora();
            respondidoreloj = reloj();
            esperando = true;
        }
        if (!salida.empty()) {
            respondido = placa.ahora();
            tiempos.dicho(respondido);
        }
        puente.enviar(salida);
        if (!puente.conectado() && !tiempos.cerrada()) {
            std::cerr << "eeprog-simplaca: no se pueden escribir los tiempos en " << tiempos.archivo() << '\n';
            return false;
        }
    }
    return true;
}

int servir(eeprog::PlacaSimulada& placa, const eeprog::ChipModelo& chip, const eeprog::Opciones& opciones,
           const volatile std::sig_atomic_t& terminar)
{
    eeprog::Puente puente;
    if (!puente.abrir()) {
        std::cerr << "eeprog-simplaca: el sistema no da un pseudoterminal\n";
        return 1;
    }
    if (!eeprog::anunciar("eeprog-simplaca", puente.ruta(), opciones.enlace))
        return 1;
    eeprog::Tiempos tiempos(opciones.tiempos, chip);
    const bool bien = simular(placa, puente, tiempos, terminar);
    if (!opciones.enlace.empty())
        eeprog::desenlazar(opciones.enlace, puente.ruta());
    return bien ? 0 : 1;
}

// One line for each fault; false, with a word on the error output, when the file cannot be
// written.
bool escribirfaltas(const std::string& ruta, const std::vector<std::string>& faltas)
{
    std::ofstream archivo(ruta, std::ios::trunc);
    for (const std::string& falta : faltas)
        archivo << falta << '\n';
    archivo.close();
    if (!archivo)
        std::cerr << "eeprog-simplaca: no se pueden escribir las faltas en " << ruta << '\n';
    return static_cast<bool>(archivo);
}

bool guardar(const eeprog::ChipModelo& chip, const eeprog::Opciones& opciones)
{
    bool bien = true;
    if (!opciones.volcado.empty()) {
        if (!eeprog::volcarimagen(opciones.volcado, chip.memoria())) {
            std::cerr << "eeprog-simplaca: no se puede escribir el volcado " << opciones.volcado << '\n';
            bien = false;
        }
    }
    if (!opciones.faltas.empty())
        bien = escribirfaltas(opciones.faltas, chip.faltas()) && bien;
    if (!opciones.estado.empty() && !eeprog::escribirproteccion(opciones.estado, chip.protegido())) {
        std::cerr << "eeprog-simplaca: no se puede escribir el estado " << opciones.estado << '\n';
        bien = false;
    }
    return bien;
}

} // namespace

int main(int argc, char* argv[])
{
    const auto opciones = eeprog::leeropciones(argc, argv);
    if (!opciones) {
        std::cerr << eeprog::usosimulada();
        return 2;
    }
    if (opciones->ayuda) {
        std::cout << eeprog::usosimulada();
        return 0;
    }
    const std::string firmware = opciones->firmware.empty() ? eeprog::buscarfirmware() : opciones->firmware;
    if (firmware.empty())
        return 2;
    eeprog::ChipModelo::Memoria contenido(static_cast<std::size_t>(opciones->chip->tamano), 0xFF);
    if (!opciones->imagen.empty() && !eeprog::cargarimagen(opciones->imagen, contenido)) {
        std::cerr << "eeprog-simplaca: no se puede leer la imagen " << opciones->imagen << '\n';
        return 1;
    }
    eeprog::ChipModelo chip(contenido, opciones->ciclo * 1000, opciones->protegido, opciones->muerto, *opciones->chip);
    std::string error;
    auto placa = eeprog::PlacaSimulada::crear(firmware, chip, error);
    if (!placa) {
        std::cerr << "eeprog-simplaca: " << error << '\n';
        return 1;
    }
    placa->oirmal(opciones->ruido);
    placa->cablear(eeprog::Cableado(opciones->averias, opciones->sinchip));
    const int resultado = servir(*placa, chip, *opciones, eeprog::vigilarsenales({SIGINT, SIGTERM, SIGHUP}));
    // A write cycle under way finishes on the chip's own, as it would after the board stops.
    chip.avanzar(std::numeric_limits<std::int64_t>::max());
    return guardar(chip, *opciones) ? resultado : 1;
}
