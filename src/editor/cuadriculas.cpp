#include "editor/cuadriculas.h"

#include "records/hexadecimal.h"

namespace eeprog {

namespace {

constexpr int anchodir = 500;
constexpr int anchohex = 300;
constexpr int anchoascii = 200;
constexpr int altoascii = 270;

void formar(Rejilla& rejilla, int columnas, int ancho)
{
    rejilla.Cols(columnas);
    rejilla.Rows(filasrejilla);
    for (int columna = 0; columna < columnas; ++columna)
        rejilla.ColWidth(columna, ancho);
}

void llenar(Rejilla& rejilla, std::string_view texto)
{
    for (int fila = 0; fila < rejilla.Rows(); ++fila)
        for (int columna = 0; columna < rejilla.Cols(); ++columna)
            rejilla.TextMatrix(fila, columna, texto);
}

} // namespace

void dibujareditor(Cuadriculas& cuadriculas)
{
    Rejilla& fgdir = cuadriculas.fgdir;
    formar(fgdir, 1, anchodir);
    fgdir.FormatString("^");
    for (int fila = 0; fila < filasrejilla; ++fila)
        fgdir.TextMatrix(fila, 0, cuatrocifras(fila * 16L));

    formar(cuadriculas.fghex, columnasrejilla, anchohex);
    llenar(cuadriculas.fghex, "FF");

    formar(cuadriculas.fgascii, columnasrejilla, anchoascii);
    cuadriculas.fgascii.RowHeight(altoascii);
    llenar(cuadriculas.fgascii, std::string(1, static_cast<char>(255)));
}

void colorearcuadriculas(Cuadriculas& cuadriculas, Color fondo, Color lineas)
{
    for (Rejilla* rejilla : {&cuadriculas.fgdir, &cuadriculas.fghex, &cuadriculas.fgascii}) {
        rejilla->BackColor(fondo);
        rejilla->GridColor(lineas);
    }
}

void ponerbyte(Cuadriculas& cuadriculas, int fila, int columna, int valor)
{
    cuadriculas.fgascii.TextMatrix(fila, columna, std::string(1, static_cast<char>(valor)));
    cuadriculas.fghex.TextMatrix(fila, columna, doscifras(valor));
}

} // namespace eeprog
