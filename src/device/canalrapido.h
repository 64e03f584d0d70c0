#pragma once

#include "device/canal.h"
#include "link/modelo.h"
#include "link/rapido.h"

#include <array>
#include <cstdint>
#include <vector>

namespace eeprog {

// Our firmware's fast protocol: the chip read in streamed blocks, written a page at a time,
// the next page on its way while the chip writes the last. A frame that fails goes again a
// few times before the operation gives up.
class CanalRapido : public Canal {
public:
    static constexpr int intentos = 3; // sends of one frame

    // The board's version says whether its greeting takes the chip: a first version knows the
    // AT28C64B alone.
    CanalRapido(EnlaceRapido& enlace, const Modelo& modelo, int version)
        : enlace_(enlace), modelo_(modelo), version_(version)
    {}

    // The first exchange at the new speed, which names the chip; false when it failed, and
    // the caller goes back to 9600 with the board.
    bool saludar();

    std::string nombre() const override { return "protocolo rápido de 115200 baudios, por bloques y páginas"; }
    void leer(Leido& leido, const Avance& avance) override;
    std::vector<Diferencia> escribir(const std::vector<Trama>& tramas, const Avance& avance) override;
    std::vector<Diferencia> comparar(const std::vector<Trama>& tramas, const Avance& avance) override;
    bool proteger(bool poner) override;
    bool terminar() override;

    // A page of the chip and the bytes of it that are given.
    struct Pagina {
        int direccion = 0;
        std::array<std::uint8_t, rapido::tamanopagina> datos{};
        std::array<std::uint8_t, rapido::tamanopagina / 8> mascara{};
        int dados = 0;
    };

private:
    using Memoria = std::vector<std::uint8_t>;

    int bloques() const { return modelo_.tamano / rapido::tamanobloque; }
    int direccionen(int direccion) const { return direccion & (modelo_.tamano - 1); }

    void leerbloques(std::vector<bool> pedidos, Memoria& memoria, const Avance& avance);
    bool recibirbloques(int cuantos, std::vector<bool>& pedidos, Memoria& memoria, int& hechos, const Avance& avance);
    void findetrama(const Avance& avance, std::size_t envuelo);

    EnlaceRapido& enlace_;
    const Modelo& modelo_;
    int version_;
};

} // namespace eeprog
