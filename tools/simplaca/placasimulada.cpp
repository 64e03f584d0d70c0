#include "placasimulada.h"

#include <avr_ioport.h>
#include <avr_uart.h>
#include <sim_avr.h>
#include <sim_elf.h>

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>

namespace eeprog {

namespace {

constexpr const char* micro = "atmega16";
constexpr std::uint8_t pince = 0x04; // PD2
constexpr std::uint8_t pinoe = 0x08; // PD3
constexpr std::uint8_t pinwe = 0x10; // PD4
constexpr std::uint8_t altas = 0x1F; // A8-A12 on PB0-PB4
constexpr char uart = '0';

// simavr's own chatter would mix with the terminal's path on standard output; only its
// errors are worth showing, and on the error output.
void registrar(avr_t*, const int nivel, const char* formato, va_list argumentos)
{
    if (nivel <= LOG_ERROR)
        std::vfprintf(stderr, formato, argumentos);
}

avr_ioport_state_t estado(avr_t* avr, char puerto)
{
    avr_ioport_state_t leido{};
    avr_ioctl(avr, AVR_IOCTL_IOPORT_GETSTATE(puerto), &leido);
    return leido;
}

// A control line the firmware does not drive yet is held high, as the board's pull-ups would.
bool nivel(const avr_ioport_state_t& puerto, std::uint8_t pin)
{
    return (puerto.ddr & pin) == 0 || (puerto.port & pin) != 0;
}

// simavr takes any file it can open, and runs what it finds: an ELF for another machine can
// crash it, and one with no program would only crash the core.
bool esavr(const std::string& ruta)
{
    constexpr unsigned char magia[] = {0x7F, 'E', 'L', 'F'};
    constexpr unsigned char maquinaavr = 83; // e_machine, low byte first
    unsigned char cabecera[20] = {};
    std::ifstream(ruta, std::ios::binary).read(reinterpret_cast<char*>(cabecera), sizeof cabecera);
    return std::equal(std::begin(magia), std::end(magia), cabecera) && cabecera[18] == maquinaavr && cabecera[19] == 0;
}

} // namespace

std::unique_ptr<PlacaSimulada> PlacaSimulada::crear(const std::string& firmware, ChipModelo& chip, std::string& error)
{
    avr_global_logger_set(registrar);
    std::error_code fallo;
    if (!std::filesystem::is_regular_file(firmware, fallo) || !std::ifstream(firmware)) {
        error = "no se puede leer el firmware " + firmware;
        return nullptr;
    }
    elf_firmware_t elf{};
    if (!esavr(firmware) || elf_read_firmware(firmware.c_str(), &elf) != 0 || elf.flashsize == 0) {
        error = "el firmware " + firmware + " no es un ELF de AVR";
        return nullptr;
    }
    // The ELF may say nothing of its part and clock; the board's are fixed.
    if (elf.mmcu[0] != '\0' && std::strcmp(elf.mmcu, micro) != 0) {
        error = "el firmware " + firmware + " es para " + elf.mmcu + ", y la placa lleva un " + micro;
        return nullptr;
    }
    avr_t* avr = avr_make_mcu_by_name(micro);
    if (avr == nullptr || avr_init(avr) != 0) {
        error = "simavr no sabe simular el " + std::string(micro);
        return nullptr;
    }
    elf.frequency = frecuencia;
    avr_load_firmware(avr, &elf);
    avr->frequency = frecuencia;
    std::unique_ptr<PlacaSimulada> placa(new PlacaSimulada(avr, chip));
    placa->conectar();
    return placa;
}

PlacaSimulada::PlacaSimulada(avr_t* avr, ChipModelo& chip) : avr(avr), chip(chip) {}

PlacaSimulada::~PlacaSimulada()
{
    avr_terminate(avr);
}

void PlacaSimulada::conectar()
{
    for (char puerto : {'A', 'B', 'C', 'D'})
        avr_irq_register_notify(avr_io_getirq(avr, AVR_IOCTL_IOPORT_GETIRQ(puerto), IOPORT_IRQ_REG_PORT), alpuerto,
                                this);
    avr_irq_register_notify(avr_io_getirq(avr, AVR_IOCTL_IOPORT_GETIRQ('A'), IOPORT_IRQ_DIRECTION_ALL), aldireccion,
                            this);
    for (int bit = 0; bit < 8; ++bit)
        datos[bit] = avr_io_getirq(avr, AVR_IOCTL_IOPORT_GETIRQ('A'), bit);
    // No console echo, and no sleeping in the core while the firmware polls its UART: the
    // simulation is paced from outside.
    std::uint32_t banderas = 0;
    avr_ioctl(avr, AVR_IOCTL_UART_SET_FLAGS(uart), &banderas);
    entrada = avr_io_getirq(avr, AVR_IOCTL_UART_GETIRQ(uart), UART_IRQ_INPUT);
    avr_irq_register_notify(avr_io_getirq(avr, AVR_IOCTL_UART_GETIRQ(uart), UART_IRQ_OUTPUT), alenviar, this);
    avr_irq_register_notify(avr_io_getirq(avr, AVR_IOCTL_UART_GETIRQ(uart), UART_IRQ_OUT_XON), alxon, this);
    avr_irq_register_notify(avr_io_getirq(avr, AVR_IOCTL_UART_GETIRQ(uart), UART_IRQ_OUT_XOFF), alxoff, this);
}

bool PlacaSimulada::correr(std::int64_t hasta)
{
    const std::uint64_t final = ciclos(hasta);
    while (avr->cycle < final && salida.empty()) {
        const int estadocore = avr_run(avr);
        if (estadocore == cpu_Done || estadocore == cpu_Crashed)
            return false;
    }
    return true;
}

std::int64_t PlacaSimulada::ahora() const
{
    return nanosegundos(avr->cycle);
}

void PlacaSimulada::recibir(const std::string& bytes)
{
    pendientes.insert(pendientes.end(), bytes.begin(), bytes.end());
    entregar();
}

std::string PlacaSimulada::tomarsalida()
{
    std::string enviado;
    enviado.swap(salida);
    return enviado;
}

Patas PlacaSimulada::leerpatas() const
{
    const avr_ioport_state_t a = estado(avr, 'A');
    const avr_ioport_state_t b = estado(avr, 'B');
    const avr_ioport_state_t c = estado(avr, 'C');
    const avr_ioport_state_t d = estado(avr, 'D');
    Patas patas;
    patas.ce = nivel(d, pince);
    patas.oe = nivel(d, pinoe);
    patas.we = nivel(d, pinwe);
    patas.direccion = static_cast<std::uint16_t>(c.port | ((b.port & altas) << 8));
    // Bits the port does not drive keep what was last on the bus.
    patas.datos = static_cast<std::uint8_t>((a.port & ddra) | (a.pin & ~ddra));
    patas.conducidos = ddra;
    return patas;
}

void PlacaSimulada::cambiopatas()
{
    chip.cambiar(leerpatas(), ahora());
    refrescar();
}

// The chip's output reaches PINA one cycle after it is valid, for the port's synchronizer;
// until then PINA keeps what it had. The next change the chip makes by itself, or the moment
// its output becomes visible, is when the core calls back.
void PlacaSimulada::refrescar()
{
    chip.avanzar(ahora());
    std::optional<std::uint64_t> despertar;
    if (const auto valor = chip.salida()) {
        const std::uint64_t visible = ciclos(chip.validadesde()) + 1;
        if (avr->cycle >= visible)
            conducir(*valor);
        else
            despertar = visible;
    }
    if (const auto proximo = chip.proximo()) {
        const std::uint64_t cuando = ciclos(*proximo);
        despertar = despertar ? std::min(*despertar, cuando) : cuando;
    }
    if (despertar)
        avr_cycle_timer_register(avr, *despertar > avr->cycle ? *despertar - avr->cycle : 0, alreloj, this);
    else
        avr_cycle_timer_cancel(avr, alreloj, this);
}

void PlacaSimulada::conducir(std::uint8_t valor)
{
    for (int bit = 0; bit < 8; ++bit)
        avr_raise_irq(datos[bit], (valor >> bit) & 1);
}

// simavr's receiver says xoff when its buffer is full and xon whenever it has room again.
void PlacaSimulada::entregar()
{
    while (admite && !pendientes.empty()) {
        const std::uint8_t byte = pendientes.front();
        pendientes.pop_front();
        avr_raise_irq(entrada, byte);
    }
}

// Split so that cycles times 10^9 stays within 64 bits however long the board runs.
std::int64_t PlacaSimulada::nanosegundos(std::uint64_t cuantos) const
{
    return static_cast<std::int64_t>(cuantos / frecuencia * 1'000'000'000 +
                                     cuantos % frecuencia * 1'000'000'000 / frecuencia);
}

// Rounded up: the first cycle at or after the given time.
std::uint64_t PlacaSimulada::ciclos(std::int64_t cuando) const
{
    const auto ns = static_cast<std::uint64_t>(cuando < 0 ? 0 : cuando);
    return ns / 1'000'000'000 * frecuencia + (ns % 1'000'000'000 * frecuencia + 999'999'999) / 1'000'000'000;
}

void PlacaSimulada::alpuerto(avr_irq_t*, std::uint32_t, void* placa)
{
    static_cast<PlacaSimulada*>(placa)->cambiopatas();
}

void PlacaSimulada::aldireccion(avr_irq_t*, std::uint32_t valor, void* placa)
{
    auto* esta = static_cast<PlacaSimulada*>(placa);
    esta->ddra = static_cast<std::uint8_t>(valor);
    esta->cambiopatas();
}

void PlacaSimulada::alenviar(avr_irq_t*, std::uint32_t valor, void* placa)
{
    static_cast<PlacaSimulada*>(placa)->salida += static_cast<char>(valor & 0xFF);
}

void PlacaSimulada::alxon(avr_irq_t*, std::uint32_t, void* placa)
{
    auto* esta = static_cast<PlacaSimulada*>(placa);
    esta->admite = true;
    esta->entregar();
}

void PlacaSimulada::alxoff(avr_irq_t*, std::uint32_t valor, void* placa)
{
    if (valor != 0)
        static_cast<PlacaSimulada*>(placa)->admite = false;
}

std::uint64_t PlacaSimulada::alreloj(avr_t*, std::uint64_t, void* placa)
{
    static_cast<PlacaSimulada*>(placa)->refrescar();
    return 0;
}

} // namespace eeprog
