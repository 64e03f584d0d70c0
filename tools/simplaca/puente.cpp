#include "puente.h"

#include "pseudoterminal.h"

#include <poll.h>
#include <termios.h>
#include <time.h>
#include <unistd.h>

namespace eeprog {

Puente::~Puente()
{
    if (maestro >= 0)
        close(maestro);
}

bool Puente::abrir()
{
    maestro = abrirpseudoterminal(esclavo);
    return maestro >= 0;
}

// A closed terminal reports its hang-up at once and every time, so the wait is then slept
// instead. Replies left over from the last session would greet the next one: they go.
std::string Puente::recibir(int milisegundos)
{
    pollfd vigilado{maestro, POLLIN, 0};
    if (poll(&vigilado, 1, milisegundos) <= 0)
        return {};
    char llegado[256];
    const ssize_t leidos = (vigilado.revents & POLLIN) != 0 ? read(maestro, llegado, sizeof llegado) : 0;
    if (leidos > 0) {
        if (!conectado_)
            tcflush(maestro, TCOFLUSH);
        conectado_ = (vigilado.revents & POLLHUP) == 0;
        return std::string(llegado, static_cast<std::size_t>(leidos));
    }
    conectado_ = false;
    const timespec pausa{0, static_cast<long>(milisegundos) * 1'000'000};
    nanosleep(&pausa, nullptr);
    return {};
}

long Puente::baudios() const
{
    termios ajustes{};
    if (tcgetattr(maestro, &ajustes) != 0)
        return 0;
    switch (cfgetospeed(&ajustes)) {
    case B9600:
        return 9600;
    case B115200:
        return 115200;
    default:
        return 0;
    }
}

// A signal cuts the write short; what is left then no longer matters.
void Puente::enviar(const std::string& datos)
{
    std::size_t hecho = 0;
    while (hecho < datos.size()) {
        const ssize_t escrito = write(maestro, datos.data() + hecho, datos.size() - hecho);
        if (escrito <= 0)
            return;
        hecho += static_cast<std::size_t>(escrito);
    }
}

} // namespace eeprog
