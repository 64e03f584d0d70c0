#include "shell/qt/repintado.h"

#include <QWidget>

namespace eeprog {

void Repintado::pedir(QWidget& widget)
{
    const auto ahora = std::chrono::steady_clock::now();
    if (ahora - ultimo_ < intervalo || !widget.isVisible())
        return;
    ultimo_ = ahora;
    widget.repaint();
}

} // namespace eeprog
