#include "records/guardado.h"

#include "records/disco.h"

namespace eeprog {

std::string textoguardado(const std::string& textoleido)
{
    return textoleido + std::string(saltolinea);
}

void guardararchivo(Dialogo& CommonDialog1, const std::string& textoleido, Informe& informe, Avisos& avisos)
{
    CommonDialog1.DefaultExt = "obj";
    CommonDialog1.Filter = filtroguardar;
    CommonDialog1.Flags = preguntarreemplazo;
    if (!CommonDialog1.ShowSave())
        return;
    if (escribirarchivo(CommonDialog1.FileName, textoguardado(textoleido))) {
        informe.lineaconhora("... Creando Archivo : " + CommonDialog1.FileName);
        return;
    }
    avisos.mostrar({"Error desconocido al guardar el Archivo", "", Icono::ninguno});
    informe.lineaconhora("... Error al querer Guardar el Archivo");
}

} // namespace eeprog
