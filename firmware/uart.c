#include "uart.h"

#include <avr/io.h>

/* 7.3728 MHz / (16 * 9600) - 1 = 47 exactly, with U2X off. */
#define UBRR9600 47

void iniciaruart(void)
{
    UBRRH = 0;
    UBRRL = UBRR9600;
    UCSRA = 0;
    UCSRC = _BV(URSEL) | _BV(UCSZ1) | _BV(UCSZ0);
    UCSRB = _BV(RXEN) | _BV(TXEN);
    TCCR1B = _BV(CS12) | _BV(CS10);
}

/* The status bits belong to the byte at the head of the receive buffer, so they are read
 * before it; reading the byte moves them on. A byte dropped leaves the count running. */
int16_t recibir(uint16_t silencio)
{
    TCNT1 = 0;
    for (;;) {
        const uint8_t estado = UCSRA;
        if (estado & _BV(RXC)) {
            const uint8_t byte = UDR;
            if (!(estado & (_BV(FE) | _BV(DOR))))
                return byte;
        } else if (TCNT1 >= silencio) {
            return -1;
        }
    }
}

void enviar(uint8_t byte)
{
    while (!(UCSRA & _BV(UDRE))) {
    }
    UDR = byte;
}
