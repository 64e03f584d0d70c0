#pragma once

#include <array>
#include <cstdint>

namespace eeprog {

// The record buffer: the last file accepted, as a flat run of records in file order.
// A record at index i: the count of data bytes, the address high and low bytes, the type,
// the data bytes, the checksum, and one entry for the line's end; the next record's count
// follows. A count of 0 ends the run. Only an intake writes here, from index 0 upward,
// and nothing clears it: behind a shorter file the entries of a longer one remain.
struct Registros {
    std::array<std::int16_t, 65536> vector{};
    // Entries the last intake counted. It bounds the walks of programming and verifying.
    std::int16_t totalvector = 0;
};

// The write index of an intake is a 16-bit count: it can reach index 32767 and no further.
inline constexpr int capacidadvector = 32767;

// Adds entries to the buffer during an intake, one at a time, and stops taking them when
// the index has reached capacity.
class Escritura {
public:
    explicit Escritura(Registros& registros) : registros_(registros) {}

    // False once the buffer is full: the intake ends there, with what it has.
    bool poner(int valor)
    {
        if (indice_ >= capacidadvector)
            return false;
        registros_.vector[static_cast<std::size_t>(indice_++)] = static_cast<std::int16_t>(valor);
        return true;
    }
    // The 0 of an end record: written in the place of the next count, and not counted.
    void terminar() { registros_.vector[static_cast<std::size_t>(indice_)] = 0; }
    void cerrar() { registros_.totalvector = static_cast<std::int16_t>(indice_); }

private:
    Registros& registros_;
    int indice_ = 0;
};

} // namespace eeprog
