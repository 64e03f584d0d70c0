#pragma once

#include "shell/frmsplash.h"

#include <QTimer>
#include <QWidget>

#include <functional>

class QLabel;

namespace eeprog {

// The splash: a dark strip without a title bar in the middle of the screen, with the
// program's name. It is not dressed in the skin and stays out of the task bar.
class VentanaSplash : public QWidget, private Arranque {
    Q_OBJECT
public:
    // mostrarForm1 shows the main window, creating it first if need be.
    explicit VentanaSplash(std::function<void()> mostrarForm1, QWidget* padre = nullptr);

    const FrmSplash& logica() const { return frmSplash_; }
    QLabel& Label1() const { return *Label1_; }
    QLabel& Label2() const { return *Label2_; }

protected:
    void keyPressEvent(QKeyEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;

private:
    void mostrarForm1() override;
    void descargar() override;
    void Timer1_Timer();
    QLabel* etiqueta(const char* texto, QRect lugar);

    std::function<void()> mostrarForm1_;
    FrmSplash frmSplash_{*this};
    QTimer Timer1_;
    QLabel* Label1_ = nullptr;
    QLabel* Label2_ = nullptr;
    bool descargada_ = false;
};

} // namespace eeprog
