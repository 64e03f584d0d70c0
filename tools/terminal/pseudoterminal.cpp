#include "pseudoterminal.h"

#include <fcntl.h>
#include <stdlib.h>
#include <termios.h>
#include <unistd.h>

namespace eeprog {

namespace {

// Settings made now outlive this close and hold for whoever opens the terminal next.
bool ponerencrudo(const std::string& ruta)
{
    const int lado = open(ruta.c_str(), O_RDWR | O_NOCTTY);
    if (lado < 0)
        return false;
    termios modo{};
    bool hecho = tcgetattr(lado, &modo) == 0;
    if (hecho) {
        cfmakeraw(&modo);
        cfsetispeed(&modo, B9600);
        cfsetospeed(&modo, B9600);
        hecho = tcsetattr(lado, TCSANOW, &modo) == 0;
    }
    close(lado);
    return hecho;
}

} // namespace

int abrirpseudoterminal(std::string& ruta)
{
    const int maestro = posix_openpt(O_RDWR | O_NOCTTY);
    if (maestro < 0)
        return -1;
    const char* nombre = nullptr;
    if (grantpt(maestro) == 0 && unlockpt(maestro) == 0)
        nombre = ptsname(maestro);
    if (nombre == nullptr || !ponerencrudo(nombre)) {
        close(maestro);
        return -1;
    }
    ruta = nombre;
    return maestro;
}

} // namespace eeprog
