#include "shell/qt/vistacaja.h"

#include "editor/glifos.h"
#include "shell/qt/teclas.h"
#include "shell/qt/twips.h"

#include <QKeyEvent>

namespace eeprog {

VistaCaja::VistaCaja(Letras letras, QWidget* padre) : QLineEdit(padre), letras_(letras)
{
    setFocusPolicy(Qt::ClickFocus);
    setFrame(false);
    setAutoFillBackground(true);
    setAcceptDrops(false);
    setContextMenuPolicy(Qt::NoContextMenu); // its entries would paste and undo
    hide();
    connect(this, &QLineEdit::textChanged, this, [this] {
        if (Change)
            Change();
    });
}

// Enter, Escape and Backspace come as control characters, which are their codes as they are.
int VistaCaja::codigo(char32_t letra) const
{
    if (letras_ == Letras::glifos && letra >= 32)
        return codigode(letra);
    return static_cast<int>(letra);
}

QString VistaCaja::mostrar(const std::string& bytes) const
{
    QString texto;
    for (char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        const char32_t letra = letras_ == Letras::glifos ? glifo(byte) : byte;
        texto += QString::fromUcs4(&letra, 1);
    }
    return texto;
}

// What the box shows of a code 0 or 255 reads back as a blank: the box only ever hands on
// the character typed, never what it shows of a cell.
std::string VistaCaja::Text() const
{
    std::string bytes;
    for (char32_t letra : text().toUcs4()) {
        const int c = codigo(letra);
        bytes += static_cast<char>(c < 0 ? '?' : c);
    }
    return bytes;
}

void VistaCaja::Text(const std::string& texto)
{
    const QString nuevo = mostrar(texto);
    if (nuevo != text())
        setText(nuevo);
    setCursorPosition(0);
    deselect();
}

void VistaCaja::colocar(int izquierda, int arriba, int ancho, int alto)
{
    setGeometry(rectangulo(izquierda, arriba, ancho, alto));
}

void VistaCaja::BackColor(Color color)
{
    QPalette paleta = palette();
    paleta.setColor(QPalette::Base, acolorqt(color));
    paleta.setColor(QPalette::Text, Qt::black); // whatever the skin gives the windows
    setPalette(paleta);
}

void VistaCaja::Visible(bool visible)
{
    setVisible(visible);
}

void VistaCaja::SetFocus()
{
    setFocus(Qt::OtherFocusReason);
}

// The menu's Ctrl shortcuts win over the box's own (Ctrl+A selects all in a plain box).
bool VistaCaja::event(QEvent* evento)
{
    if (evento->type() == QEvent::ShortcutOverride &&
        (static_cast<QKeyEvent*>(evento)->modifiers() & Qt::ControlModifier)) {
        evento->ignore();
        return false;
    }
    return QLineEdit::event(evento);
}

// Enter, Escape and Backspace raise KeyPress too, as keys that make a character, and do
// nothing more: the box has no dialog around it to close, and by the time a Backspace
// could act, KeyPress has cancelled it or moved the box on with its caret at the start.
void VistaCaja::keyPressEvent(QKeyEvent* evento)
{
    // A key event comes accepted: returning takes it.
    if (evento->matches(QKeySequence::Paste) || evento->matches(QKeySequence::Undo) ||
        evento->matches(QKeySequence::Redo))
        return;
    // Ctrl keys are the menu's shortcuts or the box's own editing, never characters.
    const bool ctrl = evento->modifiers() & (Qt::ControlModifier | Qt::MetaModifier);
    const std::optional<char32_t> letra = ctrl ? std::nullopt : caracterdetecla(*evento);
    if (!letra) {
        QLineEdit::keyPressEvent(evento);
        return;
    }
    evento->accept();
    pulsar(*letra);
}

// A character composed on the keyboard (a dead key, then a vowel) is one key press, as a
// typed one is. What is still being composed is not shown.
void VistaCaja::inputMethodEvent(QInputMethodEvent* evento)
{
    for (char32_t letra : evento->commitString().toUcs4())
        if (letra >= 32)
            pulsar(letra);
    evento->accept();
}

// The middle button pastes the desktop's selection in a plain box.
void VistaCaja::mouseReleaseEvent(QMouseEvent* evento)
{
    if (evento->button() == Qt::MiddleButton) {
        evento->accept();
        return;
    }
    QLineEdit::mouseReleaseEvent(evento);
}

// Offers a character to KeyPress and, unless the handler cancels it or makes it a control
// code, puts it in at the caret. A character that the box's bytes cannot hold is no key
// at all.
void VistaCaja::pulsar(char32_t letra)
{
    int tecla = codigo(letra);
    if (tecla < 0)
        return;
    if (KeyPress)
        KeyPress(tecla);
    if (tecla >= 32)
        insert(mostrar(std::string(1, static_cast<char>(tecla))));
}

} // namespace eeprog
