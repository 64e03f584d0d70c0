#include "records/lectormotorola.h"

#include "records/lineas.h"

namespace eeprog {

namespace {

// Address bytes by record type, S0 to S9; S4 has no meaning (0).
constexpr std::size_t anchos[] = {2, 2, 3, 4, 0, 2, 3, 4, 3, 2};

} // namespace

LecturaImagen leermotorola(std::string_view texto, int tamano)
{
    Imagen imagen(tamano);
    for (const Linea& linea : lineas(texto)) {
        if (linea.texto.front() != 'S' && linea.texto.front() != 's')
            return rechazo(linea.numero, Falta::marca);
        if (linea.texto.size() < 2 || linea.texto[1] < '0' || linea.texto[1] > '9' || linea.texto[1] == '4')
            return rechazo(linea.numero, Falta::tipo);
        const int tipo = linea.texto[1] - '0';
        const std::size_t ancho = anchos[tipo];
        // The count counts the address, data and checksum bytes: all but itself.
        auto leidos = bytesdelinea(linea, 2, 1, 0xFF);
        if (const auto* fallo = std::get_if<Rechazo>(&leidos))
            return *fallo;
        const auto& bytes = std::get<std::vector<std::uint8_t>>(leidos);
        // Only S0 to S3 carry data behind the address.
        if (bytes.size() < ancho + 2 || (tipo > 3 && bytes.size() != ancho + 2))
            return rechazo(linea.numero, Falta::longitud);
        if (tipo >= 7)
            return cerrar(imagen);
        if (tipo == 0 || tipo > 3)
            continue;
        std::uint64_t direccion = 0;
        for (std::size_t i = 1; i <= ancho; ++i)
            direccion = direccion << 8 | bytes[i];
        for (std::size_t i = ancho + 1; i + 1 < bytes.size(); ++i)
            if (!ponerdato(imagen, direccion++, bytes[i]))
                return rechazo(linea.numero, Falta::fuera, tamano);
    }
    return cerrar(imagen);
}

} // namespace eeprog
