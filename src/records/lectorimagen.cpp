#include "records/lectorimagen.h"

#include "records/lectorintel.h"
#include "records/lectormotorola.h"
#include "records/lineas.h"

namespace eeprog {

LecturaImagen leertexto(std::string_view texto, int tamano)
{
    const std::vector<Linea> todas = lineas(texto);
    if (todas.empty())
        return cerrar(Imagen(tamano));
    const Linea& primera = todas.front();
    switch (primera.texto[primera.texto.find_first_not_of(blancos)]) {
    case ':':
        return leerintel(texto, tamano);
    case 'S':
    case 's':
        return leermotorola(texto, tamano);
    }
    return rechazo(primera.numero, Falta::formato);
}

LecturaImagen leerbinario(std::string_view datos, int tamano)
{
    if (datos.size() > static_cast<std::size_t>(tamano))
        return rechazo(0, Falta::grande, tamano);
    Imagen imagen(tamano);
    for (std::size_t direccion = 0; direccion < datos.size(); ++direccion)
        ponerdato(imagen, direccion, static_cast<std::uint8_t>(datos[direccion]));
    return cerrar(imagen);
}

} // namespace eeprog
