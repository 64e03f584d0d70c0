#include "shell/qt/teclas.h"

#include <QKeyEvent>

namespace eeprog {

std::optional<char32_t> caracterdetecla(const QKeyEvent& evento)
{
    switch (evento.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return U'\r';
    case Qt::Key_Escape:
        return U'\x1B';
    case Qt::Key_Backspace:
        return U'\b';
    case Qt::Key_Delete:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return std::nullopt;
    default:
        break;
    }
    const QList<uint> texto = evento.text().toUcs4();
    if (texto.isEmpty())
        return std::nullopt;
    return texto.front();
}

} // namespace eeprog
