#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace eeprog {

// The texts of a grid's cells, row by row. A text is bytes, one character a byte, and a
// byte 0 is a character like any other; a cell may also hold nothing at all.
class Celdas {
public:
    // Keeps the texts of the cells that are still inside; new cells are empty.
    void dimensionar(int filas, int columnas);

    int filas() const { return filas_; }
    int columnas() const { return columnas_; }
    bool existe(int fila, int columna) const;

    // Both take a cell that exists; the grid checks before it asks.
    const std::string& texto(int fila, int columna) const;
    void ponertexto(int fila, int columna, std::string_view texto);

private:
    std::size_t indice(int fila, int columna) const;

    int filas_ = 0;
    int columnas_ = 0;
    std::vector<std::string> textos_;
};

} // namespace eeprog
