#pragma once

#include "link/puerto.h"

#include <cstdint>
#include <optional>
#include <string>

namespace eeprog {

// The fast protocol of our own firmware, beside the old one: asked for with one byte in the
// idle state, then frames at 115200 baud, each with its length and a CRC-16.
namespace rapido {

inline const std::string pregunta = "v"; // an older board echoes it
inline constexpr char respuesta = 'V';   // then the version
inline constexpr long baudios = 115200;
inline constexpr long baudioslentos = 9600;
inline constexpr int tamanopagina = 64;
inline constexpr int tamanobloque = 128;
// The version whose greeting names the chip, and that turns the protection by frame.
inline constexpr int versionmodelos = 2;

// Frame types: the program's, then the board's.
inline constexpr char leer = 'L';       // address high, low, blocks high, low
inline constexpr char pagina = 'P';     // page address high, low, 8 bytes of mask, 64 bytes
inline constexpr char hola = 'H';       // the chip's number (version 2 on): the first exchange at the new speed
inline constexpr char proteccion = 'S'; // 1 turns the chip's software data protection on, 0 off
inline constexpr char fin = 'F';        // empty: back to 9600 and idle
inline constexpr char bloque = 'l';     // address high, low, 128 bytes
inline constexpr char grabada = 'g';    // page address high, low, 0 (written) or 1 and the page as read
inline constexpr char saludo = 'h';
inline constexpr char protegida = 's'; // the same byte, once done
inline constexpr char adios = 'f';
inline constexpr char mal = 'n'; // the frame in its turn came with a bad CRC: nothing done
// Never on the line: a frame of the board's whose header is right but whose CRC failed, so
// the frames after it can still be read.
inline constexpr char danada = '\0';

// CRC-16/XMODEM, one byte at a time from 0: the polynomial of avr-libc's _crc_xmodem_update.
std::uint16_t crc(std::uint16_t anterior, unsigned char byte);

struct Trama {
    char tipo;
    std::string carga;
};

// Type, length, payload and CRC, as they go on the line.
std::string empaquetar(const Trama& trama);

} // namespace rapido

// The line in the fast protocol. The port must be open; replies are waited for as the old
// link waits, in pauses of a millisecond, and a line quiet for the budget of tries gives up.
class EnlaceRapido {
public:
    static constexpr int intentos = 100;
    // The silence that tells the board a frame half sent is over, and a little more.
    static constexpr int hueco = 30;

    explicit EnlaceRapido(Puerto& puerto);

    // Asked in the idle state, at 9600 baud: the fast protocol's version, or nothing for a
    // board that echoes the question or stays silent.
    std::optional<int> preguntar();
    void velocidad(long baudios);
    void enviar(const rapido::Trama& trama);
    // The next frame from the board. Nothing when the line stays quiet, or when what came does
    // not start as a frame of the board's (a type it sends, with a length that type has): the
    // line is then left quiet, ready for a frame sent again. A frame that starts right but
    // fails its CRC comes as rapido::danada.
    std::optional<rapido::Trama> recibir();
    // Drops what comes until the line has been quiet for the board's gap.
    void callar();

private:
    bool esperarbytes(std::size_t cuantos);

    Puerto& puerto_;
    std::string entrada_;
};

} // namespace eeprog
