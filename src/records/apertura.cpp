#include "records/apertura.h"

#include "records/cargarhex.h"
#include "records/cargarobj.h"
#include "records/disco.h"

namespace eeprog {

namespace {

const Aviso formatodesconocido{"El archivo que a sido abierto no corresponde a ningun formato\r\n"
                               "conocido de ATMEL o MOTOROLA  por lo cual no ha podido\r\n"
                               "ser cargado\r\n"
                               "Se recomiendo escoja el archivo correcto ,!!!Revise¡¡¡¡\r\n"
                               "y vuelva a intentarlo....",
                               "Error al querer cargar el archivo", Icono::exclamacion};

} // namespace

bool abrirarchivo(Dialogo& CommonDialog1, ArchivoAbierto& archivo, Informe& informe)
{
    CommonDialog1.Filter = filtroabrir;
    CommonDialog1.FilterIndex = 1;
    CommonDialog1.DefaultExt = "obj";
    CommonDialog1.Flags = 0;
    CommonDialog1.ShowOpen();
    if (CommonDialog1.FileName.empty())
        return true;
    std::optional<std::string> texto = leerarchivo(CommonDialog1.FileName);
    if (!texto) {
        informe.lineaconhora("... Error al querer Abrir el Archivo : " + CommonDialog1.FileName);
        return false;
    }
    archivo.textoarchivo = std::move(*texto);
    archivo.nombrearchivo = CommonDialog1.FileName;
    archivo.tituloarchivo = CommonDialog1.FileTitle;
    return true;
}

void ponerenvector(const ArchivoAbierto& archivo, Registros& registros, Avisos& avisos)
{
    const std::string& texto = archivo.textoarchivo;
    if (texto.empty())
        return;
    if (texto.front() == ':')
        cargarhex(texto, registros);
    else if (texto.front() == 'S')
        cargarobj(texto, registros);
    else
        avisos.mostrar(formatodesconocido);
}

} // namespace eeprog
