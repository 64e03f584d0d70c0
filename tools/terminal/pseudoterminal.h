#pragma once

#include <string>

namespace eeprog {

// A pseudo-terminal for an emulated board, which the program opens as its serial port.
// Its master side, or -1 when the system refuses one; ruta gets the device to open. The
// terminal is left raw at 9600 baud, so a program that leaves the settings alone still gets
// every byte through untouched.
int abrirpseudoterminal(std::string& ruta);

} // namespace eeprog
