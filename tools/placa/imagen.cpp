#include "imagen.h"

#include <fstream>

namespace eeprog {

bool cargarimagen(const std::string& ruta, std::vector<unsigned char>& chip)
{
    std::ifstream archivo(ruta, std::ios::binary);
    if (!archivo) {
        return false;
    }
    archivo.read(reinterpret_cast<char*>(chip.data()), static_cast<std::streamsize>(chip.size()));
    // A short file only ends the read early; bad() is what a failed read sets (a directory, say).
    return !archivo.bad();
}

bool volcarimagen(const std::string& ruta, const std::vector<unsigned char>& chip)
{
    std::ofstream archivo(ruta, std::ios::binary | std::ios::trunc);
    archivo.write(reinterpret_cast<const char*>(chip.data()), static_cast<std::streamsize>(chip.size()));
    archivo.close();
    return !archivo.fail();
}

bool escribirproteccion(const std::string& ruta, bool protegido)
{
    std::ofstream archivo(ruta, std::ios::trunc);
    archivo << (protegido ? "protegido\n" : "desprotegido\n");
    archivo.close();
    return !archivo.fail();
}

} // namespace eeprog
