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
// The longest the core runs between two looks at the terminal.
constexpr std::int64_t tramo = 1'000'000;

bool simular(eeprog::PlacaSimulada& placa, eeprog::Puente& puente, const volatile std::sig_atomic_t& terminar)
{
    std::int64_t anclareloj = reloj();
    std::int64_t anclasim = placa.ahora();
    while (!terminar) {
        std::int64_t permitido = anclasim + (reloj() - anclareloj) + adelanto;
        const std::int64_t sobra = placa.ahora() - permitido;
        const std::string llegado = puente.recibir(sobra < 0 ? 0 : static_cast<int>(1 + sobra / 1'000'000));
        if (!llegado.empty()) {
            placa.recibir(llegado);
            anclareloj = reloj();
            anclasim = placa.ahora();
            permitido = anclasim + adelanto;
        }
        if (placa.ahora() < permitido && !placa.correr(std::min(permitido, placa.ahora() + tramo))) {
            std::cerr << "eeprog-simplaca: el microcontrolador se ha detenido (el firmware terminó o falló)\n";
            return false;
        }
        puente.enviar(placa.tomarsalida());
    }
    return true;
}

int servir(eeprog::PlacaSimulada& placa, const eeprog::Opciones& opciones, const volatile std::sig_atomic_t& terminar)
{
    eeprog::Puente puente;
    if (!puente.abrir()) {
        std::cerr << "eeprog-simplaca: el sistema no da un pseudoterminal\n";
        return 1;
    }
    if (!eeprog::anunciar("eeprog-simplaca", puente.ruta(), opciones.enlace))
        return 1;
    const bool bien = simular(placa, puente, terminar);
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
    eeprog::ChipModelo::Memoria contenido;
    contenido.fill(0xFF);
    if (!opciones->imagen.empty() && !eeprog::cargarimagen(opciones->imagen, contenido)) {
        std::cerr << "eeprog-simplaca: no se puede leer la imagen " << opciones->imagen << '\n';
        return 1;
    }
    eeprog::ChipModelo chip(contenido, opciones->ciclo * 1000, opciones->protegido, opciones->muerto);
    std::string error;
    auto placa = eeprog::PlacaSimulada::crear(firmware, chip, error);
    if (!placa) {
        std::cerr << "eeprog-simplaca: " << error << '\n';
        return 1;
    }
    placa->oirmal(opciones->ruido);
    const int resultado = servir(*placa, *opciones, eeprog::vigilarsenales({SIGINT, SIGTERM, SIGHUP}));
    // A write cycle under way finishes on the chip's own, as it would after the board stops.
    chip.avanzar(std::numeric_limits<std::int64_t>::max());
    return guardar(chip, *opciones) ? resultado : 1;
}
