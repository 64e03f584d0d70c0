#pragma once

#include <optional>

class QKeyEvent;

namespace eeprog {

// The character code that a key gives the program's key handlers, or nothing for a key that
// gives none. It goes by the key, not by the text the platform attaches to it: Delete comes
// with U+007F on Linux and gives no character, as the arrows, Home, End, Insert, Tab, the
// function keys and the modifiers alone do not; Enter, Escape and Backspace give theirs,
// and Ctrl with a letter its control code.
std::optional<char32_t> caracterdetecla(const QKeyEvent& evento);

} // namespace eeprog
