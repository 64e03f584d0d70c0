#pragma once

#include "plataforma/color.h"

#include <string>

namespace eeprog {

// The windows that wear a skin.
enum class Formulario { Form1, frmAbout };

// The skin engine: it draws the windows in the current skin, and reports the colour that
// goes with it, which the program gives to its buttons, log and grids.
class Skin {
public:
    virtual ~Skin() = default;
    // The skin of the file becomes the current one. The program looks at no result: a
    // file that is missing or cannot be read leaves the current skin as it was.
    virtual void cargar(const std::string& ruta) = 0;
    virtual void aplicar(Formulario formulario) = 0;
    // Asked anew at each use: the program keeps no copy of it.
    virtual Color color() const = 0;
};

// The colour of the skin that every run starts with.
inline constexpr Color colorinicial{221, 247, 224};

} // namespace eeprog
