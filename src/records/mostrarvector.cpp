#include "records/mostrarvector.h"

#include "records/hexadecimal.h"

namespace eeprog {

namespace {

// A record runs on across row ends. Bytes past the last cell have no place and are left out;
// an entry that is not a byte (a count of an S1 line read out of step) shows its low byte.
void mostrarregistro(const Registros& registros, Cuadriculas& cuadriculas, std::size_t indice, long direccion,
                     long cuenta)
{
    for (long k = 0; k < cuenta; ++k) {
        const long celda = direccion + k;
        const std::size_t dato = indice + 4 + static_cast<std::size_t>(k);
        if (celda >= long{filasrejilla} * columnasrejilla || dato >= registros.vector.size())
            break;
        if (celda < 0)
            continue;
        ponerbyte(cuadriculas, static_cast<int>(celda / 16), static_cast<int>(celda % 16),
                  registros.vector[dato] & 0xFF);
    }
}

} // namespace

void mostrarvector(const Registros& registros, const ArchivoAbierto& archivo, PantallaArchivo pantalla)
{
    // Every record is at least 3 entries long (a count of -3 is the shortest), so the walk
    // always moves on and runs into the zeros behind the intake's reach.
    long direccion = 0;
    long cuenta = 0;
    std::size_t indice = 0;
    while (indice + 3 < registros.vector.size() && registros.vector[indice] != 0) {
        cuenta = registros.vector[indice];
        direccion = 256L * registros.vector[indice + 1] + registros.vector[indice + 2];
        mostrarregistro(registros, pantalla.cuadriculas, indice, direccion, cuenta);
        indice += static_cast<std::size_t>(cuenta + 6);
    }
    const long figura = direccion + cuenta - 1;
    if (figura == -1) {
        pantalla.StatusBar1.panel(1, "Directorio");
        pantalla.StatusBar1.panel(2, "Tamaño");
        return;
    }
    const std::string tamano = std::to_string(figura) + " Bytes = " + hexa(figura) + " Hexa";
    pantalla.StatusBar1.panel(1, archivo.nombrearchivo);
    pantalla.StatusBar1.panel(2, tamano);
    pantalla.informe.lineaconhora("... Archivo = " + archivo.tituloarchivo + "      Tamaño = " + tamano);
}

} // namespace eeprog
