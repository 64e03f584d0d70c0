// Any bytes as the text of an opened file: the intake the program picks for it, then the
// display of the buffer in the grids. The buffer, the grids and the status panels live on
// from one input to the next, as they do in the program, where nothing clears them between
// files: each input also walks what the earlier ones left behind.
// The same bytes then go to the strict readers of the command line, as a text and as a raw
// image, whose results are held to what any reading must keep.

#include "pantallafalsa.h"
#include "records/apertura.h"
#include "records/cargarhex.h"
#include "records/cargarobj.h"
#include "records/lectorimagen.h"
#include "records/mostrarvector.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

using namespace eeprog;
using namespace eeprog::prueba;

Cuadriculas& cuadriculas()
{
    static Cuadriculas c = [] {
        Cuadriculas nuevas;
        dibujareditor(nuevas);
        return nuevas;
    }();
    return c;
}

// A refusal names a line of the text (or 0) and gives a reason; an image gives some byte and
// has 0 wherever it gives none.
bool valida(const LecturaImagen& lectura, std::string_view texto)
{
    if (const auto* rechazo = std::get_if<Rechazo>(&lectura)) {
        // Every line end starts a line; a CR LF pair is one line end.
        long lineas = 1;
        for (std::size_t i = 0; i < texto.size(); ++i)
            lineas += texto[i] == '\n' || (texto[i] == '\r' && texto.substr(i + 1, 1) != "\n");
        return rechazo->linea >= 0 && rechazo->linea <= lineas && !rechazo->motivo.empty();
    }
    const Imagen& imagen = std::get<Imagen>(lectura);
    for (std::size_t k = 0; k < imagen.bytes.size(); ++k)
        if (!imagen.dado[k] && imagen.bytes[k] != 0)
            return false;
    return imagen.dado.any();
}

// A raw image of 1 to 8192 bytes is taken whole, byte k at address k; any other is refused.
bool binariovalido(const LecturaImagen& lectura, std::string_view datos)
{
    const auto* imagen = std::get_if<Imagen>(&lectura);
    if (datos.empty() || datos.size() > tamanoimagen)
        return imagen == nullptr;
    return imagen != nullptr && imagen->dado.count() == datos.size() &&
           std::equal(datos.begin(), datos.end(), imagen->bytes.begin(),
                      [](char c, std::uint8_t b) { return static_cast<std::uint8_t>(c) == b; });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t tamano)
{
    static Registros registros;
    static PanelesFalsos paneles;
    static AvisosFalsos avisos;
    static CajaFalsa caja;
    static RelojFijo reloj;
    static Informe informe(caja, reloj);

    ArchivoAbierto archivo{std::string(reinterpret_cast<const char*>(datos), tamano), "/tmp/fuzz.hex", "fuzz.hex"};
    const std::string& texto = archivo.textoarchivo;
    // The program refuses a text that starts with neither ":" nor "S" and keeps the buffer as
    // it was. That would leave most inputs unused; here the first byte's parity picks an
    // intake for them instead, so the rest of their bytes still reach both walks.
    if (texto.empty() || texto.front() == ':' || texto.front() == 'S')
        ponerenvector(archivo, registros, avisos);
    else if (datos[0] % 2 == 0)
        cargarhex(texto, registros);
    else
        cargarobj(texto, registros);

    // The log box would otherwise grow by a line an input for the whole run.
    caja.contenido.clear();
    mostrarvector(registros, archivo, {cuadriculas(), paneles, informe});

    const LecturaImagen binario = leerbinario(texto);
    if (!valida(leertexto(texto), texto) || !valida(binario, texto) || !binariovalido(binario, texto))
        std::abort();
    return 0;
}
