#pragma once

#include <string>
#include <vector>

namespace eeprog::prueba {

// One list of what the fakes were asked to do, in the order it happened, so that a test
// can check the order of steps across several of them.
struct Bitacora {
    std::vector<std::string> sucesos;
    void anotar(std::string suceso) { sucesos.push_back(std::move(suceso)); }
};

// The base of the recording fakes: each request goes to the shared Bitacora, if given one.
struct Grabador {
    explicit Grabador(Bitacora* bitacora = nullptr) : bitacora(bitacora) {}
    Bitacora* bitacora;

    // Notes the request and gives back the value, so that a setter takes one line.
    template <typename T = bool> T anotar(const std::string& suceso, T valor = {}) const
    {
        if (bitacora)
            bitacora->anotar(suceso);
        return valor;
    }
};

} // namespace eeprog::prueba
