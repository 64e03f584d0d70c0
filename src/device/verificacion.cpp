#include "device/verificacion.h"

#include "device/recorrido.h"
#include "link/protocolo.h"
#include "records/hexadecimal.h"

namespace eeprog {

// A counter below 0, in a header pass near address 0, shows as its 16-bit two's complement.
std::string diferencia(int direccion, int esperado, int leido)
{
    return "Direccion = " + cuatrocifras(direccion & 0xFFFF) + "  Buffer = " + doscifras(esperado) +
           "   Leido = " + doscifras(leido);
}

// The address counter starts 4 below the record's address, so that it stands at each data
// byte's address when that byte is compared.
void verificacion(Enlace& enlace, const Registros& registros, PantallaOperacion pantalla)
{
    const auto& vector = registros.vector;
    int direccion = 0;
    pantalla.ProgressBar1.maximo(registros.totalvector);
    enlace.intercambio(protocolo::comprobar);
    recorrerregistros(
        registros,
        [&](int i) {
            enlace.intercambio(protocolo::lectura);
            direccion = vector[static_cast<std::size_t>(i) + 1] * 256 + vector[static_cast<std::size_t>(i) + 2] - 4;
        },
        [&](int j) {
            const int esperado = vector[static_cast<std::size_t>(j)];
            const int leido = protocolo::valorde(enlace.intercambio(protocolo::dato(esperado)));
            if (hexa(leido) != hexa(esperado)) {
                const std::string texto = diferencia(direccion, esperado, leido);
                pantalla.StatusBar1.panel(1, "error.. " + texto);
                pantalla.informe.linea("                 Error.. " + texto);
            }
            ++direccion;
            pantalla.ProgressBar1.valor(j + 3);
        });
}

} // namespace eeprog
