#include "shell/qt/cajainforme.h"

#include "shell/qt/twips.h"

#include <QKeyEvent>
#include <QScrollBar>

#include <algorithm>

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
    setTabChangesFocus(true); // Tab goes on to the next control; a tab typed here would stay in every report
}

std::string CajaInforme::texto() const
{
    return toPlainText().replace(QLatin1Char('\n'), QLatin1String("\r\n")).toStdString();
}

// Nothing moves the view or the caret to a new line: they stay where they were, and
// after more lines than the box shows, the newest lie below until the user scrolls.
// A writer nearly always adds to the end, and only that part is put in then.
void CajaInforme::ponertexto(const std::string& texto)
{
    const QString nuevo = QString::fromStdString(texto).replace(QLatin1String("\r\n"), QLatin1String("\n"));
    const QString viejo = toPlainText();
    const int ancla = textCursor().anchor();
    const int caret = textCursor().position();
    const int arriba = verticalScrollBar()->value();
    if (nuevo.startsWith(viejo)) {
        QTextCursor final(document());
        final.movePosition(QTextCursor::End);
        final.insertText(nuevo.mid(viejo.size()));
    } else {
        setPlainText(nuevo);
    }
    QTextCursor vuelta(document());
    const int ultimo = static_cast<int>(nuevo.size());
    vuelta.setPosition(std::min(ancla, ultimo));
    vuelta.setPosition(std::min(caret, ultimo), QTextCursor::KeepAnchor);
    setTextCursor(vuelta);
    verticalScrollBar()->setValue(arriba);
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
