#pragma once

#include "bitacora.h"
#include "link/puerto.h"

#include <functional>

namespace eeprog::prueba {

// A port that follows a script: bytes become readable at a given read, counted from the
// port's first read. Time is counted in reads, so the tests need no clock.
struct PuertoGuion : Puerto, Grabador {
    using Grabador::Grabador;
    // The bytes can be read from the given read on (1 is the next read).
    void llegara(std::string datos, int enlalectura = 1) { pendientes.push_back({lecturas + enlalectura, datos}); }
    // Called with each text written to an open port, to script the board's answer.
    std::function<void(const std::string&)> alescribir;

    bool abiertoahora = false;
    int lecturas = 0;
    int pausas = 0;
    std::vector<std::pair<int, std::string>> pendientes; // the read they arrive at, and the bytes

    bool abrir() override { return abiertoahora = anotar("abrir", true); }
    void cerrar() override { abiertoahora = anotar("cerrar", false); }
    bool abierto() const override { return abiertoahora; }
    void velocidad(long baudios) override { anotar("velocidad " + std::to_string(baudios)); }
    void escribir(const std::string& datos) override
    {
        if (anotar("escribir " + datos, abiertoahora) && alescribir)
            alescribir(datos);
    }
    std::string leer() override
    {
        std::string llegado;
        ++lecturas;
        std::erase_if(pendientes, [&](const auto& p) { return p.first <= lecturas && (llegado += p.second, true); });
        return anotar("leer", llegado);
    }
    void esperar(int milisegundos) override
    {
        ++pausas;
        anotar("esperar " + std::to_string(milisegundos));
    }
};

} // namespace eeprog::prueba
