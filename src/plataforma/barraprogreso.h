#pragma once

namespace eeprog {

// The progress bar, driven by the device operations; never read back.
class BarraProgreso {
public:
    virtual ~BarraProgreso() = default;
    virtual void maximo(double valor) = 0;
    virtual void valor(double valor) = 0;
};

} // namespace eeprog
