#include "shell/qt/idioma.h"
#include "shell/qt/programa.h"

#include <QApplication>

int main(int argc, char* argv[])
{
    QApplication aplicacion(argc, argv);
    eeprog::hablarespanol(aplicacion);
    eeprog::prepararaplicacion();
    eeprog::Programa programa;
    return aplicacion.exec();
}
