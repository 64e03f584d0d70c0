#pragma once

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

namespace eeprog::prueba {

// What a run of eeprog-cli gave: its exit status and both outputs.
struct Corrida {
    int estado = -1;
    std::string salida;
    std::string errores;
};

// Runs a program, the first word, as a user would, its outputs caught in files of the given
// folder; with a pause, the user presses Ctrl+C (or sends the signal given) once it is over.
inline Corrida correrprograma(std::vector<std::string> palabras, const std::string& carpeta,
                              std::chrono::milliseconds interrupcion = {}, int senal = SIGINT)
{
    std::vector<char*> argv;
    for (std::string& palabra : palabras)
        argv.push_back(palabra.data());
    argv.push_back(nullptr);
    const std::string salida = carpeta + "/salida", errores = carpeta + "/errores";
    posix_spawn_file_actions_t acciones;
    posix_spawn_file_actions_init(&acciones);
    posix_spawn_file_actions_addopen(&acciones, 1, salida.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    posix_spawn_file_actions_addopen(&acciones, 2, errores.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    Corrida corrida;
    pid_t hijo = 0;
    int estado = 0;
    const bool lanzado = posix_spawn(&hijo, argv[0], &acciones, nullptr, argv.data(), environ) == 0;
    posix_spawn_file_actions_destroy(&acciones);
    if (!lanzado)
        return corrida;
    if (interrupcion.count() > 0) {
        std::this_thread::sleep_for(interrupcion);
        kill(hijo, senal);
    }
    if (waitpid(hijo, &estado, 0) == hijo)
        corrida.estado = WIFEXITED(estado) ? WEXITSTATUS(estado) : 128 + WTERMSIG(estado);
    const auto contenido = [](const std::string& nombre) {
        std::ostringstream texto;
        texto << std::ifstream(nombre, std::ios::binary).rdbuf();
        return texto.str();
    };
    corrida.salida = contenido(salida);
    corrida.errores = contenido(errores);
    return corrida;
}

inline Corrida correrorden(const std::vector<std::string>& argumentos, const std::string& carpeta,
                           std::chrono::milliseconds interrupcion = {}, int senal = SIGINT)
{
    std::vector<std::string> palabras{EEPROG_CLI};
    palabras.insert(palabras.end(), argumentos.begin(), argumentos.end());
    return correrprograma(palabras, carpeta, interrupcion, senal);
}

} // namespace eeprog::prueba
