#pragma once

#include <array>
#include <optional>

namespace eeprog {

// Faults a board can be made to show, so the program's failure paths can be tried.
struct OpcionesPlaca {
    bool muda = false;       // never answers: no board, or a dead one
    bool silenciosa = false; // answers the first check of a session, then hangs until reopened
    long ecoerroneo = 0;     // the Nth written data byte (from 1, over the board's life) is heard wrong
};

// The programmer board: the AT28C64B and the firmware that answers the program byte by byte.
class Placa {
public:
    static constexpr int tamano = 8192;
    enum class Estado { reposo, cuentalectura, cuentaescritura, alta, baja, tipo, datoslectura, datosescritura };

    explicit Placa(OpcionesPlaca opciones = {});

    // One byte from the program; the board answers with at most one.
    std::optional<unsigned char> recibir(unsigned char byte);
    // The port was opened: a new session begins and any half-received frame is forgotten.
    void conectar();

    Estado estado() const;
    std::array<unsigned char, tamano>& chip();
    const std::array<unsigned char, tamano>& chip() const;

private:
    std::optional<unsigned char> ensilencio(unsigned char byte);
    unsigned char atender(unsigned char byte);
    unsigned char pasar(Estado siguiente, unsigned char byte);
    unsigned char enreposo(unsigned char byte);
    unsigned char entipo(unsigned char byte);
    unsigned char leerdato();
    unsigned char escribirdato(unsigned char byte);
    void avanzar();

    OpcionesPlaca opciones;
    std::array<unsigned char, tamano> memoria;
    Estado actual = Estado::reposo;
    bool escribiendo = false;
    int quedan = 0;
    unsigned direccion = 0;
    bool oido = false;
    long datosoidos = 0;
};

} // namespace eeprog
