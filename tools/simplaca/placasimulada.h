#pragma once

#include "averias.h"
#include "chipmodelo.h"

#include <cstdint>
#include <deque>
#include <memory>
#include <string>

struct avr_t;
struct avr_irq_t;

namespace eeprog {

// The board's ATmega16 running its firmware in simavr, wired to the chip as the board is:
// data on port A, address on ports C and B, /CE, /OE and /WE on PD2-PD4, and its UART
// taking bytes from the program and giving back the firmware's replies. Time is the chip's,
// from power-up; the core starts when its fuses' start-up delay is over.
class PlacaSimulada {
public:
    static constexpr std::uint32_t frecuencia = 7'372'800;

    // Nothing when the firmware cannot be loaded; the reason, in Spanish, is left in error.
    static std::unique_ptr<PlacaSimulada> crear(const std::string& firmware, ChipModelo& chip, std::string& error);
    ~PlacaSimulada();
    PlacaSimulada(const PlacaSimulada&) = delete;
    PlacaSimulada& operator=(const PlacaSimulada&) = delete;

    // Runs the core until its clock reaches hasta, in nanoseconds since power-up, or until a
    // byte the firmware sent has left the line, which should not wait. False once the core has stopped for
    // good (a crash, or a firmware that ended).
    bool correr(std::int64_t hasta);
    std::int64_t ahora() const;

    // Bytes from the program, handed to the UART as fast as its receiver takes them.
    void recibir(const std::string& bytes);
    // The speed the program's end of the line is set to. A byte sent at another speed than
    // the UART's arrives as noise, with a framing error, and the UART's bytes do not reach
    // the program.
    void velocidadlinea(long baudios) { baudioslinea = baudios; }
    // The nth byte from the program, counted from 1 over the board's life, arrives with a
    // framing error, as noise on the line would leave it.
    void oirmal(long enesimo) { ruido = enesimo; }
    // The wires between the microcontroller and the socket, with their faults.
    void cablear(const Cableado& cableado) { cables = cableado; }
    // The firmware's bytes that have left the line since the last call: each takes ten bit
    // times from the moment the UART starts it.
    std::string tomarsalida();

private:
    PlacaSimulada(avr_t* avr, ChipModelo& chip, std::int64_t encendido);
    void conectar();
    void engancharpina();
    void engancharbaudios();
    Patas leerpatas() const;
    void cambiopatas();
    std::uint8_t leerbus(std::uint8_t puerto);
    void entregar();
    std::int64_t nanosegundos(std::uint64_t ciclos) const;
    std::uint64_t ciclos(std::int64_t nanosegundos) const;

    static std::uint8_t alleer(avr_t* avr, std::uint16_t direccion, void* placa);
    static void albaudios(avr_t* avr, std::uint16_t direccion, std::uint8_t valor, void* placa);
    static void alpuerto(avr_irq_t* irq, std::uint32_t valor, void* placa);
    static void aldireccion(avr_irq_t* irq, std::uint32_t valor, void* placa);
    static void alenviar(avr_irq_t* irq, std::uint32_t valor, void* placa);
    static void alxon(avr_irq_t* irq, std::uint32_t valor, void* placa);
    static void alxoff(avr_irq_t* irq, std::uint32_t valor, void* placa);

    avr_t* avr;
    ChipModelo& chip;
    Cableado cables;
    // The chip's time when the core starts.
    std::int64_t encendido;
    std::uint8_t (*leerpina)(avr_t*, std::uint16_t, void*) = nullptr; // the port's own
    void* puertoa = nullptr;
    void (*escribirbaudios)(avr_t*, std::uint16_t, std::uint8_t, void*) = nullptr; // the UART's own
    void* uartsimavr = nullptr;
    avr_irq_t* entrada = nullptr;
    std::uint8_t ddra = 0; // port A's direction as just written: the register lags its hook
    std::deque<std::uint8_t> pendientes;
    bool admite = false; // the receiver has room (simavr's xon)
    long baudiosuart = 0;
    long baudioslinea = 0;
    long oidos = 0;
    long ruido = 0;
    struct Saliente {
        char byte;
        std::int64_t fin;
    };
    std::deque<Saliente> salida;
    std::int64_t lineaocupada = 0; // when the UART's last byte leaves the line
};

} // namespace eeprog
