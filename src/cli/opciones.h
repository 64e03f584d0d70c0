#pragma once

#include "link/modelo.h"

#include <string>
#include <variant>

namespace eeprog {

enum class Orden { comprobar, leer, grabar, verificar, borrar, vacio, desproteger, proteger, prueba };
enum class Formato { segunnombre, hex, bin };

// What one run of eeprog-cli was asked to do.
struct Opciones {
    Orden orden = Orden::comprobar;
    std::string archivo; // the file that grabar and verificar take
    std::string salida = "-";
    std::string puerto;
    Formato formato = Formato::segunnombre;
    bool verificar = false;
    bool comoventana = false;
    bool silencioso = false;
    bool lento = false;               // the old protocol at 9600 baud, even with a board that has the fast one
    bool solocambios = false;         // grabar writes only the pages that differ from the file
    bool detalles = false;            // -v: says which protocol the run used
    const Modelo* modelo = &at28c64b; // the chip in the socket, as --chip names it
};

// A run that ends at the command line: the text for standard output (help, version) or for
// standard error (wrong use), and the exit status.
struct Respuesta {
    int estado;
    std::string texto;
};

std::variant<Opciones, Respuesta> interpretar(int argc, char* argv[]);

// Whether the file is a raw image: by --formato, else by its name.
bool esbinario(const std::string& nombre, Formato formato);

} // namespace eeprog
