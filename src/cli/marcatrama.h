#pragma once

#include <string>

namespace eeprog {

// The note a run keeps while the board may be inside one of its frames. A run that ends
// without finishing its frame (killed, a second Ctrl+C, a board that stopped answering) leaves
// it behind: the board then takes the next bytes as that frame's until the line has been quiet
// for its idle time, so the next run waits that long before its first byte. A run that ends
// with every frame finished takes the note away, and the next one starts at once.
//
// The note is an empty file, one for each user and device, in /run/lock (the system's place
// for notes on devices) or, where that cannot be written, in /tmp.
class MarcaTrama {
public:
    explicit MarcaTrama(const std::string& dispositivo);

    bool puesta() const;
    void poner() const;
    void quitar() const;

private:
    std::string ruta_;
};

} // namespace eeprog
