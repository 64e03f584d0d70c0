#include "enlacesimbolico.h"

#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>

namespace eeprog {

namespace {

bool esenlace(const std::string& ruta)
{
    struct stat datos {};
    return lstat(ruta.c_str(), &datos) == 0 && S_ISLNK(datos.st_mode);
}

std::string destinode(const std::string& enlace)
{
    char destino[4096];
    ssize_t largo = readlink(enlace.c_str(), destino, sizeof destino);
    return largo > 0 ? std::string(destino, static_cast<std::size_t>(largo)) : std::string();
}

} // namespace

bool enlazar(const std::string& enlace, const std::string& destino)
{
    if (symlink(destino.c_str(), enlace.c_str()) == 0) {
        return true;
    }
    if (errno != EEXIST || !esenlace(enlace) || unlink(enlace.c_str()) != 0) {
        return false;
    }
    return symlink(destino.c_str(), enlace.c_str()) == 0;
}

void desenlazar(const std::string& enlace, const std::string& destino)
{
    if (destinode(enlace) == destino) {
        unlink(enlace.c_str());
    }
}

} // namespace eeprog
