#include "device/grabacion.h"

#include "device/recorrido.h"
#include "link/protocolo.h"
#include "records/hexadecimal.h"

namespace eeprog {

void grabacion(Enlace& enlace, const Registros& registros, PantallaOperacion pantalla)
{
    pantalla.ProgressBar1.maximo(registros.totalvector + 2.0);
    recorrerregistros(
        registros, [&](int) { enlace.intercambio(protocolo::escritura); },
        [&](int j) {
            const int valor = registros.vector[static_cast<std::size_t>(j)];
            const std::string enviado = hexa(valor);
            const std::string recibido = hexa(protocolo::valorde(enlace.intercambio(protocolo::dato(valor))));
            pantalla.StatusBar1.panel(1, "Enviando..." + enviado + "H");
            if (recibido != enviado)
                pantalla.StatusBar1.panel(1, "El dato transmitido " + enviado + " no se ha recibido correctamente");
            pantalla.ProgressBar1.valor(j + 5);
        });
}

} // namespace eeprog
