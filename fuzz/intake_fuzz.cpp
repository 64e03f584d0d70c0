// Any bytes as the text of an opened file: the intake the program picks for it, then the
// display of the buffer in the grids. The buffer, the grids and the status panels live on
// from one input to the next, as they do in the program, where nothing clears them between
// files: each input also walks what the earlier ones left behind.

#include "pantallafalsa.h"
#include "records/apertura.h"
#include "records/cargarhex.h"
#include "records/cargarobj.h"
#include "records/mostrarvector.h"

#include <cstddef>
#include <cstdint>
#include <string>

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
    return 0;
}
