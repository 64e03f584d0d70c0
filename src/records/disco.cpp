#include "records/disco.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <new>
#include <system_error>

namespace eeprog {

namespace fs = std::filesystem;

namespace {

bool volcar(const fs::path& ruta, std::string_view texto)
{
    std::ofstream salida(ruta, std::ios::binary | std::ios::trunc);
    salida.write(texto.data(), static_cast<std::streamsize>(texto.size()));
    salida.close();
    return !salida.fail();
}

// Only a plain file that exists is replaced by way of a copy; a new file, or a link that
// must keep pointing where it points, is written in place.
bool reemplazable(const fs::path& ruta)
{
    std::error_code error;
    return fs::is_regular_file(fs::symlink_status(ruta, error));
}

} // namespace

std::optional<std::string> leerarchivo(const std::string& nombre)
{
    std::error_code error;
    if (!fs::is_regular_file(nombre, error))
        return std::nullopt;
    try {
        std::ifstream entrada(nombre, std::ios::binary);
        if (!entrada)
            return std::nullopt;
        std::string texto{std::istreambuf_iterator<char>(entrada), std::istreambuf_iterator<char>()};
        if (entrada.bad())
            return std::nullopt;
        return texto;
    } catch (const std::bad_alloc&) {
        return std::nullopt;
    }
}

bool escribirarchivo(const std::string& nombre, std::string_view texto)
{
    const fs::path ruta(nombre);
    if (nombre.empty() || !reemplazable(ruta))
        return !nombre.empty() && volcar(ruta, texto);
    fs::path copia = ruta;
    copia += ".eeprog-nuevo";
    std::error_code error;
    if (!volcar(copia, texto)) {
        // A copy that could not be made at all (a folder the user may not write to) leaves the
        // file to be written in place. A copy that was made but not filled says the disk will not
        // take the text: writing in place then would only spoil the old file.
        const bool hecha = fs::is_regular_file(fs::symlink_status(copia, error));
        fs::remove(copia, error);
        return !hecha && volcar(ruta, texto);
    }
    fs::permissions(copia, fs::status(ruta, error).permissions(), error);
    fs::rename(copia, ruta, error);
    if (!error)
        return true;
    fs::remove(copia, error);
    return false;
}

} // namespace eeprog
