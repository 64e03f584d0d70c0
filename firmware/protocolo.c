#include "protocolo.h"

void iniciarprotocolo(struct protocolo *p)
{
    p->estado = REPOSO;
    p->escritura = 0;
    p->quedan = 0;
    p->direccion = 0;
}

/* The commands are echoed, so a terminal user sees each was heard; any other byte in the
 * idle state is echoed and ignored. The two protection commands run whole before their reply,
 * which is a byte of their own. */
static uint8_t enreposo(struct protocolo *p, const struct chip *c, uint8_t byte)
{
    if (byte == ORDENLEER || byte == ORDENESCRIBIR) {
        p->escritura = byte == ORDENESCRIBIR;
        p->estado = CUENTA;
    } else if (byte == ORDENDESPROTEGER) {
        c->desproteger(c->contexto);
        return HECHODESPROTEGER;
    } else if (byte == ORDENPROTEGER) {
        c->proteger(c->contexto);
        return HECHOPROTEGER;
    }
    return byte;
}

/* A data byte read or written; the address wraps within the chip. */
static uint8_t endatos(struct protocolo *p, const struct chip *c, uint8_t byte)
{
    uint8_t respuesta = byte;
    if (p->escritura)
        c->escribir(c->contexto, p->direccion, byte);
    else
        respuesta = c->leer(c->contexto, p->direccion);
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
