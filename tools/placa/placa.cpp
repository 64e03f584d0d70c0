#include "placa.h"

namespace eeprog {

namespace {

constexpr unsigned char ordencomprobar = 0x63;
constexpr unsigned char ordenleer = 0x72;
constexpr unsigned char ordenescribir = 0x77;
// The chip has 13 address lines; the board leaves the upper ones unconnected.
constexpr unsigned mascara = Placa::tamano - 1;

} // namespace

Placa::Placa(OpcionesPlaca opciones) : opciones(opciones)
{
    memoria.fill(0xFF); // an erased EEPROM reads all ones
}

std::optional<unsigned char> Placa::recibir(unsigned char byte)
{
    if (opciones.muda) {
        return std::nullopt;
    }
    if (opciones.silenciosa) {
        return ensilencio(byte);
    }
    return atender(byte);
}

void Placa::conectar()
{
    actual = Estado::reposo;
    oido = false;
}

Placa::Estado Placa::estado() const
{
    return actual;
}

std::array<unsigned char, Placa::tamano>& Placa::chip()
{
    return memoria;
}

const std::array<unsigned char, Placa::tamano>& Placa::chip() const
{
    return memoria;
}

// Whatever the first byte was, the board hangs after it: a check passes, nothing else does.
std::optional<unsigned char> Placa::ensilencio(unsigned char byte)
{
    bool primero = !oido;
    oido = true;
    if (primero && byte == ordencomprobar) {
        return atender(byte);
    }
    return std::nullopt;
}

unsigned char Placa::atender(unsigned char byte)
{
    switch (actual) {
    case Estado::reposo:
        return enreposo(byte);
    case Estado::cuentalectura:
    case Estado::cuentaescritura:
        quedan = byte;
        return pasar(Estado::alta, byte);
    case Estado::alta:
        direccion = static_cast<unsigned>(byte) << 8;
        return pasar(Estado::baja, byte);
    case Estado::baja:
        direccion = (direccion | byte) & mascara;
        return pasar(Estado::tipo, byte);
    case Estado::tipo:
        return entipo(byte);
    case Estado::datoslectura:
        return leerdato();
    case Estado::datosescritura:
        return escribirdato(byte);
    }
    return byte;
}

// The header bytes of a frame are echoed as they come.
unsigned char Placa::pasar(Estado siguiente, unsigned char byte)
{
    actual = siguiente;
    return byte;
}

// The reply to a command is ours to choose; echoing it lets a terminal user see it was heard.
unsigned char Placa::enreposo(unsigned char byte)
{
    if (byte == ordenleer || byte == ordenescribir) {
        escribiendo = byte == ordenescribir;
        actual = escribiendo ? Estado::cuentaescritura : Estado::cuentalectura;
    }
    return byte;
}

// The record type is echoed and otherwise ignored: every frame carries data.
unsigned char Placa::entipo(unsigned char byte)
{
    if (quedan == 0) {
        return pasar(Estado::reposo, byte);
    }
    return pasar(escribiendo ? Estado::datosescritura : Estado::datoslectura, byte);
}

unsigned char Placa::leerdato()
{
    unsigned char dato = memoria[direccion];
    avanzar();
    return dato;
}

unsigned char Placa::escribirdato(unsigned char byte)
{
    ++datosoidos;
    if (datosoidos == opciones.ecoerroneo) {
        byte ^= 0x01;
    }
    memoria[direccion] = byte;
    avanzar();
    return byte;
}

void Placa::avanzar()
{
    direccion = (direccion + 1) & mascara;
    if (--quedan == 0) {
        actual = Estado::reposo;
    }
}

} // namespace eeprog
