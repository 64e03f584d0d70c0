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

LecturaImagen leer(const std::string& texto, const Opciones& opciones, const Modelo& modelo)
{
    return esbinario(opciones.archivo, opciones.formato) ? leerbinario(texto, modelo.tamano)
                                                         : leertexto(texto, modelo.tamano);
}

// A file refused for its size alone names the larger chip it fits.
std::string rechazo(const std::string& texto, const Opciones& opciones, const Rechazo& motivo)
{
    std::string dicho =
        opciones.archivo + (motivo.linea == 0 ? "" : ", línea " + std::to_string(motivo.linea)) + ": " + motivo.motivo;
    for (const Modelo& mayor : modelos)
        if (mayor.tamano > opciones.modelo->tamano && std::holds_alternative<Imagen>(leer(texto, opciones, mayor)))
            return dicho + " (el " + opciones.modelo->nombre + "); cabe en el " + mayor.nombre + ": --chip " +
                   mayor.nombre;
    return dicho;
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
    const LecturaImagen lectura = leer(*texto, opciones, *opciones.modelo);
    if (const auto* motivo = std::get_if<Rechazo>(&lectura))
        return rechazo(*texto, opciones, *motivo);
    return tramasdeimagen(std::get<Imagen>(lectura));
}

} // namespace eeprog
