#pragma once

#include "cli/opciones.h"
#include "cli/progreso.h"
#include "device/canal.h"
#include "device/leido.h"
#include "device/tramas.h"
#include "link/enlace.h"
#include "link/rapido.h"
#include "link/puerto.h"

#include <cstdio>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace eeprog {

// Where a run of eeprog-cli speaks: results on the first stream, errors on the second, and
// the progress bar.
struct Terminal {
    std::FILE* resultados;
    std::FILE* errores;
    Progreso& progreso;
};

// The orders of eeprog-cli over one board. Each talk with the board sits in a frame of its
// own: the device opened, the connection check, the operation, the port closed whatever
// happens. A file is read and judged before that frame, and written after it.
class Programador {
public:
    Programador(Puerto& puerto, std::string dispositivo, const Opciones& opciones, Terminal terminal);

    // The exit status of the order.
    int ejecutar();

private:
    int comprobar();
    int leer();
    int grabar();
    int verificar();
    int borrar();
    int vacio();
    int proteccion(bool proteger);
    int prueba();

    int grabarcambios(const std::vector<Trama>& tramas);

    int conplaca(const std::function<int()>& operacion, bool condatos = false);
    int conchip(const std::function<int()>& operacion);
    void elegircanal();
    int conarchivo(const std::function<int(const std::vector<Trama>&)>& operacion);
    void leerentero(Leido& leido);
    Avance avance(const std::string& accion, int total);
    int escribir(const std::vector<Trama>& tramas, const std::string& accion);
    int comparar(const std::vector<Trama>& tramas);
    std::vector<Diferencia> diferencias(const std::vector<Trama>& tramas);
    void senalarlinea(const std::vector<Diferencia>& diferencias);
    int guardar(const std::string& texto);
    int tamano() const { return opciones_.modelo->tamano; }

    void error(const std::string& mensaje);
    void resultado(const std::string& mensaje);
    void resumen(const std::string& mensaje);
    void detalle(const std::string& mensaje);

    Enlace enlace_;
    EnlaceRapido rapido_;
    std::unique_ptr<Canal> canal_; // the protocol of the orders that move the chip's bytes
    std::string dispositivo_;
    const Opciones& opciones_;
    Terminal terminal_;
};

} // namespace eeprog
