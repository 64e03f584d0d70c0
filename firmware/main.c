/* The programmer board's firmware, for the ATmega16 at 7.3728 MHz: each byte from the program
 * goes to the protocol and its reply goes back. A reset starts the protocol idle, and so does
 * a silence in the middle of a frame. */
#include "bus.h"
#include "protocolo.h"
#include "rapido.h"
#include "uart.h"

#include <avr/io.h>

/* PC2-PC5 carry address lines, so JTAG must let go of them even if its fuse is programmed;
 * the data sheet takes two writes of JTD within four cycles. */
static void apagarjtag(void)
{
    __asm__ volatile("out %0, %1\n\tout %0, %1" : : "I"(_SFR_IO_ADDR(MCUCSR)), "r"((uint8_t)_BV(JTD)));
}

/* The fast protocol, from the version byte to the end frame or a silence: bytes heard go to
 * its frames (the receive interrupt keeps them meanwhile), the chip's write cycles are
 * watched, and replies go out, all in turn, so that the next page comes in while the chip
 * writes the last. */
static void sesionrapida(struct protocolo *protocolo, const struct chip *memoria)
{
    static struct rapido rapido;
    iniciarrapido(&rapido, protocolo->protegido);
    enviar(RAPIDOVERSION);
    esperarenvio();
    uartrapida(1);
    uint16_t ultimo = TCNT1; /* the last byte heard, or the last moment the board had work */
    uint8_t hueco = 0;
    while (!rapidoterminado(&rapido)) {
        const int16_t byte = tomarbyte();
        if (byte >= 0)
            rapidoentrada(&rapido, (uint8_t)byte);
        rapidotrabajar(&rapido, memoria);
        /* The next byte is made while the last one leaves, then waits for the line: a read
         * streams with no gap between its bytes. */
        const int16_t respuesta = rapidosalida(&rapido, memoria);
        if (respuesta >= 0)
            enviar((uint8_t)respuesta);
        if (byte >= 0 || !rapidoquieto(&rapido)) {
            ultimo = TCNT1;
            hueco = 0;
        }
        const uint16_t quieto = (uint16_t)(TCNT1 - ultimo);
        if (!hueco && quieto >= TICKSSILENCIO(TIEMPOHUECO)) {
            rapidohueco(&rapido);
            hueco = 1;
        }
        if (quieto >= TICKSSILENCIO(TIEMPOREPOSO))
            break;
    }
    esperarenvio();
    uartrapida(0);
    memoria->elegir(memoria->contexto, &modelos[MODELOAT28C64B]); /* A13 and A14 let go */
    protocolo->protegido = rapido.protegido;
    volverareposo(protocolo);
}

int main(void)
{
    apagarjtag();
    iniciarbus();
    iniciaruart();
    const struct chip memoria = {leermemoria,     escribirmemoria, escribirprotegida, desprotegermemoria,
                                 protegermemoria, cargarpagina,    ocupado,           leerpagina,
                                 elegirmemoria,   0};
    struct protocolo protocolo;
    iniciarprotocolo(&protocolo);
    for (;;) {
        const int16_t byte = recibir(TICKSSILENCIO(TIEMPOREPOSO));
        if (byte < 0) {
            volverareposo(&protocolo);
        } else {
            enviar(atenderbyte(&protocolo, &memoria, (uint8_t)byte));
            if (protocolo.estado == PASORAPIDO)
                sesionrapida(&protocolo, &memoria);
        }
    }
}
