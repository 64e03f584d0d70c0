#include "bus.h"

#include <avr/io.h>
#include <util/delay.h>

/* At 7.3728 MHz one cycle is 136 ns. The pins read by PINA pass a synchronizer that may lag
 * the pins by up to 1.5 cycles, so read waits count from the output change to the sample. */
#define CE _BV(PD2)
#define OE _BV(PD3)
#define WE _BV(PD4)
#define ALTAS 0x1F /* A8-A12 on PB0-PB4; PB5-PB7 are the ISP lines */

/* From the last byte loaded the chip waits 150 us for another before its write cycle, which
 * lasts at most 10 ms. Polling gives up after 2000 waits of 10 us and their reads, some 27 ms,
 * so even a byte written twice is answered well within the program's 100 ms. */
#define ESPERASONDEO 10 /* us */
#define VUELTASSONDEO 2000u
#define CICLOESCRITURA 10 /* ms */

void iniciarbus(void)
{
    PORTD |= CE | OE | WE;
    DDRD |= CE | OE | WE;
    DDRC = 0xFF;
    DDRB |= ALTAS;
}

static void poneradireccion(uint16_t direccion)
{
    PORTC = (uint8_t)direccion;
    PORTB = (uint8_t)((PORTB & (uint8_t)~ALTAS) | ((direccion >> 8) & ALTAS));
}

/* /CE and /OE fall together; four cycles (544 ns) later, less the synchronizer's 1.5, the
 * sample is still 340 ns after them, over the 150 ns /CE and address access times. */
static uint8_t leerdatos(void)
{
    PORTD &= (uint8_t) ~(CE | OE);
    __builtin_avr_delay_cycles(4);
    uint8_t dato = PINA;
    PORTD |= CE | OE;
    return dato;
}

/* A /WE controlled byte load with /OE high: the address latches as /WE falls and the data as
 * it rises. /WE stays low two idle cycles plus the two of the instruction raising it, 544 ns
 * against the 100 ns minimum. */
static void cargarbyte(uint16_t direccion, uint8_t dato)
{
    poneradireccion(direccion);
    PORTA = dato;
    DDRA = 0xFF;
    PORTD &= (uint8_t)~CE;
    PORTD &= (uint8_t)~WE;
    __builtin_avr_delay_cycles(2);
    PORTD |= WE;
    PORTD |= CE;
    DDRA = 0;
    PORTA = 0;
}

uint8_t leermemoria(void* contexto, uint16_t direccion)
{
    (void)contexto;
    poneradireccion(direccion);
    return leerdatos();
}

/* The toggle bit: while the chip is busy, I/O6 changes from one read to the next, at any
 * address. Unlike DATA polling it also ends on a write the chip's protection ignored, whose
 * cycle leaves the old byte, and on a chip that has nothing to show. */
static void esperarciclo(void)
{
    uint8_t antes = leerdatos();
    for (uint16_t vuelta = 0; vuelta < VUELTASSONDEO; ++vuelta) {
        _delay_us(ESPERASONDEO);
        const uint8_t ahora = leerdatos();
        if (((antes ^ ahora) & 0x40) == 0)
            return;
        antes = ahora;
    }
}

void escribirmemoria(void* contexto, uint16_t direccion, uint8_t dato)
{
    (void)contexto;
    cargarbyte(direccion, dato);
    esperarciclo();
}

void escribirprotegida(void* contexto, uint16_t direccion, uint8_t dato)
{
    (void)contexto;
    cargarbyte(0x1555, 0xAA);
    cargarbyte(0x0AAA, 0x55);
    cargarbyte(0x1555, 0xA0);
    cargarbyte(direccion, dato);
    esperarciclo();
}

/* The sequences are page loads, each byte well within 150 us of the last; the chip then runs
 * a write cycle with nothing to poll, so the whole of it is waited. */
void desprotegermemoria(void* contexto)
{
    (void)contexto;
    cargarbyte(0x1555, 0xAA);
    cargarbyte(0x0AAA, 0x55);
    cargarbyte(0x1555, 0x80);
    cargarbyte(0x1555, 0xAA);
    cargarbyte(0x0AAA, 0x55);
    cargarbyte(0x1555, 0x20);
    _delay_ms(CICLOESCRITURA);
}

void protegermemoria(void* contexto)
{
    (void)contexto;
    cargarbyte(0x1555, 0xAA);
    cargarbyte(0x0AAA, 0x55);
    cargarbyte(0x1555, 0xA0);
    _delay_ms(CICLOESCRITURA);
}
