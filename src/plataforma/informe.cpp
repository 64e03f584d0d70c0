#include "plataforma/informe.h"

namespace eeprog {

Informe::Informe(CajaTexto& caja, const Reloj& reloj) : caja_(caja), reloj_(reloj) {}

void Informe::linea(std::string_view mensaje)
{
    std::string texto = caja_.texto();
    texto.append(mensaje).append(saltolinea);
    caja_.ponertexto(texto);
}

void Informe::lineaconhora(std::string_view mensaje)
{
    linea(reloj_.hora().append(mensaje));
}

} // namespace eeprog
