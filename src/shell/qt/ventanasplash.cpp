#include "shell/qt/ventanasplash.h"

#include "shell/qt/letras.h"
#include "shell/qt/teclas.h"
#include "shell/qt/twips.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QScreen>

namespace eeprog {

VentanaSplash::VentanaSplash(std::function<void()> mostrarForm1, QWidget* padre)
    : QWidget(padre, Qt::Tool | Qt::FramelessWindowHint), mostrarForm1_(std::move(mostrarForm1))
{
    setObjectName(QStringLiteral("frmSplash"));
    setAttribute(Qt::WA_DeleteOnClose);
    setFocusPolicy(Qt::StrongFocus);
    QPalette paleta = palette();
    paleta.setColor(QPalette::Window, paleta.color(QPalette::WindowText));
    setPalette(paleta);
    setAutoFillBackground(true);
    setFixedSize(pixeles(5775), pixeles(915));
    Label1_ = etiqueta("Programador de Memoria EEPROM AT28C64B ", rectangulo(1320, 240, 3135, 375));
    Label2_ = etiqueta("Cargando Espere..........", rectangulo(1800, 480, 2055, 255));
    Label2_->raise();
    if (const QScreen* pantalla = QGuiApplication::primaryScreen())
        move(pantalla->geometry().center() - rect().center());
    frmSplash_.Form_Load();
    connect(&Timer1_, &QTimer::timeout, this, &VentanaSplash::Timer1_Timer);
    Timer1_.start(FrmSplash::intervalo);
}

// The texts take no mouse: a button let go over them does nothing, and does not reach
// the splash behind them either. Each label keeps its own width, so that the surface
// left to close the splash is the same whatever the font; the font that stands in for
// Terminal is wider, and cuts the end of the longer text.
QLabel* VentanaSplash::etiqueta(const char* texto, QRect lugar)
{
    auto* nueva = new QLabel(QString::fromUtf8(texto), this);
    nueva->setFont(terminal(9));
    nueva->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    nueva->setGeometry(lugar);
    QPalette paleta = nueva->palette();
    paleta.setColor(QPalette::Window, paleta.color(QPalette::ButtonText));
    paleta.setColor(QPalette::WindowText, paleta.color(QPalette::HighlightedText));
    nueva->setPalette(paleta);
    nueva->setAutoFillBackground(true);
    nueva->setAttribute(Qt::WA_NoMousePropagation);
    return nueva;
}

// The main window's start-up runs inside a tick and may wait for the board, letting the
// event loop paint meanwhile; the timer is held so the next tick cannot come inside it.
void VentanaSplash::Timer1_Timer()
{
    Timer1_.stop();
    frmSplash_.Timer1_Timer();
    if (!descargada_)
        Timer1_.start();
}

void VentanaSplash::keyPressEvent(QKeyEvent* evento)
{
    if (!caracterdetecla(*evento) || descargada_) {
        QWidget::keyPressEvent(evento);
        return;
    }
    frmSplash_.Form_KeyPress();
}

void VentanaSplash::mouseReleaseEvent(QMouseEvent* evento)
{
    if (descargada_ || !rect().contains(evento->position().toPoint()))
        return;
    frmSplash_.Form_MouseUp();
}

void VentanaSplash::mostrarForm1()
{
    mostrarForm1_();
}

void VentanaSplash::descargar()
{
    descargada_ = true;
    Timer1_.stop();
    close();
}

} // namespace eeprog
