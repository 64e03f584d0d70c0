#include "pantallafalsa.h"
#include "plataforma/informe.h"

#include <gtest/gtest.h>

namespace eeprog {
namespace {

using namespace prueba;

TEST(Informe, EachLineEndsInCrLfAndATimedLineHasNoBlankBeforeItsMessage)
{
    CajaFalsa caja;
    RelojFijo reloj;
    Informe informe(caja, reloj);
    informe.linea("uno");
    informe.lineaconhora("... dos");
    EXPECT_EQ(caja.contenido, "uno\r\n10:11:12... dos\r\n");
}

TEST(Informe, WhatTheUserTypedStaysAndTheNextLineGoesBehindIt)
{
    CajaFalsa caja;
    RelojFijo reloj;
    Informe informe(caja, reloj);
    caja.contenido = "linea\r\nnota del usuario";
    informe.linea("... Lectura Concluida!!!");
    EXPECT_EQ(caja.contenido, "linea\r\nnota del usuario... Lectura Concluida!!!\r\n");
}

} // namespace
} // namespace eeprog
