#include "placa.h"

#include "link/modelo.h"
#include "link/protocolo.h"

#include <algorithm>
#include <cstdint>

namespace eeprog {

// The program waits out the board's idle time, which the board's own table sets.
static_assert(protocolo::reposo == TIEMPOREPOSO);
// The program's description of each chip and the board's are the same chips.
static_assert(at28c64b.numero == MODELOAT28C64B && at28c256.numero == MODELOAT28C256 &&
              std::size(eeprog::modelos) == MODELOS);

namespace {

Placa& placade(void* contexto)
{
    return *static_cast<Placa*>(contexto);
}

} // namespace

// An erased EEPROM reads all ones.
Placa::Placa(OpcionesPlaca opciones)
    : opciones(opciones), memoria(::modelos[opciones.zocalo].tamano, 0xFF), protegido_(opciones.protegido)
{
    iniciarprotocolo(&protocolo_);
}

std::string Placa::recibir(unsigned char byte)
{
    if (opciones.muda)
        return {};
    if (opciones.silenciosa)
        return ensilencio(byte);
    if (enrapido)
        return rapido(byte);
    return atender(byte);
}

void Placa::conectar()
{
    oido = false;
}

void Placa::silencio()
{
    if (enrapido)
        protocolo_.protegido = rapido_.protegido;
    enrapido = false;
    elegido = &::modelos[MODELOAT28C64B];
    volverareposo(&protocolo_);
}

void Placa::hueco()
{
    rapidohueco(&rapido_);
}

std::size_t Placa::celda(unsigned direccion) const
{
    return direccion & (elegido->tamano - 1u) & (memoria.size() - 1);
}

// Whatever the first byte was, the board hangs after it: a check passes, nothing else does.
std::string Placa::ensilencio(unsigned char byte)
{
    bool primero = !oido;
    oido = true;
    if (primero && byte == ORDENCOMPROBAR) {
        return atender(byte);
    }
    return {};
}

// The chip as the tables reach it: a write cycle takes no time here, and a chip whose
// software data protection is on keeps its data, as the real one does with a plain write,
// while a protected write goes through.
::chip Placa::bus()
{
    static constexpr auto leer = [](void* contexto, std::uint16_t direccion) -> std::uint8_t {
        const Placa& placa = placade(contexto);
        return placa.memoria[placa.celda(direccion)];
    };
    static constexpr auto escribir = [](void* contexto, std::uint16_t direccion, std::uint8_t dato) {
        Placa& placa = placade(contexto);
        ++placa.ciclos_;
        if (!placa.protegido_)
            placa.memoria[placa.celda(direccion)] = dato;
    };
    static constexpr auto escribirprotegido = [](void* contexto, std::uint16_t direccion, std::uint8_t dato) {
        Placa& placa = placade(contexto);
        ++placa.ciclos_;
        placa.memoria[placa.celda(direccion)] = dato;
    };
    static constexpr auto desproteger = [](void* contexto) { placade(contexto).protegido_ = false; };
    static constexpr auto proteger = [](void* contexto) { placade(contexto).protegido_ = true; };
    static constexpr auto cargarpagina = [](void* contexto, std::uint16_t direccion, const std::uint8_t* datos,
                                            const std::uint8_t* mascara, std::uint8_t protegida) {
        Placa& placa = placade(contexto);
        ++placa.ciclos_;
        for (unsigned i = 0; i < TAMANOPAGINA; ++i)
            if ((mascara[i / 8] >> (i % 8) & 1) && (protegida || !placa.protegido_))
                placa.memoria[placa.celda(direccion + i)] = datos[i];
    };
    static constexpr auto ocupado = [](void*) -> std::uint8_t { return 0; };
    static constexpr auto leerpagina = [](void* contexto, std::uint16_t direccion, std::uint8_t* destino,
                                          const std::uint8_t* datos, const std::uint8_t* mascara) -> std::uint8_t {
        const Placa& placa = placade(contexto);
        bool bien = true;
        for (unsigned i = 0; i < TAMANOPAGINA; ++i) {
            destino[i] = placa.memoria[placa.celda(direccion + i)];
            bien = bien && (destino[i] == datos[i] || (mascara[i / 8] >> (i % 8) & 1) == 0);
        }
        return bien;
    };
    static constexpr auto elegir = [](void* contexto, const struct modelo* modelo) {
        placade(contexto).elegido = modelo;
    };
    return {leer, escribir, escribirprotegido, desproteger, proteger, cargarpagina, ocupado, leerpagina, elegir, this};
}

// A data byte heard wrong is what the firmware receives: it stores and echoes it so. The
// fast protocol's question gets the answer and the version of a board that has it, or the
// echo of one that does not.
std::string Placa::atender(unsigned char byte)
{
    const ::chip chip = bus();
    if (protocolo_.estado == DATOS && protocolo_.escritura && ++datosoidos == opciones.ecoerroneo) {
        byte ^= 0x01;
    }
    std::string respuesta(1, static_cast<char>(atenderbyte(&protocolo_, &chip, byte)));
    if (protocolo_.estado == PASORAPIDO && opciones.lenta) {
        volverareposo(&protocolo_);
        respuesta.assign(1, static_cast<char>(byte));
    } else if (protocolo_.estado == PASORAPIDO) {
        respuesta += static_cast<char>(RAPIDOVERSION);
        iniciarrapido(&rapido_, protocolo_.protegido);
        enrapido = true;
    }
    return respuesta;
}

// The board's work after each byte, as its firmware's loop does it, until nothing is left
// to send; the line's faults of the options on either side.
std::string Placa::rapido(unsigned char byte)
{
    const ::chip chip = bus();
    if (++oidosrapido == opciones.byteerroneo)
        byte ^= 0x10;
    rapidoentrada(&rapido_, byte);
    std::string respuesta;
    for (int quietas = 0; quietas < 2;) {
        rapidotrabajar(&rapido_, &chip);
        const std::int16_t dicho = rapidosalida(&rapido_, &chip);
        if (dicho < 0) {
            ++quietas; // a page started in one round ends in the next
            continue;
        }
        quietas = 0;
        respuesta += static_cast<char>(++dichosrapido == opciones.respuestaerronea ? dicho ^ 0x10 : dicho);
    }
    if (rapidoterminado(&rapido_))
        silencio();
    return respuesta;
}

} // namespace eeprog
