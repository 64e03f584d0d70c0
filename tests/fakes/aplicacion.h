#pragma once

#include <QApplication>

namespace eeprog::prueba {

// The one QApplication of a GUI test program. Unless told otherwise it draws on Qt's
// offscreen platform, so the tests need no display; QT_QPA_PLATFORM=xcb shows them.
inline void crearaplicacion()
{
    if (QApplication::instance())
        return;
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    static int argc = 1;
    static char nombre[] = "eeprog_test";
    static char* argv[] = {nombre, nullptr};
    new QApplication(argc, argv);
}

} // namespace eeprog::prueba
