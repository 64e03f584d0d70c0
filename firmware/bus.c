#include "bus.h"

#include "rapido.h"
#include "uart.h"

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
#define TICKSCICLOMAXIMO TICKSSILENCIO(27)

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

static void abrirproteccion(void)
{
    cargarbyte(0x1555, 0xAA);
    cargarbyte(0x0AAA, 0x55);
    cargarbyte(0x1555, 0xA0);
}

void escribirprotegida(void* contexto, uint16_t direccion, uint8_t dato)
{
    (void)contexto;
    abrirproteccion();
    cargarbyte(direccion, dato);
    esperarciclo();
}

/* The page's last byte loaded, which DATA polling reads back, and when its cycle began in
 * timer 1's ticks. */
static uint16_t ultimadireccion;
static uint8_t ultimodato;
static uint16_t iniciociclo;

/* Within a page only A0-A5 change, on port C, and the data lines may stay driven from one
 * byte to the next, as /OE stays high: each byte's load takes a couple of microseconds, and
 * the gap over bytes not given a few cycles each, well within the 150 us the chip waits for
 * the next. The receive interrupt may come between two, and takes less. */
void cargarpagina(void* contexto, uint16_t direccion, const uint8_t* datos, const uint8_t* mascara, uint8_t protegida)
{
    (void)contexto;
    if (protegida)
        abrirproteccion();
    poneradireccion(direccion);
    DDRA = 0xFF;
    uint8_t ultimo = 0;
    for (uint8_t octeto = 0; octeto < TAMANOPAGINA / 8u; ++octeto) {
        uint8_t i = (uint8_t)(octeto * 8u);
        for (uint8_t bits = mascara[octeto]; bits != 0; bits >>= 1, ++i) {
            if (bits & 1) {
                PORTC = (uint8_t)(direccion + i);
                PORTA = datos[i];
                PORTD &= (uint8_t)~CE;
                PORTD &= (uint8_t)~WE;
                __builtin_avr_delay_cycles(2);
                PORTD |= WE;
                PORTD |= CE;
                ultimo = i;
            }
        }
    }
    ultimadireccion = (uint16_t)(direccion + ultimo);
    ultimodato = datos[ultimo];
    DDRA = 0;
    PORTA = 0;
    iniciociclo = TCNT1;
}

void leerpagina(void* contexto, uint16_t direccion, uint8_t* destino)
{
    (void)contexto;
    poneradireccion(direccion);
    for (uint8_t i = 0; i < TAMANOPAGINA; ++i) {
        PORTC = (uint8_t)(direccion + i);
        destino[i] = leerdatos();
    }
}

/* DATA polling: while the cycle runs, I/O7 reads as the complement of the last byte loaded.
 * A cycle that stored nothing (the protection refused the load, or the chip is dead) leaves
 * the old byte there, so the toggle bit, which stops with the cycle, ends the wait too; and
 * after 27 ms it is over whatever the bus says. */
uint8_t ocupado(void* contexto)
{
    (void)contexto;
    if ((uint16_t)(TCNT1 - iniciociclo) > TICKSCICLOMAXIMO)
        return 0;
    poneradireccion(ultimadireccion);
    const uint8_t primera = leerdatos();
    const uint8_t segunda = leerdatos();
    return ((segunda ^ ultimodato) & 0x80) != 0 && ((primera ^ segunda) & 0x40) != 0;
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
