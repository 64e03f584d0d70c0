#include "shell/qt/barra.h"

#include <algorithm>
#include <cmath>

namespace eeprog {

Barra::Barra(Repintado& repintado, QWidget* padre) : QProgressBar(padre), repintado_(repintado)
{
    setRange(0, 100);
    setValue(0);
    setTextVisible(false);
}

// A bar whose maximum is not above its minimum would turn into a busy indicator; with
// nothing to count (verifying with no records) it shows empty instead.
void Barra::maximo(double valor)
{
    const int tope = static_cast<int>(std::lround(valor));
    if (tope > minimum()) {
        setMaximum(tope);
        return;
    }
    setMaximum(minimum() + 1);
    setValue(minimum());
}

// A value past either end shows as that end.
void Barra::valor(double valor)
{
    setValue(std::clamp(static_cast<int>(std::lround(valor)), minimum(), maximum()));
    repintado_.pedir(*this);
}

} // namespace eeprog
