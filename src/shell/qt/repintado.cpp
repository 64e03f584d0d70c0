#include "shell/qt/repintado.h"

#include <algorithm>

namespace eeprog {

void Repintado::pedir(QWidget& widget)
{
    if (std::find(pendientes_.begin(), pendientes_.end(), &widget) == pendientes_.end())
        pendientes_.emplace_back(&widget);
}

void Repintado::pintar()
{
    const auto ahora = std::chrono::steady_clock::now();
    if (pendientes_.empty() || ahora - ultimo_ < intervalo)
        return;
    const QPointer<QWidget> widget = pendientes_.front();
    pendientes_.pop_front();
    if (widget && widget->isVisible()) {
        ultimo_ = ahora;
        widget->repaint();
    }
}

void PuertoPintado::esperar(int milisegundos)
{
    repintado_.pintar();
    puerto_.esperar(milisegundos);
}

} // namespace eeprog
