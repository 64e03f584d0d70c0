#pragma once

#include "bitacora.h"
#include "plataforma/dialogo.h"

#include <optional>

namespace eeprog::prueba {

// The open and save dialog without a screen: the test says what the user picks next.
struct DialogoFalso : Dialogo, Grabador {
    using Grabador::Grabador;
    std::optional<std::string> elegir;  // the next showing picks it; with nothing, the user cancels
    std::vector<std::string> mostrados; // "Filter FilterIndex DefaultExt Flags" of each showing

    bool ShowOpen() override { return mostrar("dialogo abrir"); }
    bool ShowSave() override { return mostrar("dialogo guardar"); }
    bool mostrar(const std::string& suceso)
    {
        const std::string ajustes = std::to_string(FilterIndex) + " " + DefaultExt + " " + std::to_string(Flags);
        mostrados.push_back(anotar(suceso, Filter + " " + ajustes));
        if (!elegir)
            return false;
        FileName = *std::exchange(elegir, std::nullopt);
        FileTitle = FileName.substr(FileName.find_last_of('/') + 1);
        return true;
    }
};

} // namespace eeprog::prueba
