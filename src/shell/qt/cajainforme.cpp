#include "shell/qt/cajainforme.h"

#include "shell/qt/twips.h"

#include <QKeyEvent>

namespace eeprog {

CajaInforme::CajaInforme(QWidget* padre) : QPlainTextEdit(padre)
{
    QFont letra("Courier New");
    letra.setStyleHint(QFont::TypeWriter);
    letra.setPointSizeF(8.25);
    setFont(letra);
    document()->setDocumentMargin(2); // three lines fit the box's height, as they should
    setLineWrapMode(QPlainTextEdit::WidgetWidth);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

std::string CajaInforme::texto() const
{
    return toPlainText().replace(QLatin1Char('\n'), QLatin1String("\r\n")).toStdString();
}

// Setting the whole text leaves the view at the top: the newest lines lie below the
// visible part until the user scrolls, as nothing moves the view to them.
void CajaInforme::ponertexto(const std::string& texto)
{
    setPlainText(QString::fromStdString(texto).replace(QLatin1String("\r\n"), QLatin1String("\n")));
    // The newest line is the one to see.
    moveCursor(QTextCursor::End);
    ensureCursorVisible();
}

void CajaInforme::ponercolor(Color fondo)
{
    QPalette paleta = palette();
    paleta.setColor(QPalette::Base, acolorqt(fondo));
    paleta.setColor(QPalette::Text, Qt::black); // the skin colours the box, not its text
    setPalette(paleta);
}

// The menu's Ctrl shortcuts work from any place in the window, the log included, so the
// box does not keep Ctrl keys for itself; those no menu entry takes still reach it.
bool CajaInforme::event(QEvent* evento)
{
    if (evento->type() == QEvent::ShortcutOverride &&
        static_cast<QKeyEvent*>(evento)->modifiers().testFlag(Qt::ControlModifier)) {
        evento->ignore();
        return true;
    }
    return QPlainTextEdit::event(evento);
}

} // namespace eeprog
