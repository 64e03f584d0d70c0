#include "editor/editorhex.h"

#include "records/hexadecimal.h"

#include <string>

namespace eeprog {

namespace {

bool esdigito(int tecla)
{
    return (tecla >= '0' && tecla <= '9') || (tecla >= 'A' && tecla <= 'F');
}

} // namespace

EditorHex::EditorHex(Cuadriculas& cuadriculas, CajaCelda& HEXcelda, Edicion& edicion, Timbre& timbre)
    : Superpuesta(cuadriculas.fghex, lugarfghex, HEXcelda, edicion), cuadriculas_(cuadriculas), timbre_(timbre)
{}

void EditorHex::fghex_EnterCell()
{
    entrarcelda();
}

void EditorHex::HEXcelda_KeyPress(int& tecla)
{
    if (!esdigito(tecla)) {
        timbre_.Beep();
        tecla = 0;
        return;
    }
    const char digito = static_cast<char>(tecla);
    if (++edicion_.cuentadigitos == 1) {
        caja_.Text("");
        edicion_.textocelda = std::string(1, digito);
    }
    edicion_.celdafila = rejilla_.RowSel();
    edicion_.celdacolumna = rejilla_.ColSel();
    if (edicion_.cuentadigitos == 2) {
        edicion_.textocelda += digito;
        siguientecelda();
        edicion_.cuentadigitos = 0;
    }
}

void EditorHex::HEXcelda_Change()
{
    const std::string texto = caja_.Text();
    if (texto.size() <= 2)
        return;
    cuadriculas_.fghex.TextMatrix(edicion_.celdafila, edicion_.celdacolumna, edicion_.textocelda);
    const int valor = std::stoi(hexadecimal(edicion_.textocelda));
    cuadriculas_.fgascii.TextMatrix(edicion_.celdafila, edicion_.celdacolumna,
                                    std::string(1, static_cast<char>(valor)));
    marcarfila(edicion_.celdafila);
    caja_.Text(texto.substr(1, 2));
}

} // namespace eeprog
