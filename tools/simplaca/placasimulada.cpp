#include "placasimulada.h"

#include "fusibles.h"

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
constexpr std::uint8_t pince = 0x04;  // PD2
constexpr std::uint8_t pinoe = 0x08;  // PD3
constexpr std::uint8_t pinwe = 0x10;  // PD4
constexpr std::uint8_t altas = 0x1F;  // A8-A12 on PB0-PB4
constexpr std::uint8_t pina13 = 0x20; // PD5, to ZIF pin 26
constexpr std::uint8_t pina14 = 0x40; // PD6, to ZIF pin 1
constexpr std::uint16_t pina = 0x39;  // in the data space: I/O address 0x19
constexpr char uart = '0';
constexpr std::uint16_t ubrrl = 0x29; // I/O 0x09
constexpr std::uint16_t ubrrh = 0x40; // I/O 0x20, shared with UCSRC
constexpr std::uint16_t ucsra = 0x2B; // I/O 0x0B
constexpr std::uint8_t u2x = 0x02;

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

// simavr's loader copies the ELF's .fuse section into the core's fuses; an ELF without one
// leaves the part as it left the factory. Their faults are the board's, noted at power-up.
std::int64_t encender(const elf_firmware_t& elf, const avr_t& avr, ChipModelo& chip)
{
    if (elf.fusesize == 0) {
        chip.anotar(0, "el firmware no trae fusibles (sección .fuse): el ATmega16 queda con los de fábrica, "
                       "sin cristal ni detección de caída de tensión; el fusible bajo debe ser 0x3F");
        return arranque(fusiblebajodefabrica, PlacaSimulada::frecuencia);
    }
    const std::uint8_t bajo = avr.fuse[AVR_FUSE_LOW];
    if (const auto falta = revisarfusible(bajo))
        chip.anotar(0, *falta);
    return arranque(bajo, PlacaSimulada::frecuencia);
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
    std::unique_ptr<PlacaSimulada> placa(new PlacaSimulada(avr, chip, encender(elf, *avr, chip)));
    placa->conectar();
    return placa;
}

PlacaSimulada::PlacaSimulada(avr_t* avr, ChipModelo& chip, std::int64_t encendido)
    : avr(avr), chip(chip), encendido(encendido)
{}

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
    engancharpina();
    engancharbaudios();
    // No console echo, and no sleeping in the core while the firmware polls its UART: the
    // simulation is paced from outside.
    std::uint32_t banderas = 0;
    avr_ioctl(avr, AVR_IOCTL_UART_SET_FLAGS(uart), &banderas);
    entrada = avr_io_getirq(avr, AVR_IOCTL_UART_GETIRQ(uart), UART_IRQ_INPUT);
    avr_irq_register_notify(avr_io_getirq(avr, AVR_IOCTL_UART_GETIRQ(uart), UART_IRQ_OUTPUT), alenviar, this);
    avr_irq_register_notify(avr_io_getirq(avr, AVR_IOCTL_UART_GETIRQ(uart), UART_IRQ_OUT_XON), alxon, this);
    avr_irq_register_notify(avr_io_getirq(avr, AVR_IOCTL_UART_GETIRQ(uart), UART_IRQ_OUT_XOFF), alxoff, this);
}

// The firmware's reads of PINA must see the bus as the chip leaves it, floating lines and
// all. The ioport module owns that address's read hook and avr_register_io_read refuses a
// second one, so the board takes the slot in avr_t's public io table itself and hands each
// read on to the port's hook first, which still gives the bits the port drives and raises
// its own signals.
void PlacaSimulada::engancharpina()
{
    auto& lectura = avr->io[AVR_DATA_TO_IO(pina)].r;
    leerpina = lectura.c;
    puertoa = lectura.param;
    lectura.c = alleer;
    lectura.param = this;
}

// simavr times the UART's bytes as eleven bits, a parity bit that 8N1 does not have among
// them; the line's byte is ten, start and stop with the eight. Its hook on UBRRL sets the
// time, so the board's hook runs it and then puts the time right.
void PlacaSimulada::engancharbaudios()
{
    auto& escritura = avr->io[AVR_DATA_TO_IO(ubrrl)].w;
    escribirbaudios = escritura.c;
    uartsimavr = escritura.param;
    escritura.c = albaudios;
    escritura.param = this;
}

