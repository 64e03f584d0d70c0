#include "shell/qt/barra.h"

#include <algorithm>
#include <cmath>

namespace eeprog {

Barra::Barra(QWidget* padre) : QProgressBar(padre)
{
    setRange(0, 100);
    setValue(0);
    setTextVisible(false);
}

void Barra::maximo(double valor)
{
    setMaximum(static_cast<int>(std::lround(valor)));
}

// A value past either end shows as that end.
void Barra::valor(double valor)
{
    setValue(std::clamp(static_cast<int>(std::lround(valor)), minimum(), maximum()));
    repintado_.pedir(*this);
}

} // namespace eeprog
