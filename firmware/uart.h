/* The serial line to the program: 9600 baud 8N1 by polling, since the exchange is lock step
 * and the board has nothing else to do while it waits. */
#ifndef EEPROG_UART_H
#define EEPROG_UART_H

#include <stdint.h>

void iniciaruart(void);

/* Timer 1 counts the silence at F_CPU / 1024: 7200 ticks a second, up to 9 s in 16 bits. */
#define TICKSSILENCIO(milisegundos) ((uint16_t)((F_CPU / 1024UL) * (milisegundos) / 1000UL))

/* The next byte heard well, or -1 once the line has been quiet for the given ticks of
 * TICKSSILENCIO. A byte with a framing or overrun error is dropped as if it never came: it
 * is noise, or the line has lost bytes, and obeying it could change the chip. */
int16_t recibir(uint16_t silencio);

void enviar(uint8_t byte);

#endif
