#include "records/lineas.h"

#include "records/hexadecimal.h"

#include <algorithm>
#include <climits>

namespace eeprog {

namespace {

int valorcifra(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    return -1;
}

} // namespace

std::vector<Linea> lineas(std::string_view texto)
{
    std::vector<Linea> todas;
    std::size_t inicio = 0;
    // Past INT_MAX lines (a text of gigabytes) the numbers stay there rather than overflow.
    for (int numero = 1;; numero += numero < INT_MAX ? 1 : 0) {
        const std::size_t fin = std::min(texto.find_first_of("\r\n", inicio), texto.size());
        const std::string_view linea = texto.substr(inicio, fin - inicio);
        if (const std::size_t largo = linea.find_last_not_of(blancos) + 1; largo > 0)
            todas.push_back({numero, linea.substr(0, largo)});
        if (fin == texto.size())
            return todas;
        inicio = fin + (texto.substr(fin, 2) == "\r\n" ? 2 : 1);
    }
}

Rechazo rechazo(int linea, Falta falta, int tamano)
{
    static constexpr const char* motivos[] = {
        "falta la marca de registro",   "carácter no hexadecimal",      "longitud errónea",
        "suma de verificación errónea", "tipo de registro desconocido", "dato fuera de 0000-",
        "el archivo no da ningún byte", "la imagen pasa de ",           "no es Intel HEX ni S-record"};
    std::string motivo = motivos[static_cast<int>(falta)];
    if (falta == Falta::fuera)
        motivo += cuatrocifras(tamano - 1);
    else if (falta == Falta::grande)
        motivo += std::to_string(tamano) + " bytes";
    return {linea, motivo};
}

std::variant<std::vector<std::uint8_t>, Rechazo> bytesdelinea(const Linea& linea, std::size_t desde,
                                                              std::size_t sincontar, std::uint8_t suma)
{
    const std::string_view cifras = linea.texto.substr(desde);
    if (!std::all_of(cifras.begin(), cifras.end(), [](char c) { return valorcifra(c) >= 0; }))
        return rechazo(linea.numero, Falta::caracter);
    if (cifras.size() % 2 != 0)
        return rechazo(linea.numero, Falta::longitud);
    std::vector<std::uint8_t> bytes;
    unsigned total = 0;
    for (std::size_t i = 0; i < cifras.size(); i += 2) {
        bytes.push_back(static_cast<std::uint8_t>(valorcifra(cifras[i]) * 16 + valorcifra(cifras[i + 1])));
        total += bytes.back();
    }
    if (bytes.empty() || bytes[0] + sincontar != bytes.size())
        return rechazo(linea.numero, Falta::longitud);
    if ((total & 0xFF) != suma)
        return rechazo(linea.numero, Falta::suma);
    return bytes;
}

bool ponerdato(Imagen& imagen, std::uint64_t direccion, std::uint8_t valor)
{
    if (direccion >= static_cast<std::uint64_t>(imagen.tamano))
        return false;
    imagen.bytes[direccion] = valor;
    imagen.dado.set(direccion);
    return true;
}

LecturaImagen cerrar(const Imagen& imagen)
{
    if (imagen.dado.none())
        return rechazo(0, Falta::vacio);
    return imagen;
}

} // namespace eeprog
