#include "shell/qt/idioma.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace eeprog {

void hablarespanol(QCoreApplication& aplicacion)
{
    const QLocale espanol(QLocale::Spanish, QLocale::Spain);
    QLocale::setDefault(espanol);
    auto* traductor = new QTranslator(&aplicacion);
    if (traductor->load(espanol, QStringLiteral("qtbase"), QStringLiteral("_"),
                        QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(traductor);
    else
        delete traductor;
}

} // namespace eeprog
