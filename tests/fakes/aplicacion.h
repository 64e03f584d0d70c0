#pragma once

#include <QApplication>

namespace eeprog::prueba {

// The one QApplication of a GUI test program. Unless told otherwise it draws on Qt's
// offscreen platform, so the tests need no display; QT_QPA_PLATFORM=xcb shows them.
inline void crearaplicacion()
{
    static int argc = 1;
    static char* argv[] = {const_cast<char*>("eeprog_test"), nullptr};
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (!QApplication::instance())
        new QApplication(argc, argv);
}

} // namespace eeprog::prueba
