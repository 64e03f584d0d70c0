#include "editor/editorascii.h"

#include "records/hexadecimal.h"

namespace eeprog {

EditorAscii::EditorAscii(Cuadriculas& cuadriculas, CajaCelda& txtcelda, Edicion& edicion)
    : Superpuesta(cuadriculas.fgascii, lugarfgascii, txtcelda, edicion), cuadriculas_(cuadriculas)
{}

void EditorAscii::fgascii_EnterCell()
{
    entrarcelda();
}

void EditorAscii::txtcelda_KeyPress(int&)
{
    siguientecelda();
}

// fghex gets the plain rendering of the code, so a code below 16 shows as one digit.
void EditorAscii::txtcelda_Change()
{
    const std::string texto = caja_.Text();
    if (texto.size() <= 1)
        return;
    const std::string lblcelda = texto.substr(0, 1);
    caja_.Text(texto.substr(1, 1));
    cuadriculas_.fgascii.TextMatrix(edicion_.celdafila, edicion_.celdacolumna, lblcelda);
    cuadriculas_.fghex.TextMatrix(edicion_.celdafila, edicion_.celdacolumna,
                                  hexa(static_cast<unsigned char>(lblcelda.front())));
    marcarfila(edicion_.celdafila);
}

} // namespace eeprog
