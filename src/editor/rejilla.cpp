#include "editor/rejilla.h"

#include <algorithm>

namespace eeprog {

namespace {

constexpr int anchoinicial = 960;

const std::string& vacio()
{
    static const std::string texto;
    return texto;
}

Alineacion alineacionde(std::string_view marca)
{
    if (marca.find('^') != std::string_view::npos)
        return Alineacion::centro;
    if (marca.find('>') != std::string_view::npos)
        return Alineacion::derecha;
    if (marca.find('<') != std::string_view::npos)
        return Alineacion::izquierda;
    return Alineacion::general;
}

} // namespace

void Rejilla::Rows(int filas)
{
    celdas_.dimensionar(filas, Cols());
    fila_ = filavalida(fila_);
    filasel_ = filavalida(filasel_);
    toprow_ = std::min(toprow_, maximotoprow());
    avisar(Cambio::forma);
}

void Rejilla::Cols(int columnas)
{
    celdas_.dimensionar(Rows(), columnas);
    anchos_.resize(static_cast<std::size_t>(Cols()), anchoinicial);
    alineaciones_.resize(static_cast<std::size_t>(Cols()), Alineacion::general);
    columna_ = columnavalida(columna_);
    columnasel_ = columnavalida(columnasel_);
    leftcol_ = std::min(leftcol_, maximoleftcol());
    avisar(Cambio::forma);
}

int Rejilla::ColWidth(int columna) const
{
    if (columna < 0 || columna >= Cols())
        return 0;
    return anchos_[static_cast<std::size_t>(columna)];
}

void Rejilla::ColWidth(int columna, int twips)
{
    if (columna < 0 || columna >= Cols())
        return;
    anchos_[static_cast<std::size_t>(columna)] = std::max(twips, 0);
    avisar(Cambio::forma);
}

void Rejilla::RowHeight(int twips)
{
    altofila_ = std::max(twips, 1);
    toprow_ = std::min(toprow_, maximotoprow());
    avisar(Cambio::forma);
}

Alineacion Rejilla::ColAlignment(int columna) const
{
    if (columna < 0 || columna >= Cols())
        return Alineacion::general;
    return alineaciones_[static_cast<std::size_t>(columna)];
}

void Rejilla::FormatString(std::string_view formato)
{
    std::size_t columna = 0;
    while (columna < alineaciones_.size()) {
        const std::size_t fin = formato.find('|');
        alineaciones_[columna++] = alineacionde(formato.substr(0, fin));
        if (fin == std::string_view::npos)
            break;
        formato.remove_prefix(fin + 1);
    }
    avisar(Cambio::aspecto);
}

void Rejilla::BackColor(Color color)
{
    fondo_ = color;
    avisar(Cambio::aspecto);
}

void Rejilla::GridColor(Color color)
{
    lineas_ = color;
    avisar(Cambio::aspecto);
}

const std::string& Rejilla::TextMatrix(int fila, int columna) const
{
    return celdas_.existe(fila, columna) ? celdas_.texto(fila, columna) : vacio();
}

void Rejilla::TextMatrix(int fila, int columna, std::string_view texto)
{
    if (!celdas_.existe(fila, columna))
        return;
    celdas_.ponertexto(fila, columna, texto);
    if (fila >= toprow_ && fila <= toprow_ + filasvisibles())
        avisar(Cambio::celdas);
}

// A run of typing moves the current cell by these writes; the cell comes into sight, so
// that the editor's box, put over it, stays on the grid.
void Rejilla::Row(int fila)
{
    fila = filavalida(fila);
    mostrarcelda(fila, columna_);
    ponercelda(fila, columna_);
}

void Rejilla::Col(int columna)
{
    columna = columnavalida(columna);
    mostrarcelda(fila_, columna);
    ponercelda(fila_, columna);
}

void Rejilla::TopRow(int fila)
{
    fila = std::clamp(fila, 0, maximotoprow());
    if (fila == toprow_)
        return;
    toprow_ = fila;
    avisar(Cambio::posicion);
    lanzar(Scroll);
}

// Columns scroll on their own: the top row that a Scroll handler reads is unchanged.
void Rejilla::LeftCol(int columna)
{
    columna = std::clamp(columna, 0, maximoleftcol());
    if (columna == leftcol_)
        return;
    leftcol_ = columna;
    avisar(Cambio::posicion);
    lanzar(Scroll);
}

int Rejilla::CellLeft() const
{
    return posicioncolumna(columna_) - posicioncolumna(leftcol_);
}

int Rejilla::CellTop() const
{
    return (fila_ - toprow_) * altofila_;
}

void Rejilla::areavisible(int ancho, int alto)
{
    anchovisible_ = std::max(ancho, 0);
    altovisible_ = std::max(alto, 0);
    avisar(Cambio::forma);
    LeftCol(leftcol_);
    TopRow(toprow_);
}

int Rejilla::filasvisibles() const
{
    return std::max(altovisible_ / altofila_, 1);
}

int Rejilla::maximotoprow() const
{
    return std::max(Rows() - filasvisibles(), 0);
}

int Rejilla::maximoleftcol() const
{
    int ocupado = 0;
    for (int columna = Cols() - 1; columna >= 0; --columna) {
        ocupado += ColWidth(columna);
        if (ocupado > anchovisible_)
            return std::min(columna + 1, Cols() - 1);
    }
    return 0;
}

int Rejilla::posicioncolumna(int columna) const
{
    int posicion = 0;
    for (int c = 0; c < std::min(columna, Cols()); ++c)
        posicion += ColWidth(c);
    return posicion;
}

std::pair<int, int> Rejilla::celdaen(int x, int y) const
{
    const int fila = toprow_ + (y < 0 ? 0 : y / altofila_);
    int columna = leftcol_;
    for (int borde = ColWidth(columna); x >= borde && columna < Cols() - 1; borde += ColWidth(columna))
        ++columna;
    return {filavalida(fila), columnavalida(columna)};
}

// A press makes the cell current and starts a selection there; a drag moves only the
// selection's far end, so the current cell stays where the drag began.
void Rejilla::pulsar(int fila, int columna)
{
    apuntar(fila, columna);
    ponercelda(mousefila_, mousecolumna_);
}

void Rejilla::arrastrar(int fila, int columna)
{
    apuntar(fila, columna);
    if (filasel_ != mousefila_ || columnasel_ != mousecolumna_) {
        filasel_ = mousefila_;
        columnasel_ = mousecolumna_;
        avisar(Cambio::posicion);
    }
}

void Rejilla::soltar(int fila, int columna)
{
    apuntar(fila, columna);
    lanzar(MouseUp);
}

void Rejilla::apuntar(int fila, int columna)
{
    mousefila_ = filavalida(fila);
    mousecolumna_ = columnavalida(columna);
}

void Rejilla::mover(Tecla tecla)
{
    int fila = fila_;
    int columna = columna_;
    const int pagina = filasvisibles();
    switch (tecla) {
    case Tecla::arriba:
        --fila;
        break;
    case Tecla::abajo:
        ++fila;
        break;
    case Tecla::izquierda:
        --columna;
        break;
    case Tecla::derecha:
        ++columna;
        break;
    case Tecla::paginaarriba:
        fila -= pagina;
        TopRow(toprow_ - pagina);
        break;
    case Tecla::paginaabajo:
        fila += pagina;
        TopRow(toprow_ + pagina);
        break;
    case Tecla::inicio:
        columna = 0;
        break;
    case Tecla::fin:
        columna = Cols() - 1;
        break;
    case Tecla::principio:
        fila = columna = 0;
        break;
    case Tecla::final:
        fila = Rows() - 1;
        columna = Cols() - 1;
        break;
    }
    fila = filavalida(fila);
    columna = columnavalida(columna);
    mostrarcelda(fila, columna);
    ponercelda(fila, columna);
}

// The view scrolls first, so that a handler of EnterCell finds the cell where it is drawn.
void Rejilla::mostrarcelda(int fila, int columna)
{
    if (fila < toprow_)
        TopRow(fila);
    else if (fila >= toprow_ + filasvisibles())
        TopRow(fila - filasvisibles() + 1);
    if (columna < leftcol_)
        LeftCol(columna);
    while (columna > leftcol_ && posicioncolumna(columna + 1) - posicioncolumna(leftcol_) > anchovisible_ &&
           leftcol_ < maximoleftcol())
        LeftCol(leftcol_ + 1);
}

void Rejilla::ponercelda(int fila, int columna)
{
    const bool otra = fila != fila_ || columna != columna_;
    fila_ = filasel_ = fila;
    columna_ = columnasel_ = columna;
    avisar(Cambio::posicion);
    if (otra)
        lanzar(EnterCell);
}

int Rejilla::filavalida(int fila) const
{
    return std::clamp(fila, 0, std::max(Rows() - 1, 0));
}

int Rejilla::columnavalida(int columna) const
{
    return std::clamp(columna, 0, std::max(Cols() - 1, 0));
}

void Rejilla::avisar(Cambio cambio) const
{
    if (alcambiar)
        alcambiar(cambio);
}

void Rejilla::lanzar(const std::function<void()>& evento)
{
    if (evento)
        evento();
}

} // namespace eeprog
