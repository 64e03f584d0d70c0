/* The programmer board's firmware, for the ATmega16 at 7.3728 MHz: each byte from the program
 * goes to the protocol and its reply goes back. A reset starts the protocol idle, and so does
 * a silence in the middle of a frame. */
#include "bus.h"
#include "protocolo.h"
#include "uart.h"

#include <avr/io.h>

/* PC2-PC5 carry address lines, so JTAG must let go of them even if its fuse is programmed;
 * the data sheet takes two writes of JTD within four cycles. */
static void apagarjtag(void)
{
    __asm__ volatile("out %0, %1\n\tout %0, %1" : : "I"(_SFR_IO_ADDR(MCUCSR)), "r"((uint8_t)_BV(JTD)));
}

int main(void)
{
    apagarjtag();
    iniciarbus();
    iniciaruart();
    const struct chip memoria = {leermemoria, escribirmemoria, escribirprotegida, desprotegermemoria,
                                 protegermemoria, 0};
    struct protocolo protocolo;
    iniciarprotocolo(&protocolo);
    for (;;) {
        const int16_t byte = recibir(TICKSSILENCIO(TIEMPOREPOSO));
        if (byte < 0)
            volverareposo(&protocolo);
        else
            enviar(atenderbyte(&protocolo, &memoria, (uint8_t)byte));
    }
}
