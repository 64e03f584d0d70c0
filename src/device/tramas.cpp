#include "device/tramas.h"

#include "device/recorrido.h"
#include "link/protocolo.h"
#include "records/hexadecimal.h"

namespace eeprog {

namespace {

Trama cabecera(int direccion)
{
    return Trama{{0, protocolo::direccionalta(direccion), protocolo::direccionbaja(direccion), protocolo::tipodatos}};
}

// The command, then each value with its reply compared as the window compares them: by
// their hexadecimal text, so a value outside a byte matches its low byte's reply as it does
// there.
std::vector<Diferencia> enviar(Enlace& enlace, const std::string& orden, const std::vector<Trama>& tramas,
                               const Avance& avance)
{
    std::vector<Diferencia> diferencias;
    int hechos = 0;
    for (const Trama& trama : tramas) {
        enlace.intercambio(orden);
        int direccion = trama.direccion() - 4;
        for (const int valor : trama.valores) {
            const int respuesta = protocolo::valorde(enlace.intercambio(protocolo::dato(valor)));
            if (hexa(respuesta) != hexa(valor))
                diferencias.push_back({direccion & 0xFFFF, valor, respuesta});
            if (++direccion > trama.direccion())
                avance.dato(++hechos);
        }
        avance.trama();
    }
    return diferencias;
}

} // namespace

std::vector<Trama> tramasdeimagen(const Imagen& imagen)
{
    std::vector<Trama> tramas;
    bool abierta = false;
    for (int direccion = 0; direccion < imagen.tamano; ++direccion) {
        if (!imagen.dado[static_cast<std::size_t>(direccion)]) {
            abierta = false;
            continue;
        }
        if (!abierta || direccion % protocolo::tamanobloque == 0)
            tramas.push_back(cabecera(direccion));
        abierta = true;
        Trama& trama = tramas.back();
        trama.valores.push_back(imagen.bytes[static_cast<std::size_t>(direccion)]);
        ++trama.valores[0];
    }
    return tramas;
}

std::vector<Trama> tramasderegistros(const Registros& registros)
{
    std::vector<Trama> tramas;
    recorrerregistros(
        registros, [&](int) { tramas.emplace_back(); },
        [&](int j) { tramas.back().valores.push_back(registros.vector[static_cast<std::size_t>(j)]); });
    return tramas;
}

int bytesde(const std::vector<Trama>& tramas)
{
    int bytes = 0;
    for (const Trama& trama : tramas)
        bytes += trama.datos();
    return bytes;
}

std::vector<Diferencia> escribirtramas(Enlace& enlace, const std::vector<Trama>& tramas, const Avance& avance)
{
    return enviar(enlace, protocolo::escritura, tramas, avance);
}

std::vector<Diferencia> comparartramas(Enlace& enlace, const std::vector<Trama>& tramas, const Avance& avance)
{
    enlace.intercambio(protocolo::comprobar);
    return enviar(enlace, protocolo::lectura, tramas, avance);
}

} // namespace eeprog
