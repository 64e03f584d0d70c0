#pragma once

#include "editor/edicion.h"

#include <QWidget>

class QLabel;
class QPushButton;

namespace eeprog {

class MotorSkin;

// The about box: the program's name and version, hints for the user and the notice of
// rights. It is not modal, and it is dressed in the current skin when it is loaded.
class VentanaAbout : public QWidget {
    Q_OBJECT
public:
    // Loading it dresses it in the skin, which ends edit mode as every dressing does.
    VentanaAbout(MotorSkin& skin, Edicion& edicion, QWidget* padre);

    QPushButton& cmdOK() const { return *cmdOK_; }
    QPushButton& iraweb() const { return *iraweb_; }

protected:
    // Enter and Esc press Aceptar, wherever the focus stands.
    void keyPressEvent(QKeyEvent* evento) override;

private:
    void crearetiquetas();
    void crearbotones();
    void cmdOK_Click();

    QPushButton* cmdOK_ = nullptr;
    QPushButton* iraweb_ = nullptr;
};

// The about box's third label: three hints, each padded with blanks so that it begins a
// line of its own.
extern const char* const consejos;

} // namespace eeprog
