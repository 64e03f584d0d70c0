#pragma once

namespace eeprog {

// The system's warning sound, for a key that an editor refuses.
class Timbre {
public:
    virtual ~Timbre() = default;
    virtual void Beep() = 0;
};

} // namespace eeprog
