/* The serial line to the program: 9600 baud 8N1 by polling, since the exchange is lock step
 * and the board has nothing else to do while it waits. */
#ifndef EEPROG_UART_H
#define EEPROG_UART_H

#include <stdint.h>

void iniciaruart(void);
uint8_t recibir(void);
void enviar(uint8_t byte);

#endif
