#include "device/grabaredit.h"

#include "editor/glifos.h"
#include "link/protocolo.h"
#include "records/hexadecimal.h"

#include <algorithm>
#include <string>

namespace eeprog {

namespace {

// One address byte from two of the label's four digits; a label too short reads as 0.
int byteetiqueta(const std::string& etiqueta, std::size_t desde)
{
    const std::string_view texto(etiqueta);
    return std::stoi(hexadecimal(texto.substr(std::min(desde, texto.size()), 2)));
}

void cabecera(Enlace& enlace, const std::string& etiqueta)
{
    enlace.intercambio(protocolo::escritura);
    enlace.intercambio(protocolo::dato(protocolo::tamanobloque));
    enlace.intercambio(protocolo::dato(byteetiqueta(etiqueta, 0)));
    enlace.intercambio(protocolo::dato(byteetiqueta(etiqueta, 2)));
    enlace.intercambio(protocolo::dato(protocolo::tipodatos));
}

// A cleared cell still owes the frame its byte: sending nothing would leave the board
// waiting for it, and the next frame's "w" would land in the chip as data. It goes out as
// the erased value that fghex shows for it.
std::string bytecelda(const std::string& celda)
{
    return celda.empty() ? protocolo::dato(0xFF) : celda;
}

} // namespace

void grabaredit(Enlace& enlace, const Cuadriculas& cuadriculas, int filaeditada, PantallaOperacion pantalla)
{
    int enviadas = 0;
    pantalla.ProgressBar1.maximo((filaeditada + 1) * static_cast<double>(protocolo::tamanobloque));
    for (int fila = 0; fila <= filaeditada; ++fila) {
        cabecera(enlace, cuadriculas.fgdir.TextMatrix(fila, 0));
        for (int columna = 0; columna < columnasrejilla; ++columna) {
            const std::string& celda = cuadriculas.fgascii.TextMatrix(fila, columna);
            enlace.intercambio(bytecelda(celda));
            // The panel shows the byte by its glyph, as the grid does.
            pantalla.StatusBar1.panel(1, "Enviando... " + textovisible(celda));
            pantalla.ProgressBar1.valor(++enviadas);
        }
    }
}

int bytesgrabados(int filaeditada)
{
    return filaeditada == 0 ? 0 : (filaeditada + 1) * protocolo::tamanobloque;
}

} // namespace eeprog
