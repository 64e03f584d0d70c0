#include "editor/celdas.h"

#include <algorithm>

namespace eeprog {

void Celdas::dimensionar(int filas, int columnas)
{
    filas = std::max(filas, 0);
    columnas = std::max(columnas, 0);
    std::vector<std::string> nuevos(static_cast<std::size_t>(filas) * static_cast<std::size_t>(columnas));
    for (int f = 0; f < std::min(filas, filas_); ++f)
        for (int c = 0; c < std::min(columnas, columnas_); ++c)
            nuevos[static_cast<std::size_t>(f) * static_cast<std::size_t>(columnas) + static_cast<std::size_t>(c)] =
                std::move(textos_[indice(f, c)]);
    textos_ = std::move(nuevos);
    filas_ = filas;
    columnas_ = columnas;
}

bool Celdas::existe(int fila, int columna) const
{
    return fila >= 0 && fila < filas_ && columna >= 0 && columna < columnas_;
}

const std::string& Celdas::texto(int fila, int columna) const
{
    return textos_[indice(fila, columna)];
}

void Celdas::ponertexto(int fila, int columna, std::string_view texto)
{
    textos_[indice(fila, columna)].assign(texto);
}

std::size_t Celdas::indice(int fila, int columna) const
{
    return static_cast<std::size_t>(fila) * static_cast<std::size_t>(columnas_) + static_cast<std::size_t>(columna);
}

} // namespace eeprog
