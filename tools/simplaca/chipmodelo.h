#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace eeprog {

// The chip's pins at one moment. Control lines are their levels (true is high, the idle
// state of the active-low /CE, /OE and /WE); datos is what the microcontroller puts on the
// data bus, and conducidos which of its bits it drives. A13 and A14 count in the address
// only while driven; altas says which are (bit 0 A13, on pin 26; bit 1 A14, on pin 1).
struct Patas {
    bool ce = true;
    bool oe = true;
    bool we = true;
    std::uint16_t direccion = 0;
    std::uint8_t datos = 0;
    std::uint8_t conducidos = 0;
    std::uint8_t altas = 0;
};

// The chips the socket can hold, from their data sheets, apart from the program's own
// description of them so that a mistake there shows here: the bytes, the two addresses of
// the software data protection's sequences, and whether pin 1 is an output of the chip (the
// AT28C64 without B has RDY/BUSY there), which nothing may drive.
struct TipoChip {
    const char* nombre;
    int tamano;
    std::uint16_t clave1, clave2;
    bool listo;
};

inline constexpr TipoChip tiposchip[] = {
    {"AT28C64B", 8192, 0x1555, 0x0AAA, false},
    {"AT28C256", 32768, 0x5555, 0x2AAA, false},
    {"AT28C64", 8192, 0x1555, 0x0AAA, true},
};

// The type a user names, as eeprog-cli's --chip takes it; null for none.
const TipoChip* buscartipo(std::string_view palabra);

// The chip as the microcontroller's pins see it, with time in nanoseconds from power-up:
// whoever drives it tells it every change of its pins and lets its own time pass, and it
// answers with what it drives on the data bus. It keeps the bus faults a real chip would
// suffer from, and shows their effects.
class ChipModelo {
public:
    using Memoria = std::vector<std::uint8_t>;

    // A dead chip (muerto) runs its write cycles and keeps nothing written, as a worn-out part.
    // Cells the content does not reach hold 0.
    ChipModelo(Memoria contenido, std::int64_t ciclo, bool protegido, bool muerto = false,
               const TipoChip& tipo = tiposchip[0]);

    // The pins as they are from the moment ahora on.
    void cambiar(const Patas& nuevas, std::int64_t ahora);
    // Lets the chip's own time run to ahora: the load window closes, the write cycle ends.
    void avanzar(std::int64_t ahora);

    // What the chip drives on the data bus, valid or not yet.
    std::optional<std::uint8_t> salida() const;
    // The data bus as the microcontroller samples it at cuando.
    std::uint8_t muestrear(std::int64_t cuando);

    const Memoria& memoria() const { return celdas; }
    bool protegido() const { return proteccion; }
    // The write cycles run since power-up, stored or refused: what wears the chip.
    int ciclos() const { return cuentaciclos; }
    // One line per fault, in the order they were seen; the board adds its own.
    const std::vector<std::string>& faltas() const { return registro; }
    void anotar(std::int64_t ahora, const std::string& texto);

private:
    struct Carga {
        std::uint16_t direccion;
        std::uint8_t dato;
        std::int64_t cuando;
    };
    enum class Estado { reposo, cargando, escribiendo };

    bool pulsando(const Patas& patas) const;
    void empezarpulso(std::int64_t ahora);
    void acabarpulso(const Patas& capturadas, std::int64_t ahora);
    std::uint8_t capturar(const Patas& capturadas, std::int64_t ahora);
    std::uint8_t tardios(std::uint8_t lineas, std::int64_t ahora) const;
    void cargar(std::uint16_t direccion, std::uint8_t dato, std::int64_t ahora);
    void empezarciclo();
    std::vector<Carga> enpagina(std::vector<Carga>::const_iterator desde);
    void acabarciclo();
    void vigilarconflicto(std::int64_t ahora);
    void anotarcambios(const Patas& antes, std::int64_t ahora);
    std::uint8_t flotar(std::uint8_t bits, std::uint8_t evitar);
    unsigned celda(std::uint16_t direccion) const { return direccion & (tipo.tamano - 1u); }
    unsigned pagina() const { return (tipo.tamano - 1u) & ~63u; }

    const TipoChip& tipo;
    Memoria celdas;
    std::int64_t ciclo;
    bool proteccion;
    bool muerto;
    Patas patas;
    Estado estado = Estado::reposo;
    std::vector<Carga> cargas;
    std::vector<Carga> pendientes;  // what the running write cycle will store
    bool protecciondespues = false; // the protection once the running cycle ends
    std::int64_t finventana = 0;
    std::int64_t finciclo = 0;
    int cuentaciclos = 0;
    std::optional<std::int64_t> iniciopulso;
    std::uint16_t direccionpulso = 0;
    std::uint8_t ultimo = 0; // the last byte loaded, which DATA polling shows inverted in I/O7
    bool alterno = false;    // I/O6, which toggles on each read while the chip is busy
    bool enconflicto = false;
    std::int64_t valida = 0;
    std::array<std::int64_t, 8> cambiodato; // when each data line last changed, in level or drive
    std::uint8_t enbus = 0;                 // what the chip last put on the bus
    std::minstd_rand azar;                  // a fixed seed: runs repeat exactly
    std::vector<std::string> registro;
};

} // namespace eeprog
