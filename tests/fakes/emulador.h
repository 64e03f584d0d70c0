#pragma once

#include <sys/types.h>

#include <chrono>
#include <string>
#include <vector>

namespace eeprog::prueba {

// The board emulator program, eeprog-placa, run as a child of the test: the real thing on a
// real pseudo-terminal. Every wait is bounded, so a broken emulator fails a test instead of
// hanging it.
class Emulador {
public:
    static constexpr int paciencia = 10000; // ms
    // Time for the emulator to notice that the terminal was closed, before it is reopened.
    static constexpr std::chrono::milliseconds cambiodesesion{200};

    explicit Emulador(std::vector<std::string> opciones = {});
    ~Emulador();
    Emulador(const Emulador&) = delete;
    Emulador& operator=(const Emulador&) = delete;

    // The pseudo-terminal's path, the first line the emulator prints; empty if it printed none.
    const std::string& ruta();
    // Exit status, or -1 when it did not end in time.
    int fin();
    // Asks it to end (SIGTERM), as a user's Ctrl+C would, and gives its exit status.
    int terminar();

private:
    pid_t pid_ = -1;
    int salida_ = -1;
    bool leida_ = false;
    std::string ruta_;
};

} // namespace eeprog::prueba
