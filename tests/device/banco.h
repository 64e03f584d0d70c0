#pragma once

#include "device/pantallaoperacion.h"
#include "link/conexion.h"
#include "link/enlace.h"
#include "pantallafalsa.h"
#include "placa.h"
#include "puertoplaca.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace eeprog::prueba {

// The board in the same process, with the port open and the check passed, as the frame
// leaves them before an operation runs.
struct Banco {
    explicit Banco(OpcionesPlaca opciones = {}) : placa(opciones)
    {
        enlace.serial();
        EXPECT_TRUE(comprobarconexion(enlace));
    }
    PantallaOperacion pantalla() { return {paneles, barra, informe}; }
    // What the operation sent, the frame's check left out.
    std::string trafico() const { return puerto.enviados().substr(1); }
    std::vector<std::string> panel1() const
    {
        std::vector<std::string> textos;
        for (const std::string& suceso : bitacora.sucesos)
            textos.push_back(suceso.substr(8)); // "panel 1 "
        return textos;
    }

    Placa placa;
    PuertoPlaca puerto{placa};
    Enlace enlace{puerto};
    Bitacora bitacora;
    PanelesFalsos paneles{&bitacora};
    BarraFalsa barra;
    CajaFalsa caja;
    RelojFijo reloj;
    Informe informe{caja, reloj};
};

} // namespace eeprog::prueba
