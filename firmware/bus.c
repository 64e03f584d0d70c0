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
/* A13 and A14, for the chips that have them, on the first two pins no other function needs:
 * port D's PD0-PD1 are the UART's and PD2-PD4 the control lines, and PD5 and PD6 sit beside
 * them on the package (pins 19 and 20). */
#define A13 _BV(PD5)
#define A14 _BV(PD6)

/* From the last byte loaded the chip waits 150 us for another before its write cycle, which
 * lasts at most 10 ms. Polling gives up after 2000 waits of 10 us and their reads, some 27 ms,
 * so even a byte written twice is answered well within the program's 100 ms. */
#define ESPERASONDEO 10 /* us */
#define VUELTASSONDEO 2000u
#define CICLOESCRITURA 10 /* ms */
#define TICKSCICLOMAXIMO TICKSSILENCIO(27)

/* The chip of the operation under way. */
static const struct modelo *modelo = &modelos[MODELOAT28C64B];

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
    if (modelo->lineas > 13)
        PORTD = (uint8_t)((PORTD & (uint8_t) ~(A13 | A14)) | ((direccion >> 13 & 1) ? A13 : 0) |
                          ((direccion >> 14 & 1) ? A14 : 0));
}

/* Low before they drive, and low before they let go, so they never pull up a pin the chip
 * in the socket drives. */
void elegirmemoria(void *contexto, const struct modelo *elegido)
{
    (void)contexto;
    modelo = elegido;
    PORTD &= (uint8_t) ~(A13 | A14);
    if (modelo->lineas > 13)
        DDRD |= A13 | A14;
    else
        DDRD &= (uint8_t) ~(A13 | A14);
}

/* /CE and /OE fall together; four cycles (544 ns) later, less the synchronizer's 1.5, the
 * sample is still 340 ns after them, over the 150 ns /CE and address access times. */
static inline __attribute__((always_inline)) uint8_t leerdatos(void)
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
#define PULSOESCRITURA()                                                                                               \
    do {                                                                                                               \
        PORTD &= (uint8_t)~CE;                                                                                         \
        PORTD &= (uint8_t)~WE;                                                                                         \
        __builtin_avr_delay_cycles(2);                                                                                 \
        PORTD |= WE;                                                                                                   \
        PORTD |= CE;                                                                                                   \
    } while (0)

