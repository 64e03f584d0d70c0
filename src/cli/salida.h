#pragma once

namespace eeprog::salida {

// The exit status of eeprog-cli, for scripts and makefiles.
inline constexpr int hecho = 0;          // done, and the chip is as asked
inline constexpr int distinto = 1;       // the chip is not as asked: differences, bad echoes, not blank
inline constexpr int uso = 2;            // wrong use of the command line
inline constexpr int archivo = 3;        // a file that cannot be read, is refused, or cannot be written
inline constexpr int sinplaca = 4;       // the device cannot be opened, or the board does not answer
inline constexpr int interrumpido = 130; // Ctrl+C, as the shell counts a death by SIGINT

} // namespace eeprog::salida
