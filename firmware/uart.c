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
}

uint8_t recibir(void)
{
    while (!(UCSRA & _BV(RXC))) {
    }
    return UDR;
}

void enviar(uint8_t byte)
{
    while (!(UCSRA & _BV(UDRE))) {
    }
    UDR = byte;
}
