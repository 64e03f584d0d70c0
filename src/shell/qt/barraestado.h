#pragma once

#include "plataforma/paneles.h"
#include "shell/qt/repintado.h"

#include <QStatusBar>

#include <array>

class QLabel;

namespace eeprog {

// The status bar with its five panels: status and progress, the file's size, and the
// address, value and character of the byte under the pointer.
class BarraEstado : public QStatusBar, public Paneles {
public:
    static constexpr int cantidad = 5;

    BarraEstado(Repintado& repintado, QWidget* padre);

    void panel(int numero, const std::string& texto) override;
    QString textopanel(int numero) const;

    // The panels have fixed widths and may be covered when the window is made narrow;
    // they never set how narrow the window can be.
    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* evento) override;
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    int altura() const;

    std::array<QLabel*, cantidad> paneles_{};
    Repintado& repintado_;
};

} // namespace eeprog