bool PlacaSimulada::correr(std::int64_t hasta)
{
    const std::uint64_t final = ciclos(hasta);
    while (avr->cycle < final && (salida.empty() || salida.front().fin > ahora())) {
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
    for (; !salida.empty() && salida.front().fin <= ahora(); salida.pop_front())
        enviado += salida.front().byte;
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
    // A pin left as an input drives nothing: the chip sees A13 or A14 only while driven.
    const std::uint8_t conducidas = d.ddr & (pina13 | pina14);
    patas.altas = static_cast<std::uint8_t>((conducidas & pina13 ? 1 : 0) | (conducidas & pina14 ? 2 : 0));
    patas.direccion =
        static_cast<std::uint16_t>(c.port | ((b.port & altas) << 8) | (d.port & conducidas & pina13 ? 1 << 13 : 0) |
                                   (d.port & conducidas & pina14 ? 1 << 14 : 0));
    patas.datos = static_cast<std::uint8_t>(a.port & ddra);
    patas.conducidos = ddra;
    return patas;
}

void PlacaSimulada::cambiopatas()
{
    if (!cables.sinchip())
        chip.cambiar(cables.alchip(leerpatas()), ahora());
}

// PINA shows the pins as they were a cycle before, for the port's synchronizer.
std::uint8_t PlacaSimulada::leerbus(std::uint8_t puerto)
{
    const std::int64_t pines = nanosegundos(avr->cycle > 0 ? avr->cycle - 1 : 0);
    return cables.almicro(chip.muestrear(pines), puerto, ddra);
}

// simavr's receiver says xoff when its buffer is full and xon whenever it has room again.
void PlacaSimulada::entregar()
{
    while (admite && !pendientes.empty()) {
        const std::uint32_t byte = pendientes.front();
        pendientes.pop_front();
        const bool malo = ++oidos == ruido || baudiosuart != baudioslinea;
        avr_raise_irq(entrada, malo ? byte | UART_INPUT_FE : byte);
    }
}

// The chip's time at a cycle of the core. Split so that cycles times 10^9 stays within 64
// bits however long the board runs.
std::int64_t PlacaSimulada::nanosegundos(std::uint64_t cuantos) const
{
    return encendido + static_cast<std::int64_t>(cuantos / frecuencia * 1'000'000'000 +
                                                 cuantos % frecuencia * 1'000'000'000 / frecuencia);
}

// Rounded up: the first cycle of the core at or after the chip's time given.
std::uint64_t PlacaSimulada::ciclos(std::int64_t cuando) const
{
    const auto ns = static_cast<std::uint64_t>(cuando < encendido ? 0 : cuando - encendido);
    return ns / 1'000'000'000 * frecuencia + (ns % 1'000'000'000 * frecuencia + 999'999'999) / 1'000'000'000;
}

std::uint8_t PlacaSimulada::alleer(avr_t* avr, std::uint16_t direccion, void* placa)
{
    auto* esta = static_cast<PlacaSimulada*>(placa);
    const std::uint8_t puerto = esta->leerpina ? esta->leerpina(avr, direccion, esta->puertoa) : avr->data[direccion];
    return esta->leerbus(puerto);
}

void PlacaSimulada::albaudios(avr_t* avr, std::uint16_t direccion, std::uint8_t valor, void* placa)
{
    auto* esta = static_cast<PlacaSimulada*>(placa);
    if (esta->escribirbaudios)
        esta->escribirbaudios(avr, direccion, valor, esta->uartsimavr);
    else
        avr->data[direccion] = valor;
    const std::uint32_t divisor = (avr->data[ubrrl] | (avr->data[ubrrh] & 0x0F) << 8) + 1;
    const std::uint32_t ciclosbit = divisor * ((avr->data[ucsra] & u2x) != 0 ? 8 : 16);
    static_cast<avr_uart_t*>(esta->uartsimavr)->cycles_per_byte = ciclosbit * 10;
    esta->baudiosuart = static_cast<long>(frecuencia / ciclosbit);
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
    auto* esta = static_cast<PlacaSimulada*>(placa);
    if (esta->baudiosuart == 0)
        return;
    const std::int64_t fin = std::max(esta->ahora(), esta->lineaocupada) + 10 * 1'000'000'000LL / esta->baudiosuart;
    esta->lineaocupada = fin;
    if (esta->baudiosuart == esta->baudioslinea)
        esta->salida.push_back({static_cast<char>(valor & 0xFF), fin});
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

} // namespace eeprog
