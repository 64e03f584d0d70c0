#pragma once

#include <string>

namespace eeprog {

// The system clock as the log writes it.
class Reloj {
public:
    virtual ~Reloj() = default;
    virtual std::string fecha() const = 0; // the short date, day first: 23/11/2026
    virtual std::string hora() const = 0;  // the time of day with seconds: 14:05:09
};

// The clock of the machine, in the local time zone.
class RelojSistema : public Reloj {
public:
    std::string fecha() const override;
    std::string hora() const override;
};

} // namespace eeprog
