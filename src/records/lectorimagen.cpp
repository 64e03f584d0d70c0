#include "records/lectorimagen.h"

#include "records/lectorintel.h"
#include "records/lectormotorola.h"
#include "records/lineas.h"

namespace eeprog {

LecturaImagen leertexto(std::string_view texto)
{
    const std::vector<Linea> todas = lineas(texto);
    if (todas.empty())
        return cerrar(Imagen{});
    const Linea& primera = todas.front();
    switch (primera.texto[primera.texto.find_first_not_of(blancos)]) {
    case ':':
        return leerintel(texto);
    case 'S':
    case 's':
        return leermotorola(texto);
    }
    return rechazo(primera.numero, Falta::formato);
}

LecturaImagen leerbinario(std::string_view datos)
{
    if (datos.size() > tamanoimagen)
        return rechazo(0, Falta::grande);
    Imagen imagen;
    for (std::size_t direccion = 0; direccion < datos.size(); ++direccion)
        ponerdato(imagen, direccion, static_cast<std::uint8_t>(datos[direccion]));
    return cerrar(imagen);
}

} // namespace eeprog
