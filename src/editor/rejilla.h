#pragma once

#include "editor/celdas.h"
#include "plataforma/color.h"

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace eeprog {

enum class Alineacion { general, izquierda, centro, derecha };

// What changed in a grid, so that the widget that draws it knows what to do.
enum class Cambio { celdas, forma, posicion, aspecto };

// The keys that move the current cell: arrows, page up and down, Home and End within the
// row, and Ctrl+Home, Ctrl+End for the first and the last cell.
enum class Tecla { arriba, abajo, izquierda, derecha, paginaarriba, paginaabajo, inicio, fin, principio, final };

// One grid of the memory editor: a table of cell texts, the current cell, the far end of
// the selection, and the first visible row and column. Lengths are in twips; every row
// has the same height. There are no header rows or columns: row 0 is a row of data.
//
// Events are raised synchronously, before the operation that caused them returns, and
// only on a real change. Handlers may write to each other's grids: since an unchanged
// value raises nothing, a chain of such writes ends by itself.
//
// A row or column outside the grid is brought to the nearest one that exists; a cell
// outside reads as empty and takes no text.
class Rejilla {
public:
    std::function<void()> Scroll;
    std::function<void()> EnterCell;
    std::function<void()> MouseUp;
    // The widget that draws the grid hears of each change that it may have to show. Writes
    // to cells out of sight are not reported, so filling the whole grid costs no drawing.
    std::function<void(Cambio)> alcambiar;

    int Rows() const { return celdas_.filas(); }
    void Rows(int filas);
    int Cols() const { return celdas_.columnas(); }
    void Cols(int columnas);
    int ColWidth(int columna) const;
    void ColWidth(int columna, int twips);
    int RowHeight() const { return altofila_; }
    void RowHeight(int twips);
    Alineacion ColAlignment(int columna) const;
    // One mark a column, the columns apart by "|": "<" left, "^" centred, ">" right.
    void FormatString(std::string_view formato);

    Color BackColor() const { return fondo_; }
    void BackColor(Color color);
    Color GridColor() const { return lineas_; }
    void GridColor(Color color);

    const std::string& TextMatrix(int fila, int columna) const;
    void TextMatrix(int fila, int columna, std::string_view texto);
    const std::string& Text() const { return TextMatrix(fila_, columna_); }

    int Row() const { return fila_; }
    void Row(int fila);
    int Col() const { return columna_; }
    void Col(int columna);
    int RowSel() const { return filasel_; }
    int ColSel() const { return columnasel_; }
    int TopRow() const { return toprow_; }
    void TopRow(int fila);
    int LeftCol() const { return leftcol_; }
    void LeftCol(int columna);
    int MouseRow() const { return mousefila_; }
    int MouseCol() const { return mousecolumna_; }

    // The current cell's rectangle, from the top left corner of the visible cells.
    int CellLeft() const;
    int CellTop() const;
    int CellWidth() const { return ColWidth(columna_); }
    int CellHeight() const { return altofila_; }

    // The widget tells the grid how much room its cells have.
    void areavisible(int ancho, int alto);
    // Rows that fit whole in the visible area; at least one.
    int filasvisibles() const;
    int maximotoprow() const;
    int maximoleftcol() const;
    // Distance of a column's left edge from the left edge of column 0.
    int posicioncolumna(int columna) const;
    // The cell under a point of the visible area; a point outside gives the nearest cell.
    std::pair<int, int> celdaen(int x, int y) const;

    // The mouse, as the widget reports it in cells.
    void pulsar(int fila, int columna);
    void arrastrar(int fila, int columna);
    void soltar(int fila, int columna);
    // The keyboard: the current cell moves and comes into sight.
    void mover(Tecla tecla);

private:
    void apuntar(int fila, int columna);
    void ponercelda(int fila, int columna);
    void mostrarcelda(int fila, int columna);
    int filavalida(int fila) const;
    int columnavalida(int columna) const;
    void avisar(Cambio cambio) const;
    static void lanzar(const std::function<void()>& evento);

    Celdas celdas_;
    std::vector<int> anchos_;
    std::vector<Alineacion> alineaciones_;
    int altofila_ = 270;
    Color fondo_{255, 255, 255};
    Color lineas_{192, 192, 192};
    int fila_ = 0;
    int columna_ = 0;
    int filasel_ = 0;
    int columnasel_ = 0;
    int toprow_ = 0;
    int leftcol_ = 0;
    int mousefila_ = 0;
    int mousecolumna_ = 0;
    int anchovisible_ = 0;
    int altovisible_ = 0;
};

} // namespace eeprog
