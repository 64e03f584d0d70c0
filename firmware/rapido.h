/* The board's side of the fast protocol, in plain C for the firmware and for eeprog-placa.
 *
 * A program that knows it asks in the idle state with ORDENRAPIDO, which the old protocol
 * only echoes; this board answers RESPUESTARAPIDO and RAPIDOVERSION instead, and both ends
 * move to 115200 baud. From then on each side sends frames:
 *
 *   type, length of the payload (0-255), payload, CRC-16 high, low
 *
 * The CRC is XMODEM's (polynomial 0x1021, starting at 0) over the type, the length and the
 * payload. The program's frames are handled in the order they came, and each gets its reply
 * in that order. The session ends with TRAMAFIN, or when the line has been quiet for
 * TIEMPOREPOSO; either way the board is back at 9600 baud and idle. */
#ifndef EEPROG_RAPIDO_H
#define EEPROG_RAPIDO_H

#include "protocolo.h"

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

enum {
    /* The program's frames. */
    TRAMALEER = 0x4C,   /* "L": address high, low, blocks high, low; answered by the blocks */
    TRAMAPAGINA = 0x50, /* "P": page address high, low, 8 bytes of mask, 64 data bytes */
    TRAMAHOLA = 0x48,   /* "H": the chip's number (none: the AT28C64B); the first exchange at the new
                           speed, answered by TRAMASALUDO */
    TRAMAPROTECCION = 0x53, /* "S": 1 turns the chip's software data protection on, 0 off */
    TRAMAFIN = 0x46,    /* "F": empty; answered by TRAMAADIOS, then the board is at 9600 */

    /* The board's. */
    TRAMABLOQUE = 0x6C, /* "l": address high, low, then TAMANOBLOQUE bytes of the chip */
    TRAMAGRABADA = 0x67, /* "g": page address high, low, result; after PAGINAMAL the page as read */
    TRAMASALUDO = 0x68, /* "h": empty */
    TRAMAPROTEGIDA = 0x73, /* "s": the same byte, once the sequence and its write cycle are over */
    TRAMAADIOS = 0x66,  /* "f": empty */
    TRAMAMAL = 0x6E     /* "n": empty; the frame in its turn was bad and nothing was done */
};

enum resultadopagina { PAGINABIEN = 0, PAGINAMAL = 1 };

#define TAMANOPAGINA 64u
#define TAMANOBLOQUE 128u
#define BAUDIOSRAPIDO 115200UL

/* A frame whose bytes stop coming for this many milliseconds is dropped: a byte lost on the
 * line leaves the board waiting for more than the program sent. */
#define TIEMPOHUECO 20

#define CARGAPAGINA (2u + TAMANOPAGINA / 8u + TAMANOPAGINA)
#define CARGAMAXIMA CARGAPAGINA

uint16_t actualizarcrc(uint16_t crc, uint8_t byte);

/* The page being written, in the frame it came in. The mask tells which of its bytes the
 * program gave: only those are loaded, and the rest of the page keeps its value. */
struct pagina {
    uint16_t direccion;
    const uint8_t *mascara;
    const uint8_t *datos;
    uint8_t protegida; /* loaded behind the protection's three bytes */
};

enum entradarapida { ENTIPO, ENLONGITUD, ENCARGA, ENCRCALTO, ENCRCBAJO, DESCARTANDO };

struct rapido {
    /* The frame coming in, and whether a whole one waits for its turn in carga. A page
     * being written keeps the other buffer, so the next frame comes in beside it. */
    uint8_t entrada; /* an entradarapida */
    uint8_t tipo;
    uint8_t longitud;
    uint8_t llegados;
    uint16_t crc;
    uint8_t cargas[2][CARGAMAXIMA];
    uint8_t *carga;
    uint8_t completa; /* 1 a good frame waits, 2 a bad one */

    const struct modelo *modelo; /* the chip the greeting named */
    uint8_t escribiendo;
    struct pagina pagina;
    uint8_t protegido; /* as in struct protocolo */

    /* What goes out: a reply of its own, or the blocks of a read, made as they go. */
    uint8_t salida[2u + 3u + TAMANOPAGINA + 2u];
    uint8_t porsalir;
    uint8_t salido;
    uint16_t leyendo; /* blocks left */
    uint16_t direccionleida;
    uint8_t enbloque; /* bytes of the current block frame sent */
    uint16_t crcbloque;

    uint8_t despedida; /* TRAMAADIOS queued: the session ends when it is out */
};

void iniciarrapido(struct rapido *r, uint8_t protegido);

/* One byte from the program. */
void rapidoentrada(struct rapido *r, uint8_t byte);

/* The line has been quiet TIEMPOHUECO in the middle of a frame. */
void rapidohueco(struct rapido *r);

/* Moves the chip on: ends a write cycle that is over, and serves the next frame in turn. */
void rapidotrabajar(struct rapido *r, const struct chip *c);

/* The next byte for the program, or -1 when there is none yet. */
int16_t rapidosalida(struct rapido *r, const struct chip *c);

/* No frame waits, no page is being written and nothing is going out. */
uint8_t rapidoquieto(const struct rapido *r);

/* TRAMAADIOS has gone out: the board returns to 9600 baud and the idle state. */
uint8_t rapidoterminado(const struct rapido *r);

#ifdef __cplusplus
}
#endif

#endif
