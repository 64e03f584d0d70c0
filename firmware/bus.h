/* The chip on the ATmega16's pins: data on port A, address on port C, PB0-PB4 and, for the
 * chips with 15 address lines, PD5-PD6; /CE, /OE and /WE on PD2-PD4. These are the functions
 * of the protocols' struct chip; their context is unused, and the bus keeps the chip chosen
 * and what DATA polling needs of the last page load. */
#ifndef EEPROG_BUS_H
#define EEPROG_BUS_H

#include "protocolo.h"

#include <stdint.h>

/* The control lines high before they become outputs; the data lines stay inputs as reset left
 * them. */
void iniciarbus(void);

uint8_t leermemoria(void* contexto, uint16_t direccion);

/* Each returns once the toggle bit shows the write cycle over, or after some 27 ms. */
void escribirmemoria(void* contexto, uint16_t direccion, uint8_t dato);
/* The byte behind the data sheet's three-byte sequence, in one page load: a chip whose
 * software data protection is on takes it, and the protection stays on. */
void escribirprotegida(void* contexto, uint16_t direccion, uint8_t dato);

/* The fast protocol's page load, and its write cycle's end. Timer 1 must be running. */
void cargarpagina(void* contexto, uint16_t direccion, const uint8_t* datos, const uint8_t* mascara, uint8_t protegida);
uint8_t ocupado(void* contexto);
uint8_t leerpagina(void* contexto, uint16_t direccion, uint8_t* destino, const uint8_t* datos, const uint8_t* mascara);

void desprotegermemoria(void* contexto);
void protegermemoria(void* contexto);

/* Drives A13 and A14 for a chip that has them, and lets them go otherwise. */
void elegirmemoria(void* contexto, const struct modelo* modelo);

#endif
