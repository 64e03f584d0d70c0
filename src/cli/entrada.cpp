#include "cli/entrada.h"

#include "records/cargarhex.h"
#include "records/cargarobj.h"
#include "records/disco.h"
#include "records/lectorimagen.h"

#include <memory>

namespace eeprog {

namespace {

std::variant<std::vector<Trama>, std::string> comoventana(const std::string& nombre, const std::string& texto)
{
    auto registros = std::make_unique<Registros>();
    if (texto.starts_with(':'))
        cargarhex(texto, *registros);
    else if (texto.starts_with('S'))
        cargarobj(texto, *registros);
    else
        return nombre + ": la ventana solo abre archivos que empiezan por ':' o 'S'";
    auto tramas = tramasderegistros(*registros);
    if (tramas.empty())
        return nombre + ": la ventana no halla ningún registro en el archivo";
    return tramas;
}

std::string rechazo(const std::string& nombre, const Rechazo& motivo)
{
    if (motivo.linea == 0)
        return nombre + ": " + motivo.motivo;
    return nombre + ", línea " + std::to_string(motivo.linea) + ": " + motivo.motivo;
}

} // namespace

std::variant<std::vector<Trama>, std::string> tramasdearchivo(const Opciones& opciones)
{
    const std::string& nombre = opciones.archivo;
    const auto texto = leerarchivo(nombre);
    if (!texto)
        return "no se puede leer el archivo " + nombre;
    if (opciones.comoventana)
        return comoventana(nombre, *texto);
    const LecturaImagen lectura = esbinario(nombre, opciones.formato) ? leerbinario(*texto) : leertexto(*texto);
    if (const auto* motivo = std::get_if<Rechazo>(&lectura))
        return rechazo(nombre, *motivo);
    return tramasdeimagen(std::get<Imagen>(lectura));
}

} // namespace eeprog
