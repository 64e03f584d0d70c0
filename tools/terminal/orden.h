#pragma once

#include <getopt.h>

#include <functional>
#include <optional>
#include <string>

// What the two board programs share on their command line: the reading of their options and
// the announcement of their terminal.
namespace eeprog {

// Reads the options with getopt_long, giving each to tomar; says in Spanish, after the
// program's name, what is wrong with the first one it refuses or with a word left over.
bool recorreropciones(const char* programa, int argc, char* argv[], const option* claves,
                      const std::function<bool(int clave, const char* valor)>& tomar);

// A whole number from min to max, or nothing.
std::optional<long> numeroentre(const char* texto, long minimo, long maximo);

// Makes the link to the terminal, if one was asked for, and prints the terminal's path as the
// program's first line. False, and said in Spanish, when the link cannot be made.
bool anunciar(const char* programa, const std::string& ruta, const std::string& enlace);

} // namespace eeprog
