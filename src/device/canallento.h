#pragma once

#include "device/canal.h"
#include "link/enlace.h"

namespace eeprog {

// The window's protocol at 9600 baud, one byte an exchange: every board speaks it, for the
// AT28C64B alone.
class CanalLento : public Canal {
public:
    explicit CanalLento(Enlace& enlace) : enlace_(enlace) {}

    std::string nombre() const override { return "protocolo de 9600 baudios, un byte por intercambio"; }
    void leer(Leido& leido, const Avance& avance) override;
    std::vector<Diferencia> escribir(const std::vector<Trama>& tramas, const Avance& avance) override;
    std::vector<Diferencia> comparar(const std::vector<Trama>& tramas, const Avance& avance) override;
    bool proteger(bool poner) override;

private:
    Enlace& enlace_;
};

} // namespace eeprog
