#pragma once

#include "plataforma/color.h"

#include <optional>
#include <string>
#include <string_view>

namespace eeprog {

// What a skin is made of: the colour it reports for the buttons, the log and the grids,
// and the palette the windows are drawn in.
struct Tema {
    std::string nombre;
    Color color;
    Color ventana;    // background of the windows
    Color panel;      // menu bar, menus, push buttons, bars
    Color texto;      // text on the windows' background
    Color textopanel; // text on panels
    Color resalte;    // selection and the entry under the pointer
    Color textoresalte;
    friend bool operator==(const Tema&, const Tema&) = default;
};

// The skin every run starts with, built into the program: "Media skin" with its pale
// green background and green-grey panels.
Tema temainicial();

// A skin file is text, one setting a line, "clave = valor"; a line starting with ';' is a
// comment and blank lines are skipped. Colours are written #RRGGBB. "color" must be there;
// "ventana" defaults to it, "panel" and "resalte" to the window's colour, the texts to
// black on light colours and white on dark ones. Unknown keys are left for newer versions.
// A file that breaks these rules gives nothing.
std::optional<Tema> leertema(std::string_view texto);

// Black or white, whichever reads better on the given background.
Color textosobre(Color fondo);

} // namespace eeprog
