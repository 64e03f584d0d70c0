#include "cli/progreso.h"

#include <algorithm>

namespace eeprog {

namespace {

constexpr int anchobarra = 30;

} // namespace

std::string minutos(double segundos)
{
    const int total = static_cast<int>(segundos + 0.5);
    char texto[16];
    std::snprintf(texto, sizeof texto, "%d:%02d", total / 60, total % 60);
    return texto;
}

void Progreso::empezar(const std::string& accion, int total)
{
    accion_ = accion;
    total_ = std::max(total, 1);
    hechos_ = 0;
    inicio_ = std::chrono::steady_clock::now();
    ultimo_ = {};
    dibujada_ = false;
}

void Progreso::avanzar(int hechos)
{
    hechos_ = hechos;
    const auto ahora = std::chrono::steady_clock::now();
    if (salida_ == nullptr || ahora - ultimo_ < intervalo)
        return;
    ultimo_ = ahora;
    dibujar(hechos);
}

void Progreso::terminar()
{
    if (salida_ == nullptr || !dibujada_)
        return;
    dibujar(hechos_);
    std::fputc('\n', salida_);
    std::fflush(salida_);
    dibujada_ = false;
}

// Carriage return and clear to the end of the line: the bar overwrites itself.
void Progreso::dibujar(int hechos)
{
    const double segundos = std::chrono::duration<double>(std::chrono::steady_clock::now() - inicio_).count();
    const double ritmo = segundos > 0 ? hechos / segundos : 0;
    const int llenos = anchobarra * std::clamp(hechos, 0, total_) / total_;
    const std::string barra = std::string(static_cast<std::size_t>(llenos), '#') +
                              std::string(static_cast<std::size_t>(anchobarra - llenos), '.');
    // The rate of the first instants says little about the rest.
    const std::string quedan = segundos >= 1 && ritmo > 0 ? minutos((total_ - hechos) / ritmo) : "-:--";
    std::fprintf(salida_, "\r%-11s [%s] %5d/%d bytes  %4.0f B/s  quedan %s\033[K", accion_.c_str(), barra.c_str(),
                 hechos, total_, ritmo, quedan.c_str());
    std::fflush(salida_);
    dibujada_ = true;
}

} // namespace eeprog
