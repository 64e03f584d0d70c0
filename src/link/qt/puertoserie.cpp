#include "link/qt/puertoserie.h"

#include <chrono>
#include <cstdlib>
#include <thread>

#ifdef __linux__
#include <linux/serial.h>
#include <sys/ioctl.h>
#endif

namespace eeprog {

namespace {

constexpr qint64 bufferentrada = 1024;

// USB serial adapters hold each reply for their latency timer unless asked not to, which
// would make every exchange of the lock-step protocol wait for it. A driver that has no
// such mode (a pseudo-terminal, a plain UART) simply says no.
void pedirbajalatencia([[maybe_unused]] QSerialPort& puerto)
{
#ifdef __linux__
    serial_struct ajustes{};
    int descriptor = static_cast<int>(puerto.handle());
    if (ioctl(descriptor, TIOCGSERIAL, &ajustes) == 0) {
        ajustes.flags |= ASYNC_LOW_LATENCY;
        ioctl(descriptor, TIOCSSERIAL, &ajustes);
    }
#endif
}

} // namespace

std::string nombrepuerto()
{
    const char* elegido = std::getenv("EEPROG_COM1");
    if (elegido && *elegido)
        return elegido;
#ifdef _WIN32
    return "COM1";
#else
    return "/dev/ttyS0";
#endif
}

PuertoSerie::PuertoSerie(std::string dispositivo) : dispositivo_(std::move(dispositivo)) {}

void PuertoSerie::configurar()
{
    puerto_.setPortName(QString::fromStdString(dispositivo_));
    puerto_.setBaudRate(QSerialPort::Baud9600);
    puerto_.setDataBits(QSerialPort::Data8);
    puerto_.setParity(QSerialPort::NoParity);
    puerto_.setStopBits(QSerialPort::OneStop);
    puerto_.setFlowControl(QSerialPort::NoFlowControl);
    puerto_.setReadBufferSize(bufferentrada);
}

bool PuertoSerie::abrir()
{
    if (puerto_.isOpen())
        return true;
    configurar();
    if (!puerto_.open(QIODevice::ReadWrite))
        return false;
    pedirbajalatencia(puerto_);
    return true;
}

void PuertoSerie::cerrar()
{
    if (puerto_.isOpen())
        puerto_.close();
}

void PuertoSerie::velocidad(long baudios)
{
    puerto_.setBaudRate(static_cast<qint32>(baudios));
}

bool PuertoSerie::abierto() const
{
    return puerto_.isOpen();
}

void PuertoSerie::escribir(const std::string& datos)
{
    if (!puerto_.isOpen() || datos.empty())
        return;
    puerto_.write(datos.data(), static_cast<qint64>(datos.size()));
    puerto_.flush();
}

// Without an event loop the port's buffer fills only when asked: a wait of 0 ms takes in
// whatever the system already holds, up to the buffer's size. A fast session cut short
// leaves more than that for the next run (two requests of blocks), so a full buffer is
// emptied and filled again until the system has no more.
std::string PuertoSerie::leer()
{
    std::string llegado;
    qint64 tomados = bufferentrada;
    while (puerto_.isOpen() && tomados >= bufferentrada) {
        if (puerto_.bytesAvailable() == 0)
            puerto_.waitForReadyRead(0);
        const QByteArray parte = puerto_.readAll();
        llegado.append(parte.constData(), static_cast<std::size_t>(parte.size()));
        tomados = parte.size();
    }
    return llegado;
}

// Waits on the port itself, so a reply is taken as soon as it is in rather than at the
// next whole millisecond. With nothing to wait on, or a port that fails, the pause still
// lasts its full time, so the budget of tries keeps its length.
void PuertoSerie::esperar(int milisegundos)
{
    const auto fin = std::chrono::steady_clock::now() + std::chrono::milliseconds(milisegundos);
    if (puerto_.isOpen() && puerto_.bytesAvailable() == 0)
        puerto_.waitForReadyRead(milisegundos);
    if (!puerto_.isOpen() || puerto_.bytesAvailable() == 0)
        std::this_thread::sleep_until(fin);
}

} // namespace eeprog
