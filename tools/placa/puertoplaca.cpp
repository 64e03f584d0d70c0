#include "puertoplaca.h"

namespace eeprog {

PuertoPlaca::PuertoPlaca(Placa& placa, bool abrible) : placa(placa), abrible(abrible) {}

// A port already open refuses a second open, as a real device that is busy would.
bool PuertoPlaca::abrir()
{
    if (!abrible || abiertopuerto) {
        return false;
    }
    abiertopuerto = true;
    velocidadpuerto = 9600;
    ++cuentaaperturas;
    placa.conectar();
    return true;
}

// Replies not yet read are lost with the port, as a driver's input buffer is.
void PuertoPlaca::cerrar()
{
    if (!abiertopuerto) {
        return;
    }
    abiertopuerto = false;
    pendiente.clear();
    ++cuentacierres;
}

void PuertoPlaca::velocidad(long baudios)
{
    velocidadpuerto = baudios;
}

bool PuertoPlaca::abierto() const
{
    return abiertopuerto;
}

void PuertoPlaca::escribir(const std::string& datos)
{
    if (!abiertopuerto) {
        return;
    }
    enviadostotal += datos;
    for (char byte : datos) {
        const std::string respuesta = placa.recibir(static_cast<unsigned char>(byte));
        pendiente += respuesta;
        recibidostotal += respuesta;
    }
}

std::string PuertoPlaca::leer()
{
    std::string llegado;
    llegado.swap(pendiente);
    return llegado;
}

void PuertoPlaca::esperar(int)
{
    ++cuentaesperas;
}

int PuertoPlaca::esperas() const
{
    return cuentaesperas;
}

const std::string& PuertoPlaca::enviados() const
{
    return enviadostotal;
}

const std::string& PuertoPlaca::recibidos() const
{
    return recibidostotal;
}

int PuertoPlaca::aperturas() const
{
    return cuentaaperturas;
}

int PuertoPlaca::cierres() const
{
    return cuentacierres;
}

} // namespace eeprog
