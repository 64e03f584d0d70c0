#pragma once

#include "link/puerto.h"

#include <QSerialPort>

#include <string>

namespace eeprog {

// The device that stands for serial port 1: EEPROG_COM1 when it names one (a USB adapter,
// the emulator's pseudo-terminal), else the first serial port of the system.
std::string nombrepuerto();

// The board's serial port, 8N1 with no flow control at 9600 baud or the fast protocol's
// speed, used by polling alone.
class PuertoSerie : public Puerto {
public:
    explicit PuertoSerie(std::string dispositivo = nombrepuerto());

    bool abrir() override;
    void cerrar() override;
    void velocidad(long baudios) override;
    bool abierto() const override;
    void escribir(const std::string& datos) override;
    std::string leer() override;
    void esperar(int milisegundos) override;

    const std::string& dispositivo() const { return dispositivo_; }

private:
    void configurar();

    std::string dispositivo_;
    QSerialPort puerto_;
};

} // namespace eeprog
