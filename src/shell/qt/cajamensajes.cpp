#include "shell/qt/cajamensajes.h"

#include <QApplication>
#include <QMessageBox>

namespace eeprog {

namespace {

QMessageBox::Icon iconoqt(Icono icono)
{
    switch (icono) {
    case Icono::exclamacion:
        return QMessageBox::Warning;
    case Icono::critico:
        return QMessageBox::Critical;
    case Icono::informacion:
        return QMessageBox::Information;
    case Icono::ninguno:
        break;
    }
    return QMessageBox::NoIcon;
}

} // namespace

void CajaMensajes::mostrar(const Aviso& aviso)
{
    QString texto = QString::fromStdString(aviso.texto).replace(QLatin1String("\r\n"), QLatin1String("\n"));
    // A box without a title of its own takes the program's name, as on the desktop.
    const QString titulo =
        aviso.titulo.empty() ? QApplication::applicationName() : QString::fromStdString(aviso.titulo);
    QMessageBox caja(iconoqt(aviso.icono), titulo, texto, QMessageBox::Ok, QApplication::activeWindow());
    caja.setTextFormat(Qt::PlainText);
    caja.exec();
}

} // namespace eeprog
