#pragma once

#include "plataforma/timbre.h"

#include <QApplication>

namespace eeprog {

class TimbreSistema : public Timbre {
public:
    void Beep() override { QApplication::beep(); }
};

} // namespace eeprog
