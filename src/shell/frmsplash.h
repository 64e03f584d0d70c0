#pragma once

#include <cstdint>

namespace eeprog {

// What the splash does to the windows of the run.
class Arranque {
public:
    virtual ~Arranque() = default;
    // Shows the main window, creating it first, and with it running its start-up, if it
    // does not exist yet.
    virtual void mostrarForm1() = 0;
    // The splash goes away for good, and its timer with it.
    virtual void descargar() = 0;
};

// The first window of a run. It brings up the main window at its timer's first tick and
// goes at the fourth, or at once on a key or a click.
class FrmSplash {
public:
    explicit FrmSplash(Arranque& arranque) : arranque_(arranque) {}

    void Form_Load();
    void Timer1_Timer();
    // A key that gives a character; the key itself is not looked at.
    void Form_KeyPress();
    // A mouse button let go over the splash's own surface, not over its texts.
    void Form_MouseUp();

    std::int16_t cuentaticks() const { return cuentaticks_; }

    // The timer's interval, in milliseconds.
    static constexpr int intervalo = 500;

private:
    void cerrar();

    Arranque& arranque_;
    std::int16_t cuentaticks_ = 0;
};

} // namespace eeprog
