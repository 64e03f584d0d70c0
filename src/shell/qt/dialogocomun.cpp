#include "shell/qt/dialogocomun.h"

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>

namespace eeprog {

namespace {

QStringList filtrosqt(const std::string& Filter)
{
    const QStringList partes = QString::fromStdString(Filter).split(QLatin1Char('|'));
    QStringList filtros;
    for (qsizetype i = 0; i + 1 < partes.size(); i += 2)
        filtros << partes[i] + QStringLiteral(" (") + partes[i + 1] + QLatin1Char(')');
    return filtros;
}

} // namespace

bool DialogoComun::ShowOpen()
{
    return mostrar(false);
}

bool DialogoComun::ShowSave()
{
    return mostrar(true);
}

bool DialogoComun::mostrar(bool guardar)
{
    QFileDialog dialogo(QApplication::activeWindow());
    dialogo.setAcceptMode(guardar ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialogo.setFileMode(guardar ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialogo.setOption(QFileDialog::DontConfirmOverwrite, !(Flags & preguntarreemplazo));
    dialogo.setDefaultSuffix(QString::fromStdString(DefaultExt));
    const QStringList filtros = filtrosqt(Filter);
    dialogo.setNameFilters(filtros);
    if (FilterIndex >= 1 && FilterIndex <= filtros.size())
        dialogo.selectNameFilter(filtros[FilterIndex - 1]);
    if (!FileName.empty())
        dialogo.selectFile(QFile::decodeName(QByteArray::fromStdString(FileName)));
    if (dialogo.exec() != QDialog::Accepted || dialogo.selectedFiles().isEmpty())
        return false;
    const QString elegido = dialogo.selectedFiles().constFirst();
    FileName = QFile::encodeName(elegido).toStdString();
    FileTitle = QFile::encodeName(QFileInfo(elegido).fileName()).toStdString();
    if (const qsizetype filtro = filtros.indexOf(dialogo.selectedNameFilter()); filtro >= 0)
        FilterIndex = static_cast<int>(filtro) + 1;
    return true;
}

} // namespace eeprog
