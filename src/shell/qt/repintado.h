#pragma once

#include <chrono>

class QWidget;

namespace eeprog {

// A device operation holds the event loop for up to half a minute, so the widgets that
// show its progress paint themselves. Painting on each of its thousands of steps would
// slow the link, so a widget is painted at most every few milliseconds; the last text is
// always painted by the event loop once the operation is over.
class Repintado {
public:
    static constexpr std::chrono::milliseconds intervalo{20};

    void pedir(QWidget& widget);

private:
    std::chrono::steady_clock::time_point ultimo_{};
};

} // namespace eeprog
