#pragma once

#include "bitacora.h"
#include "plataforma/dialogo.h"

#include <optional>
#include <string>
#include <vector>

namespace eeprog::prueba {

// The open and save dialog without a screen: the test says what the user picks next.
// Each showing records the settings it was shown with.
class DialogoFalso : public Dialogo {
public:
    struct Mostrado {
        bool guardar;
        std::string Filter;
        int FilterIndex;
        std::string DefaultExt;
        int Flags;
        std::string FileName;
    };

    explicit DialogoFalso(Bitacora* bitacora = nullptr) : bitacora_(bitacora) {}

    // The next showing picks this path; with nothing, the user cancels.
    std::optional<std::string> elegir;
    int filtroelegido = 0; // 0: leaves FilterIndex as it was shown
    std::vector<Mostrado> mostrados;

    bool ShowOpen() override { return mostrar(false); }
    bool ShowSave() override { return mostrar(true); }

private:
    bool mostrar(bool guardar)
    {
        anotar(bitacora_, guardar ? "dialogo guardar" : "dialogo abrir");
        mostrados.push_back({guardar, Filter, FilterIndex, DefaultExt, Flags, FileName});
        if (!elegir)
            return false;
        FileName = *elegir;
        FileTitle = FileName.substr(FileName.find_last_of('/') + 1);
        if (filtroelegido != 0)
            FilterIndex = filtroelegido;
        elegir.reset();
        return true;
    }

    Bitacora* bitacora_;
};

} // namespace eeprog::prueba
