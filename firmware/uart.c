#include "uart.h"

#include <avr/interrupt.h>
#include <avr/io.h>

/* 7.3728 MHz / (16 * 9600) - 1 = 47, and / (16 * 115200) - 1 = 3, both exact, with U2X off. */
#define UBRR9600 47
#define UBRR115200 3

/* Bytes heard in fast mode and not yet taken: more than a page frame's worth of time. */
#define TAMANOANILLO 64u
static volatile uint8_t anillo[TAMANOANILLO];
static volatile uint8_t cabeza;
static uint8_t cola;

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

/* TXC is cleared by writing it a one, after each byte is in the buffer, so that it stands
 * for the last byte alone: the one before can no longer set it, as a byte now waits. */
void enviar(uint8_t byte)
{
    while (!(UCSRA & _BV(UDRE))) {
    }
    UDR = byte;
    UCSRA = _BV(TXC);
}

void esperarenvio(void)
{
    while (!(UCSRA & _BV(TXC))) {
    }
}

/* A full ring drops the byte, as an overrun would: the frame then fails its CRC or its
 * length, and the program sends it again. */
ISR(USART_RXC_vect)
{
    const uint8_t estado = UCSRA;
    const uint8_t byte = UDR;
    const uint8_t siguiente = (uint8_t)((cabeza + 1) & (TAMANOANILLO - 1));
    if (!(estado & (_BV(FE) | _BV(DOR))) && siguiente != cola) {
        anillo[cabeza] = byte;
        cabeza = siguiente;
    }
}

void uartrapida(uint8_t rapida)
{
    cli();
    UBRRH = 0; /* URSEL clear: the divider's high bits, not UCSRC */
    UBRRL = rapida ? UBRR115200 : UBRR9600;
    cabeza = 0;
    cola = 0;
    if (rapida) {
        UCSRB |= _BV(RXCIE);
        sei();
    } else {
        UCSRB &= (uint8_t)~_BV(RXCIE);
    }
}

int16_t tomarbyte(void)
{
    if (cola == cabeza)
        return -1;
    const uint8_t byte = anillo[cola];
    cola = (uint8_t)((cola + 1) & (TAMANOANILLO - 1));
    return byte;
}
