/* The serial line to the program: 9600 baud 8N1 by polling, since the exchange is lock step
 * and the board has nothing else to do while it waits; 115200 for the fast protocol. */
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

/* Returns once the last byte sent has left the line, so the speed can change after it. */
void esperarenvio(void);

/* The fast protocol's line: 115200 baud, and the bytes heard kept by the receive interrupt,
 * since a page load and its check take longer than the two bytes the UART holds. With 0,
 * back to 9600 and polling. */
void uartrapida(uint8_t rapida);

/* In fast mode: the next byte heard well, or -1. */
int16_t tomarbyte(void);

#endif
