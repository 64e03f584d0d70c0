#include "records/lectorintel.h"

#include "records/lineas.h"

namespace eeprog {

namespace {

// Data bytes each record type carries: any for 00, none for 01, two for the bases (02, 04),
// four for the start addresses (03, 05).
constexpr int longitudes[] = {-1, 0, 2, 4, 2, 4};

} // namespace

LecturaImagen leerintel(std::string_view texto, int tamano)
{
    Imagen imagen(tamano);
    std::uint32_t base = 0;
    for (const Linea& linea : lineas(texto)) {
        if (linea.texto.front() != ':')
            return rechazo(linea.numero, Falta::marca);
        // Length, offset (2), type, data, checksum: the length counts only the data.
        auto leidos = bytesdelinea(linea, 1, 5, 0);
        if (const auto* fallo = std::get_if<Rechazo>(&leidos))
            return *fallo;
        const auto& bytes = std::get<std::vector<std::uint8_t>>(leidos);
        const unsigned largo = bytes[0], desplazamiento = bytes[1] << 8 | bytes[2], tipo = bytes[3];
        const std::uint8_t* datos = bytes.data() + 4;
        if (tipo > 5)
            return rechazo(linea.numero, Falta::tipo);
        if (tipo > 0 && static_cast<int>(largo) != longitudes[tipo])
            return rechazo(linea.numero, Falta::longitud);
        if (tipo == 1)
            return cerrar(imagen);
        // A segment (02) counts 16 bytes, a linear base (04) 64 KB.
        if (tipo == 2 || tipo == 4)
            base = static_cast<std::uint32_t>(datos[0] << 8 | datos[1]) << (tipo == 2 ? 4 : 16);
        // The offset wraps within its 64 KB, past the base.
        for (unsigned i = 0; tipo == 0 && i < largo; ++i)
            if (!ponerdato(imagen, base + ((desplazamiento + i) & 0xFFFF), datos[i]))
                return rechazo(linea.numero, Falta::fuera, tamano);
    }
    return cerrar(imagen);
}

} // namespace eeprog
