#pragma once

#include "plataforma/cajatexto.h"
#include "plataforma/reloj.h"

#include <string>
#include <string_view>

namespace eeprog {

// The line break of every report and of every generated file line.
inline constexpr std::string_view saltolinea = "\r\n";

// The log: the text of its box and nothing else. Each line reads the box back and writes
// it whole, so that what the user typed into the box stays and the newest line is last.
class Informe {
public:
    Informe(CajaTexto& caja, const Reloj& reloj);

    void linea(std::string_view mensaje);
    // The time goes right before the message, with no blank: the messages begin "... ".
    void lineaconhora(std::string_view mensaje);

private:
    CajaTexto& caja_;
    const Reloj& reloj_;
};

} // namespace eeprog
