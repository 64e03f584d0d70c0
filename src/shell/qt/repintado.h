#pragma once

#include "link/puerto.h"

#include <QPointer>
#include <QWidget>

#include <chrono>
#include <deque>

namespace eeprog {

// A device operation holds the event loop for up to half a minute, so the widgets that show
// its progress are painted by the operation itself. They are painted where the program
// would be idle anyway, while it waits on the port for the board's reply, so that painting
// overlaps the wire time instead of holding the next byte back; one widget a wait, and no
// more often than the interval. The last text is always painted by the event loop once the
// operation is over.
class Repintado {
public:
    static constexpr std::chrono::milliseconds intervalo{50};

    // The widget has changed: it is painted at one of the next waits.
    void pedir(QWidget& widget);
    // Paints the widget that has waited longest, if the interval has passed since the last.
    void pintar();

private:
    std::deque<QPointer<QWidget>> pendientes_;
    std::chrono::steady_clock::time_point ultimo_{};
};

// The window's port: each wait for a reply first paints what the operation has changed.
class PuertoPintado : public Puerto {
public:
    PuertoPintado(Puerto& puerto, Repintado& repintado) : puerto_(puerto), repintado_(repintado) {}

    bool abrir() override { return puerto_.abrir(); }
    void cerrar() override { puerto_.cerrar(); }
    bool abierto() const override { return puerto_.abierto(); }
    void velocidad(long baudios) override { puerto_.velocidad(baudios); }
    void escribir(const std::string& datos) override { puerto_.escribir(datos); }
    std::string leer() override { return puerto_.leer(); }
    void esperar(int milisegundos) override;

private:
    Puerto& puerto_;
    Repintado& repintado_;
};

} // namespace eeprog
