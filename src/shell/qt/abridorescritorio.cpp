#include "shell/qt/abridorescritorio.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

namespace eeprog {

// Some desktops answer a missing file with a message of their own; the program shows
// nothing then, so it does not ask them.
void AbridorEscritorio::abrir(const std::string& ruta)
{
    const QString archivo = QString::fromStdString(ruta);
    if (!QFileInfo(archivo).isFile())
        return;
    QDesktopServices::openUrl(QUrl::fromLocalFile(archivo));
}

} // namespace eeprog
