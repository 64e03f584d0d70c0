#include "cli/marcatrama.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <functional>

namespace eeprog {

namespace {

// The device itself, whatever the name it was reached by (a link, /dev/serial/by-id); a name
// that does not lead to a device stands for itself.
unsigned long long identidad(const std::string& dispositivo)
{
    struct stat datos {};
    if (stat(dispositivo.c_str(), &datos) == 0 && (S_ISCHR(datos.st_mode) || S_ISBLK(datos.st_mode)))
        return datos.st_rdev;
    return std::hash<std::string>{}(dispositivo);
}

std::string carpeta()
{
    return access("/run/lock", W_OK | X_OK) == 0 ? "/run/lock" : "/tmp";
}

} // namespace

MarcaTrama::MarcaTrama(const std::string& dispositivo)
{
    char nombre[64];
    std::snprintf(nombre, sizeof nombre, "/eeprog-cli.%u.%llx", static_cast<unsigned>(getuid()),
                  identidad(dispositivo));
    ruta_ = carpeta() + nombre;
}

bool MarcaTrama::puesta() const
{
    return access(ruta_.c_str(), F_OK) == 0;
}

// A note that cannot be made only costs the next run its safety after a crash, so no error.
void MarcaTrama::poner() const
{
    const int archivo = open(ruta_.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (archivo >= 0)
        close(archivo);
}

void MarcaTrama::quitar() const
{
    unlink(ruta_.c_str());
}

} // namespace eeprog
