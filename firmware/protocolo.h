/* The board's side of the wire protocol, in plain C for both the board's firmware and the
 * emulator eeprog-placa: one byte from the program in, one reply out, and the chip reached
 * through the functions the caller gives. */
#ifndef EEPROG_PROTOCOLO_H
#define EEPROG_PROTOCOLO_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

enum {
    ORDENCOMPROBAR = 0x63,  /* "c": the check, answered "c" */
    ORDENLEER = 0x72,       /* "r": a read frame */
    ORDENESCRIBIR = 0x77,   /* "w": a write frame */
    ORDENDESPROTEGER = 0x64, /* "d": the chip's software data protection off, answered "D" */
    ORDENPROTEGER = 0x70,    /* "p": the protection on, answered "P" */
    /* Replies of their own, once the chip's sequence and write cycle are over: a board that
     * only echoed the command would not have done it. */
    HECHODESPROTEGER = 0x44,
    HECHOPROTEGER = 0x50
};

/* The AT28C64B: 13 address lines; the board leaves the upper ones unconnected. */
#define TAMANOCHIP 8192u

/* What the protocol needs of the chip. escribir returns once the chip has finished its write
 * cycle; desproteger and proteger once their sequence and its cycle are over. */
struct chip {
    uint8_t (*leer)(void *contexto, uint16_t direccion);
    void (*escribir)(void *contexto, uint16_t direccion, uint8_t dato);
    void (*desproteger)(void *contexto);
    void (*proteger)(void *contexto);
    void *contexto;
};

enum estadoprotocolo { REPOSO, CUENTA, ALTA, BAJA, TIPO, DATOS };

/* Where the board stands in a frame; nothing lasts from one frame to the next. */
struct protocolo {
    uint8_t estado;    /* an estadoprotocolo */
    uint8_t escritura; /* 1 in a write frame */
    uint8_t quedan;    /* data bytes left in the frame */
    uint16_t direccion;
};

/* Idle, as after a reset or when the port is opened again. */
void iniciarprotocolo(struct protocolo *p);

/* The reply to one byte from the program. */
uint8_t atenderbyte(struct protocolo *p, const struct chip *c, uint8_t byte);

#ifdef __cplusplus
}
#endif

#endif
