#include "pantallafalsa.h"
#include "plataforma/informe.h"

#include <gtest/gtest.h>

namespace eeprog {

// What the user typed into the log stays, and the next line follows it on the same line.
TEST(Informe, LinesEndInCrLfBehindWhatTheUserTypedAndATimedLineHasNoBlankBeforeItsMessage)
{
    prueba::CajaFalsa caja;
    prueba::RelojFijo reloj;
    Informe informe(caja, reloj);
    caja.contenido = "linea\r\nnota del usuario";
    informe.linea("... uno");
    informe.lineaconhora("... dos");
    EXPECT_EQ(caja.contenido, "linea\r\nnota del usuario... uno\r\n10:11:12... dos\r\n");
}

} // namespace eeprog
