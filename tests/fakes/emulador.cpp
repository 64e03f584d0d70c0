#include "emulador.h"

#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <thread>

extern char** environ;

namespace eeprog::prueba {

Emulador::Emulador(std::vector<std::string> opciones)
{
    opciones.insert(opciones.begin(), EEPROG_PLACA);
    std::vector<char*> argv;
    for (std::string& opcion : opciones)
        argv.push_back(opcion.data());
    argv.push_back(nullptr);
    int tubo[2];
    if (pipe(tubo) != 0)
        return;
    posix_spawn_file_actions_t acciones;
    posix_spawn_file_actions_init(&acciones);
    posix_spawn_file_actions_adddup2(&acciones, tubo[1], STDOUT_FILENO);
    posix_spawn_file_actions_addclose(&acciones, tubo[0]);
    if (posix_spawn(&pid_, EEPROG_PLACA, &acciones, nullptr, argv.data(), environ) != 0)
        pid_ = -1;
    posix_spawn_file_actions_destroy(&acciones);
    close(tubo[1]);
    salida_ = tubo[0];
}

Emulador::~Emulador()
{
    if (pid_ > 0) {
        kill(pid_, SIGKILL);
        waitpid(pid_, nullptr, 0);
    }
    if (salida_ >= 0)
        close(salida_);
}

const std::string& Emulador::ruta()
{
    if (leida_)
        return ruta_;
    leida_ = true;
    char letra = 0;
    pollfd vigilado{salida_, POLLIN, 0};
    while (poll(&vigilado, 1, paciencia) == 1 && read(salida_, &letra, 1) == 1 && letra != '\n')
        ruta_ += letra;
    return ruta_;
}

int Emulador::fin()
{
    for (int i = 0; i < paciencia / 10 && pid_ > 0; ++i) {
        int estado = 0;
        if (waitpid(pid_, &estado, WNOHANG) == pid_) {
            pid_ = -1;
            return WIFEXITED(estado) ? WEXITSTATUS(estado) : 128 + WTERMSIG(estado);
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return -1;
}

int Emulador::terminar()
{
    if (pid_ > 0)
        kill(pid_, SIGTERM);
    return fin();
}

} // namespace eeprog::prueba
