#include "protocolo.h"

/* From the data sheets: the AT28C64B and the AT28C256 (and its equals, 28C256). */
const struct modelo modelos[MODELOS] = {
    {8192u, 0x1555, 0x0AAA, 13},
    {32768u, 0x5555, 0x2AAA, 15},
};

void iniciarprotocolo(struct protocolo *p)
{
    p->estado = REPOSO;
    p->escritura = 0;
    p->quedan = 0;
    p->direccion = 0;
    p->protegido = 0;
}

void volverareposo(struct protocolo *p)
{
    p->estado = REPOSO;
}

/* The commands are echoed, so a terminal user sees each was heard; any other byte in the
 * idle state is echoed and ignored. The two protection commands run whole before their reply,
 * which is a byte of their own. */
static uint8_t enreposo(struct protocolo *p, const struct chip *c, uint8_t byte)
{
    if (byte == ORDENLEER || byte == ORDENESCRIBIR) {
        p->escritura = byte == ORDENESCRIBIR;
        p->estado = CUENTA;
    } else if (byte == ORDENCOMPROBAR) {
        p->protegido = 0;
    } else if (byte == ORDENDESPROTEGER) {
        c->desproteger(c->contexto);
        p->protegido = 0;
        return HECHODESPROTEGER;
    } else if (byte == ORDENPROTEGER) {
        c->proteger(c->contexto);
        p->protegido = 1;
        return HECHOPROTEGER;
    } else if (byte == ORDENRAPIDO) {
        p->estado = PASORAPIDO;
        return RESPUESTARAPIDO;
    }
    return byte;
}

/* Every byte written is read back. A chip with its software data protection on ignores a plain
 * write, so a byte that did not take goes again as a protected write; once one has gone
 * through, the chip is taken as protected and the plain write is skipped until the next check,
 * so each byte costs one write cycle. A byte the chip still does not hold (no chip, a dead one,
 * a broken line) is answered with what the chip holds, so the program sees it in the echo. */
static uint8_t grabar(struct protocolo *p, const struct chip *c, uint8_t dato)
{
    uint8_t leido;
    if (!p->protegido) {
        c->escribir(c->contexto, p->direccion, dato);
        leido = c->leer(c->contexto, p->direccion);
        if (leido == dato)
            return dato;
    }
    c->escribirprotegido(c->contexto, p->direccion, dato);
    leido = c->leer(c->contexto, p->direccion);
    if (leido == dato)
        p->protegido = 1;
    return leido;
}

/* A data byte read or written; the address wraps within the chip. */
static uint8_t endatos(struct protocolo *p, const struct chip *c, uint8_t byte)
{
    const uint8_t respuesta = p->escritura ? grabar(p, c, byte) : c->leer(c->contexto, p->direccion);
    p->direccion = (uint16_t)((p->direccion + 1) & (TAMANOCHIP - 1));
    if (--p->quedan == 0)
        p->estado = REPOSO;
    return respuesta;
}

/* The header bytes are echoed as they come; the record type is otherwise ignored, so every
 * frame carries data, and a count of 0 ends the frame at its type. */
uint8_t atenderbyte(struct protocolo *p, const struct chip *c, uint8_t byte)
{
    switch (p->estado) {
    case CUENTA:
        p->quedan = byte;
        p->estado = ALTA;
        return byte;
    case ALTA:
        p->direccion = (uint16_t)(byte << 8);
        p->estado = BAJA;
        return byte;
    case BAJA:
        p->direccion = (uint16_t)((p->direccion | byte) & (TAMANOCHIP - 1));
        p->estado = TIPO;
        return byte;
    case TIPO:
        p->estado = p->quedan == 0 ? REPOSO : DATOS;
        return byte;
    case DATOS:
        return endatos(p, c, byte);
    default:
        return enreposo(p, c, byte);
    }
}
