#pragma once

class QCoreApplication;

namespace eeprog {

// The program speaks Spanish whatever the desktop's language: Qt's own texts (the buttons
// of the file dialogs and message boxes) are put in Spanish too, when their translation
// is installed. Without it they stay in English and nothing else changes.
void hablarespanol(QCoreApplication& aplicacion);

} // namespace eeprog
