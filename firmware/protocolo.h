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
    HECHOPROTEGER = 0x50,
    /* The fast protocol's question, "v", which an older board echoes; this one answers "V"
     * and the version, then speaks it (rapido.h). */
    ORDENRAPIDO = 0x76,
    RESPUESTARAPIDO = 0x56,
    RAPIDOVERSION = 2 /* 2: the chip named in the greeting, and the protection by frame */
};

/* A chip the board takes, as data: its bytes (a power of two), the two addresses of its
 * software data protection sequences, and its address lines. The board drives A13 (ZIF pin
 * 26) and A14 (pin 1) only for a chip that has them: on the AT28C64B both pins are free,
 * and the AT28C64 without B drives pin 1 itself (RDY/BUSY). */
struct modelo {
    uint16_t tamano;
    uint16_t clave1; /* takes AA, then the command byte */
    uint16_t clave2; /* takes 55 */
    uint8_t lineas;
};

/* The chips as the fast protocol numbers them. The old protocol knows only the first. */
enum { MODELOAT28C64B, MODELOAT28C256, MODELOS };
extern const struct modelo modelos[MODELOS];

/* The AT28C64B, the old protocol's chip: its addresses wrap at 8 KB. */
#define TAMANOCHIP 8192u

/* Milliseconds of silence on the line after which a frame left half way is given up and the
 * board is idle again. The board cannot see a port being opened, so a program that died in
 * the middle of a frame would otherwise have the next program's bytes taken as that frame's
 * data. Inside a frame the program's longest silence is the budget of one reply, 0.1 s to
 * 0.2 s; half a second is well above that, and no longer than the window takes from its start
 * to its first byte (its splash's first tick). */
#define TIEMPOREPOSO 500

/* What the protocol needs of the chip. escribir and escribirprotegido return once the chip has
 * finished its write cycle: the first is a plain byte write, the second the same byte behind
 * the three bytes that let it through the chip's software data protection, which stays as it
 * was. desproteger and proteger return once their sequence and its cycle are over. */
struct chip {
    uint8_t (*leer)(void *contexto, uint16_t direccion);
    void (*escribir)(void *contexto, uint16_t direccion, uint8_t dato);
    void (*escribirprotegido)(void *contexto, uint16_t direccion, uint8_t dato);
    void (*desproteger)(void *contexto);
    void (*proteger)(void *contexto);
    /* For the fast protocol's page writes: the bytes of the page whose bit is set in the
     * mask, behind the protection's three bytes when protegida, in one load; it returns as
     * the write cycle starts, and ocupado is 1 while that cycle runs. The page's
     * address is aligned. */
    void (*cargarpagina)(void *contexto, uint16_t direccion, const uint8_t *datos, const uint8_t *mascara,
                         uint8_t protegida);
    uint8_t (*ocupado)(void *contexto);
    /* The 64 bytes of the page, in one go, and whether every byte the mask gives reads as
     * in datos: the check after a page write. */
    uint8_t (*leerpagina)(void *contexto, uint16_t direccion, uint8_t *destino, const uint8_t *datos,
                          const uint8_t *mascara);
    /* The chip of what follows, until the next call; the board starts with the first. */
    void (*elegir)(void *contexto, const struct modelo *modelo);
    void *contexto;
};

/* PASORAPIDO: RESPUESTARAPIDO has been answered; the caller sends RAPIDOVERSION and serves
 * a fast session, after which the protocol is idle. */
enum estadoprotocolo { REPOSO, CUENTA, ALTA, BAJA, TIPO, DATOS, PASORAPIDO };

/* Where the board stands in a frame, and what it has learnt of the chip since the last check:
 * each operation opens with a check, and the chip may have been changed between two. */
struct protocolo {
    uint8_t estado;    /* an estadoprotocolo */
    uint8_t escritura; /* 1 in a write frame */
    uint8_t quedan;    /* data bytes left in the frame */
    uint16_t direccion;
    uint8_t protegido; /* 1 once a plain write was ignored and a protected one went through */
};

/* Idle, as after a reset. */
void iniciarprotocolo(struct protocolo *p);

/* The reply to one byte from the program. */
uint8_t atenderbyte(struct protocolo *p, const struct chip *c, uint8_t byte);

/* The line has been quiet for TIEMPOREPOSO: a frame left half way is over. */
void volverareposo(struct protocolo *p);

#ifdef __cplusplus
}
#endif

#endif
