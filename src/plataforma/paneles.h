#pragma once

#include <string>

namespace eeprog {

// The status bar: five panels numbered from 1. A panel keeps its text until the next writer
// replaces it; nothing reads a panel back.
class Paneles {
public:
    virtual ~Paneles() = default;
    virtual void panel(int numero, const std::string& texto) = 0;
};

} // namespace eeprog