static void cargarbyte(uint16_t direccion, uint8_t dato)
{
    poneradireccion(direccion);
    PORTA = dato;
    DDRA = 0xFF;
    PULSOESCRITURA();
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

/* The first two bytes of each of the protection's sequences, then its command. */
static void clave(uint8_t orden)
{
    cargarbyte(modelo->clave1, 0xAA);
    cargarbyte(modelo->clave2, 0x55);
    cargarbyte(modelo->clave1, orden);
}

static void abrirproteccion(void)
{
    clave(0xA0);
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

/* Eight bytes loaded in a row, each as PULSOESCRITURA loads it, in 18 cycles a byte against
 * the compiler's 22: a page's load is on the way of every write cycle. */
static const uint8_t* cargarocho(uint8_t baja, const uint8_t* dato)
{
    uint8_t cuenta = 8;
    uint8_t byte;
    __asm__ volatile("1:\n\t"
                     "out %[portc], %[baja]\n\t"
                     "ld %[byte], Z+\n\t"
                     "out %[porta], %[byte]\n\t"
                     "cbi %[portd], %[ce]\n\t"
                     "cbi %[portd], %[we]\n\t"
                     "rjmp .+0\n\t"
                     "sbi %[portd], %[we]\n\t"
                     "sbi %[portd], %[ce]\n\t"
                     "inc %[baja]\n\t"
                     "dec %[cuenta]\n\t"
                     "brne 1b"
                     : [baja] "+r"(baja), [byte] "=&r"(byte), [cuenta] "+r"(cuenta), "+z"(dato)
                     : [portc] "I"(_SFR_IO_ADDR(PORTC)), [porta] "I"(_SFR_IO_ADDR(PORTA)),
                       [portd] "I"(_SFR_IO_ADDR(PORTD)), [ce] "I"(PD2), [we] "I"(PD4)
                     : "memory");
    return dato;
}

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
    uint8_t baja = (uint8_t)direccion;
    const uint8_t* dato = datos;
    const uint8_t* ultimo = datos;
    for (uint8_t octeto = 0; octeto < TAMANOPAGINA / 8u; ++octeto) {
        uint8_t bits = mascara[octeto];
        if (bits == 0xFF) { /* a whole run given, as most are: no bit to test */
            dato = cargarocho(baja, dato);
            baja = (uint8_t)(baja + 8u);
            ultimo = dato - 1;
            continue;
        }
        for (uint8_t k = 0; k < 8; ++k, ++baja, ++dato, bits >>= 1) {
            if (bits & 1) {
                PORTC = baja;
                PORTA = *dato;
                PULSOESCRITURA();
                ultimo = dato;
            }
        }
    }
    ultimadireccion = (uint16_t)(direccion + (ultimo - datos));
    ultimodato = *ultimo;
    DDRA = 0;
    PORTA = 0;
    iniciociclo = TCNT1;
}

/* The page's bytes, each read as leerdatos reads it, with the bits where any differs from
 * datos. It runs once a page, between a write cycle's end and the next page's load, where
 * every microsecond counts 512 times in a 28C256: the four cycles between /OE falling and the
 * sample fetch the expected byte, and the loop takes 20 cycles a byte against the compiler's
 * 33. */
static uint8_t leerycomparar(uint8_t baja, uint8_t* destino, const uint8_t* datos)
{
    uint8_t distintos = 0;
    uint8_t cuenta = TAMANOPAGINA;
    uint8_t puerto, leido, esperado;
    __asm__ volatile("1:\n\t"
                     "out %[portc], %[baja]\n\t"
                     "in %[puerto], %[portd]\n\t"
                     "andi %[puerto], %[bajar]\n\t"
                     "out %[portd], %[puerto]\n\t" /* /CE and /OE fall */
                     "ld %[esperado], Z+\n\t"
                     "inc %[baja]\n\t"
                     "nop\n\t"
                     "in %[leido], %[pina]\n\t" /* four cycles later, as in leerdatos */
                     "ori %[puerto], %[subir]\n\t"
                     "out %[portd], %[puerto]\n\t"
                     "st X+, %[leido]\n\t"
                     "eor %[leido], %[esperado]\n\t"
                     "or %[distintos], %[leido]\n\t"
                     "dec %[cuenta]\n\t"
                     "brne 1b"
                     : [baja] "+r"(baja), [puerto] "=&d"(puerto), [leido] "=&r"(leido), [esperado] "=&r"(esperado),
                       [distintos] "+r"(distintos), [cuenta] "+r"(cuenta), "+z"(datos), "+x"(destino)
                     : [portc] "I"(_SFR_IO_ADDR(PORTC)), [portd] "I"(_SFR_IO_ADDR(PORTD)),
                       [pina] "I"(_SFR_IO_ADDR(PINA)), [bajar] "n"(0xFF & ~(CE | OE)), [subir] "n"(CE | OE)
                     : "memory");
    return distintos;
}

/* A page whose bytes all read as given needs no look at the mask, as in a whole image. */
uint8_t leerpagina(void* contexto, uint16_t direccion, uint8_t* destino, const uint8_t* datos, const uint8_t* mascara)
{
    (void)contexto;
    poneradireccion(direccion);
    if (leerycomparar((uint8_t)direccion, destino, datos) == 0)
        return 1;
    for (uint8_t i = 0; i < TAMANOPAGINA; ++i)
        if (destino[i] != datos[i] && (mascara[i >> 3] >> (i & 7) & 1))
            return 0;
    return 1;
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
    clave(0x80);
    clave(0x20);
    _delay_ms(CICLOESCRITURA);
}

void protegermemoria(void* contexto)
{
    (void)contexto;
    clave(0xA0);
    _delay_ms(CICLOESCRITURA);
}
