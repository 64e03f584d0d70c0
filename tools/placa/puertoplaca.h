#pragma once

#include "link/puerto.h"
#include "placa.h"

#include <string>

namespace eeprog {

// The board wired straight to the program, with no serial line in between: replies are
// there as soon as a byte is written and waiting takes no time. It keeps a record of the
// traffic so that tests can check it byte for byte.
class PuertoPlaca : public Puerto {
public:
    // With abrible false the port behaves as one that is absent or held by another program.
    explicit PuertoPlaca(Placa& placa, bool abrible = true);

    bool abrir() override;
    void cerrar() override;
    void velocidad(long baudios) override;
    bool abierto() const override;
    void escribir(const std::string& datos) override;
    std::string leer() override;
    void esperar(int milisegundos) override;

    int esperas() const;                             // calls of esperar, whatever they asked for
    const std::string& enviados() const;             // every byte written while open
    const std::string& recibidos() const;            // every reply the board gave, read or not
    int aperturas() const;                           // successful opens
    int cierres() const;                             // closes of an open port
    long baudios() const { return velocidadpuerto; } // the speed asked for last

private:
    Placa& placa;
    bool abrible;
    bool abiertopuerto = false;
    std::string pendiente;
    std::string enviadostotal;
    std::string recibidostotal;
    int cuentaesperas = 0;
    int cuentaaperturas = 0;
    int cuentacierres = 0;
    long velocidadpuerto = 9600;
};

} // namespace eeprog
