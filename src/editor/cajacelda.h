#pragma once

#include "plataforma/color.h"

#include <functional>
#include <string>

namespace eeprog {

// The text box that an overlay editor puts over the current cell. Its events are raised
// synchronously: KeyPress before a character key has any effect on the text, Change after
// every change of the text, by a key or by a write, before the write returns.
class CajaCelda {
public:
    virtual ~CajaCelda() = default;

    // The key's character code; the handler sets it to 0 to cancel the key.
    std::function<void(int& tecla)> KeyPress;
    std::function<void()> Change;

    // The text as bytes, one character a byte.
    virtual std::string Text() const = 0;
    // Replaces the text and leaves the caret at the start, with nothing selected. Change is
    // raised only if the text is really another.
    virtual void Text(const std::string& texto) = 0;
    // Place and size in twips, on the main window.
    virtual void colocar(int izquierda, int arriba, int ancho, int alto) = 0;
    virtual void BackColor(Color color) = 0;
    virtual void Visible(bool visible) = 0;
    virtual void SetFocus() = 0;
};

inline constexpr Color verde{0, 255, 0};

} // namespace eeprog
