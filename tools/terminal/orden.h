#pragma once

#include <getopt.h>

#include <csignal>
#include <functional>
#include <optional>

// What the two board programs share on their command line: the reading of their options and
// their end on a signal.
namespace eeprog {

// Reads the options with getopt_long, giving each to tomar; says in Spanish, after the
// program's name, what is wrong with the first one it refuses or with a word left over.
bool recorreropciones(const char* programa, int argc, char* argv[], const option* claves,
                      const std::function<bool(int clave, const char* valor)>& tomar);

// A whole number from min to max, or nothing.
std::optional<long> numeroentre(const char* texto, long minimo, long maximo);

// From here on SIGINT, SIGTERM and SIGHUP only set the flag this gives. Without SA_RESTART a
// signal also breaks a wait on the terminal, so the end is prompt.
const volatile std::sig_atomic_t& vigilarfin();

} // namespace eeprog
