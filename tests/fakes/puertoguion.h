#pragma once

#include "bitacora.h"
#include "link/puerto.h"

#include <functional>
#include <string>
#include <vector>

namespace eeprog::prueba {

// A port that follows a script: bytes become readable at a given read, counted from the
// port's first read. Time is counted in reads, so the tests need no clock.
class PuertoGuion : public Puerto {
public:
    explicit PuertoGuion(Bitacora* bitacora = nullptr) : bitacora_(bitacora) {}

    // The bytes can be read from the given read on (1 is the next read).
    void llegara(std::string datos, int enlalectura = 1)
    {
        pendientes_.push_back({lecturas + enlalectura, std::move(datos)});
    }

    // Called with each text written to an open port, to script the board's answer.
    std::function<void(const std::string&)> alescribir;

    bool abrible = true;
    bool abiertoahora = false;
    int lecturas = 0;
    int esperas = 0;
    int aperturas = 0;
    std::string enviados;

    bool abrir() override
    {
        anotar(bitacora_, "abrir");
        abiertoahora = abrible;
        aperturas += abrible ? 1 : 0;
        return abrible;
    }
    void cerrar() override
    {
        anotar(bitacora_, "cerrar");
        abiertoahora = false;
    }
    bool abierto() const override { return abiertoahora; }
    void escribir(const std::string& datos) override
    {
        anotar(bitacora_, "escribir " + datos);
        if (!abiertoahora)
            return;
        enviados += datos;
        if (alescribir)
            alescribir(datos);
    }
    std::string leer() override
    {
        ++lecturas;
        std::string llegado;
        std::erase_if(pendientes_, [&](const Llegada& l) {
            if (l.lectura > lecturas)
                return false;
            llegado += l.datos;
            return true;
        });
        anotar(bitacora_, "leer");
        return llegado;
    }
    void esperar(int milisegundos) override
    {
        ++esperas;
        anotar(bitacora_, "esperar " + std::to_string(milisegundos));
    }

private:
    struct Llegada {
        int lectura;
        std::string datos;
    };
    Bitacora* bitacora_;
    std::vector<Llegada> pendientes_;
};

} // namespace eeprog::prueba
