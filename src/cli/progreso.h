#pragma once

#include <chrono>
#include <cstdio>
#include <string>

namespace eeprog {

// A time in minutes and seconds, to the nearest second: "1:05".
std::string minutos(double segundos);

// The bar an operation draws on a terminal: what it does, bytes done of the total, the rate
// and the time left. It is redrawn at most ten times a second, so a terminal that is slow to
// draw never holds the link; a run whose error output is not a terminal gets none of it.
class Progreso {
public:
    static constexpr std::chrono::milliseconds intervalo{100};

    // Nothing is drawn when salida is null.
    explicit Progreso(std::FILE* salida) : salida_(salida) {}

    void empezar(const std::string& accion, int total);
    void avanzar(int hechos);
    // Draws the last figures and ends the bar's line.
    void terminar();

private:
    void dibujar(int hechos);

    std::FILE* salida_;
    std::string accion_;
    int total_ = 0;
    int hechos_ = 0;
    bool dibujada_ = false;
    std::chrono::steady_clock::time_point inicio_{};
    std::chrono::steady_clock::time_point ultimo_{};
};

} // namespace eeprog
