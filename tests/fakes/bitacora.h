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

inline void anotar(Bitacora* bitacora, std::string suceso)
{
    if (bitacora)
        bitacora->anotar(std::move(suceso));
}

} // namespace eeprog::prueba
