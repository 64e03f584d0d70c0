#include "placa.h"

#include "link/protocolo.h"

#include <cstdint>

namespace eeprog {

// The program waits out the board's idle time, which the board's own table sets.
static_assert(protocolo::reposo == TIEMPOREPOSO);

namespace {

Placa& placade(void* contexto)
{
    return *static_cast<Placa*>(contexto);
}

} // namespace

Placa::Placa(OpcionesPlaca opciones) : opciones(opciones), protegido_(opciones.protegido)
{
    memoria.fill(0xFF); // an erased EEPROM reads all ones
    iniciarprotocolo(&protocolo_);
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
    oido = false;
}

void Placa::silencio()
{
    volverareposo(&protocolo_);
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
    if (primero && byte == ORDENCOMPROBAR) {
        return atender(byte);
    }
    return std::nullopt;
}

// The chip as the table reaches it: a write cycle takes no time here, and a chip whose
// software data protection is on keeps its data, as the real one does with a plain write,
// while a protected write goes through. A data byte heard wrong is what the firmware
// receives: it stores and echoes it so.
unsigned char Placa::atender(unsigned char byte)
{
    static constexpr auto leer = [](void* contexto, std::uint16_t direccion) -> std::uint8_t {
        return placade(contexto).memoria[direccion];
    };
    static constexpr auto escribir = [](void* contexto, std::uint16_t direccion, std::uint8_t dato) {
        Placa& placa = placade(contexto);
        ++placa.ciclos_;
        if (!placa.protegido_)
            placa.memoria[direccion] = dato;
    };
    static constexpr auto escribirprotegido = [](void* contexto, std::uint16_t direccion, std::uint8_t dato) {
        ++placade(contexto).ciclos_;
        placade(contexto).memoria[direccion] = dato;
    };
    static constexpr auto desproteger = [](void* contexto) { placade(contexto).protegido_ = false; };
    static constexpr auto proteger = [](void* contexto) { placade(contexto).protegido_ = true; };
    const ::chip bus{leer, escribir, escribirprotegido, desproteger, proteger, this};
    if (protocolo_.estado == DATOS && protocolo_.escritura && ++datosoidos == opciones.ecoerroneo) {
        byte ^= 0x01;
    }
    return atenderbyte(&protocolo_, &bus, byte);
}

} // namespace eeprog
