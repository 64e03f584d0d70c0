#include "shell/qt/programa.h"

#include "shell/qt/ventanasplash.h"

#include <QApplication>
#include <QTimer>

#include <algorithm>

namespace eeprog {

namespace {

// The run ends when no window of it is left. Qt would end it with the main window, as it
// does not count the about box, which belongs to that window; the box is to stay open
// until it is closed in turn.
class FinDeCorrida : public QObject {
public:
    FinDeCorrida()
    {
        QApplication::setQuitOnLastWindowClosed(false);
        qApp->installEventFilter(this);
    }
    ~FinDeCorrida() override { QApplication::setQuitOnLastWindowClosed(true); }

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override
    {
        if (evento->type() == QEvent::Hide && objeto->isWidgetType() && static_cast<QWidget*>(objeto)->isWindow())
            QTimer::singleShot(0, this, &FinDeCorrida::terminarsinoqueda);
        return false;
    }

private:
    static void terminarsinoqueda()
    {
        const auto ventanas = QApplication::topLevelWidgets();
        if (std::none_of(ventanas.begin(), ventanas.end(), [](const QWidget* v) { return v->isVisible(); }))
            QCoreApplication::quit();
    }
};

} // namespace

void prepararaplicacion()
{
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/iconos/eeprog-48.png")));
}

Programa::Programa(Creador crear) : crear_(std::move(crear)), findecorrida_(std::make_unique<FinDeCorrida>())
{
    frmSplash_ = new VentanaSplash([this] { mostrarForm1(); });
    frmSplash_->show();
    frmSplash_->activateWindow();
}

// A run may end while the splash still stands.
Programa::~Programa()
{
    delete frmSplash_;
}

// The window runs its start-up as it is first shown, inside this call.
void Programa::mostrarForm1()
{
    if (!Form1_)
        Form1_ = crear_();
    Form1_->show();
}

} // namespace eeprog
