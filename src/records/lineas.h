#pragma once

#include "records/imagen.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace eeprog {

// The pieces that the strict readers of Intel HEX and S-records share.

// What a line may end with and a blank line is made of, besides its line end.
inline constexpr std::string_view blancos = " \t\v\f";

// A line of a text file that is not blank: its 1-based number, counted over every line
// however it ends (CR LF, LF or CR alone), and its text without the line end and without
// trailing blanks. The text is never empty.
struct Linea {
    int numero = 0;
    std::string_view texto;
};

std::vector<Linea> lineas(std::string_view texto);

// Every reason a file is refused for; their Spanish texts live in lineas.cpp.
enum class Falta { marca, caracter, longitud, suma, tipo, fuera, vacio, grande, formato };

// The chip's size completes the texts of fuera and grande.
Rechazo rechazo(int linea, Falta falta, int tamano = 0);

// The bytes of a record line from a place on, checked: hexadecimal digits only, in pairs;
// as many bytes as the first one counts, plus `sincontar` that it leaves out; and a sum of
// them all whose low byte is `suma`. A line that fails is refused at its number.
std::variant<std::vector<std::uint8_t>, Rechazo> bytesdelinea(const Linea& linea, std::size_t desde,
                                                              std::size_t sincontar, std::uint8_t suma);

// Gives the image a byte at an address; false, and nothing given, outside the chip.
bool ponerdato(Imagen& imagen, std::uint64_t direccion, std::uint8_t valor);

// The reading of a file that is over: its image, or a refusal if it gives no byte.
LecturaImagen cerrar(const Imagen& imagen);

} // namespace eeprog
