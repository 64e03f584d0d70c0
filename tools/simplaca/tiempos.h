#pragma once

#include "chipmodelo.h"

#include <cstdint>
#include <string>

namespace eeprog {

// The board's own time and the chip's write cycles for each session of the port, from the
// first byte heard to the last one sent: a line each, appended to the file as the session
// ends, in seconds and cycles.
class Tiempos {
public:
    Tiempos(std::string ruta, const ChipModelo& chip) : ruta(std::move(ruta)), chip(chip) {}

    void oido(std::int64_t ahora);
    void dicho(std::int64_t ahora) { hasta = ahora; }
    const std::string& archivo() const { return ruta; }
    // False when the file cannot be written.
    bool cerrada();

private:
    std::string ruta;
    const ChipModelo& chip;
    bool ensesion = false;
    std::int64_t desde = 0;
    std::int64_t hasta = 0;
    int ciclos = 0;
};

} // namespace eeprog
