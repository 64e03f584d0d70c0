#include "device/lectura.h"

#include "link/protocolo.h"
#include "records/hexadecimal.h"

namespace eeprog {

namespace {

constexpr int bloques = protocolo::tamanochip / protocolo::tamanobloque;

// Count, address high, address low and type; the board's echoes are not looked at.
void cabecera(Enlace& enlace, int alta, int baja)
{
    enlace.intercambio(protocolo::lectura);
    enlace.intercambio(protocolo::dato(protocolo::tamanobloque));
    enlace.intercambio(protocolo::dato(alta));
    enlace.intercambio(protocolo::dato(baja));
    enlace.intercambio(protocolo::dato(protocolo::tipodatos));
}

} // namespace

// The low byte of the two's complement of the sum: the Intel HEX checksum.
std::string linealeida(const Leido& leido, int bloque)
{
    const int direccion = bloque * protocolo::tamanobloque;
    const int alta = protocolo::direccionalta(direccion);
    const int baja = protocolo::direccionbaja(direccion);
    int suma = protocolo::tamanobloque + alta + baja + protocolo::tipodatos;
    std::string linea = ":10" + doscifras(alta) + doscifras(baja) + "00";
    for (int k = 0; k < protocolo::tamanobloque; ++k) {
        const int valor = leido.vectorleido[static_cast<std::size_t>(direccion + k)];
        suma += valor;
        linea += doscifras(valor);
    }
    return linea + doscifras(-suma & 0xFF) + std::string(saltolinea);
}

void leerchip(Enlace& enlace, Leido& leido, const Avance& avance)
{
    int cuenta = 0;
    leido.textoleido.clear();
    leido.textoleido.reserve(45 * bloques);
    enlace.intercambio(protocolo::comprobar);
    for (int bloque = 0; bloque < bloques; ++bloque) {
        const int direccion = bloque * protocolo::tamanobloque;
        const int alta = protocolo::direccionalta(direccion);
        const int baja = protocolo::direccionbaja(direccion);
        cabecera(enlace, alta, baja);
        for (int k = 0; k < protocolo::tamanobloque; ++k) {
            const int valor = protocolo::valorde(enlace.intercambio(protocolo::dato(k)));
            leido.vectorleido[static_cast<std::size_t>(cuenta++)] = static_cast<std::int16_t>(valor);
            avance.dato(cuenta);
        }
        leido.textoleido += linealeida(leido, bloque);
        avance.trama();
    }
}

// The bar counts whole blocks, and moves once a block is in.
void lectura(Enlace& enlace, Leido& leido, PantallaOperacion pantalla)
{
    pantalla.ProgressBar1.maximo(bloques);
    leerchip(enlace, leido, {[&](int cuenta) {
                 pantalla.StatusBar1.panel(1, std::to_string(cuenta) + "  Bytes leidos");
                 if (cuenta % protocolo::tamanobloque == 0)
                     pantalla.ProgressBar1.valor(cuenta / protocolo::tamanobloque - 1);
             }});
    pantalla.StatusBar1.panel(1, std::to_string(protocolo::tamanochip) +
                                     "  Bytes leidos = " + hexa(protocolo::tamanochip) + "H");
}

} // namespace eeprog
