#pragma once

#include "pantallafalsa.h"
#include "records/apertura.h"
#include "records/mostrarvector.h"

#include <gtest/gtest.h>

#include <string>

namespace eeprog::prueba {

// The grids as they are at start-up, and a file taken into the buffer and shown.
class PantallaPrueba : public ::testing::Test {
protected:
    static void SetUpTestSuite() { dibujareditor(inicial); }
    void SetUp() override
    {
        cuadriculas = inicial;
        registros = {};
        StatusBar1.textos.clear();
        caja.contenido.clear();
    }

    void mostrar(const std::string& texto, const std::string& nombre = "/datos/prueba.hex")
    {
        archivo = {texto, nombre, nombre.substr(nombre.rfind('/') + 1)};
        ponerenvector(archivo, registros, avisos);
        mostrarvector(registros, archivo, {cuadriculas, StatusBar1, informe});
    }
    std::string hex(int fila, int columna) { return cuadriculas.fghex.TextMatrix(fila, columna); }
    std::string ascii(int fila, int columna) { return cuadriculas.fgascii.TextMatrix(fila, columna); }
    // Cells of fghex that differ from an erased chip's.
    int escritas()
    {
        int cuantas = 0;
        for (int fila = 0; fila < filasrejilla; ++fila)
            for (int columna = 0; columna < columnasrejilla; ++columna)
                cuantas += hex(fila, columna) != "FF";
        return cuantas;
    }

    static inline Cuadriculas inicial;
    Cuadriculas cuadriculas;
    CajaFalsa caja;
    RelojFijo reloj;
    Informe informe{caja, reloj};
    PanelesFalsos StatusBar1;
    AvisosFalsos avisos;
    Registros registros;
    ArchivoAbierto archivo;
};

} // namespace eeprog::prueba
