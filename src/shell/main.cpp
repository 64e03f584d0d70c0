#include "shell/qt/idioma.h"
#include "shell/qt/ventanaform1.h"

#include <QApplication>

int main(int argc, char* argv[])
{
    QApplication aplicacion(argc, argv);
    eeprog::hablarespanol(aplicacion);
    eeprog::VentanaForm1 Form1;
    Form1.show();
    return aplicacion.exec();
}
