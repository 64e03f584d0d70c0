#pragma once

#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <string>
#include <thread>
#include <vector>

namespace eeprog::prueba {

// The board emulator program, eeprog-placa, run as a child of the test: the real thing on a
// real pseudo-terminal. The simulated board, which runs the firmware, is run the same way.
// Every wait is bounded, so a broken emulator fails a test instead of hanging it.
class Emulador {
public:
    static constexpr int paciencia = 10000; // ms
    // Time for the emulator to notice that the terminal was closed, before it is reopened.
    static constexpr std::chrono::milliseconds cambiodesesion{200};

    explicit Emulador(std::vector<std::string> opciones = {}, const std::string& programa = EEPROG_PLACA)
    {
        opciones.insert(opciones.begin(), programa);
        std::vector<char*> argv;
        for (std::string& opcion : opciones)
            argv.push_back(opcion.data());
        argv.push_back(nullptr);
        int tubo[2];
        if (pipe(tubo) != 0)
            return;
        if ((pid_ = fork()) == 0) { // only calls that are safe between fork and exec
            dup2(tubo[1], STDOUT_FILENO);
            execv(argv[0], argv.data());
            _exit(127);
        }
        close(tubo[1]);
        char letra = 0;
        pollfd vigilado{salida_ = tubo[0], POLLIN, 0};
        while (poll(&vigilado, 1, paciencia) == 1 && read(salida_, &letra, 1) == 1 && letra != '\n')
            ruta_ += letra;
    }
    ~Emulador()
    {
        if (pid_ > 0 && kill(pid_, SIGKILL) == 0)
            waitpid(pid_, nullptr, 0);
        close(salida_);
    }
    Emulador(Emulador&&) = delete;

    // The pseudo-terminal's path, the first line the emulator prints; empty if it printed none.
    const std::string& ruta() const { return ruta_; }
    // Exit status, or -1 when it did not end in time.
    int fin()
    {
        int estado = 0;
        for (int i = 0; i < paciencia / 10 && pid_ > 0; ++i) {
            if (waitpid(pid_, &estado, WNOHANG) == pid_) {
                pid_ = -1;
                return WIFEXITED(estado) ? WEXITSTATUS(estado) : 128 + WTERMSIG(estado);
            }
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
        return -1;
    }
    // Asks it to end (SIGTERM), as a user's Ctrl+C would, and gives its exit status.
    int terminar()
    {
        if (pid_ > 0)
            kill(pid_, SIGTERM);
        return fin();
    }

private:
    pid_t pid_ = -1;
    int salida_ = -1;
    std::string ruta_;
};

} // namespace eeprog::prueba
