#include "shell/qt/bloqueo.h"

#include <QCoreApplication>
#include <QEvent>

namespace eeprog {

namespace {

// Swallows the user's input while it is installed; everything else passes.
class Descarte : public QObject {
public:
    bool eventFilter(QObject* objeto, QEvent* evento) override
    {
        switch (evento->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::ShortcutOverride:
        case QEvent::Shortcut:
        case QEvent::Wheel:
            return true;
        default:
            return QObject::eventFilter(objeto, evento);
        }
    }
};

} // namespace

void bloquearentrada(const std::function<void()>& operacion)
{
    operacion();
    Descarte descarte;
    QCoreApplication::instance()->installEventFilter(&descarte);
    QCoreApplication::processEvents();
    QCoreApplication::instance()->removeEventFilter(&descarte);
}

} // namespace eeprog
