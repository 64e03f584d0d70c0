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
        break;
    }
    return QMessageBox::Information;
}

} // namespace

void CajaMensajes::mostrar(const Aviso& aviso)
{
    QString texto = QString::fromStdString(aviso.texto).replace(QLatin1String("\r\n"), QLatin1String("\n"));
    QMessageBox caja(iconoqt(aviso.icono), QString::fromStdString(aviso.titulo), texto, QMessageBox::Ok,
                     QApplication::activeWindow());
    caja.setTextFormat(Qt::PlainText);
    caja.exec();
}

} // namespace eeprog
