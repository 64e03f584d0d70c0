#include "rapido.h"

/* Byte by byte rather than bit by bit: the same CRC as avr-libc's _crc_xmodem_update in a
 * third of its time, which every byte of a page frame costs while the chip writes. */
uint16_t actualizarcrc(uint16_t crc, uint8_t byte)
{
    uint8_t x = (uint8_t)(crc >> 8) ^ byte;
    x ^= x >> 4;
    return (uint16_t)((crc << 8) ^ ((uint16_t)x << 12) ^ ((uint16_t)x << 5) ^ x);
}

void iniciarrapido(struct rapido *r, uint8_t protegido)
{
    r->entrada = ENTIPO;
    r->carga = r->cargas[0];
    r->completa = 0;
    r->escribiendo = 0;
    r->protegido = protegido;
    r->modelo = &modelos[MODELOAT28C64B];
    r->porsalir = 0;
    r->salido = 0;
    r->leyendo = 0;
    r->despedida = 0;
}

/* A frame that cannot be one of ours (too long for the board) is dropped up to the next
 * silence; the program, seeing no reply, waits for that silence and sends again. */
void rapidoentrada(struct rapido *r, uint8_t byte)
{
    if (r->completa && r->entrada == ENTIPO) {
        r->entrada = DESCARTANDO; /* the program sends one frame ahead, never two */
    }
    switch (r->entrada) {
    case ENTIPO:
        r->tipo = byte;
        r->crc = actualizarcrc(0, byte);
        r->entrada = ENLONGITUD;
        break;
    case ENLONGITUD:
        r->longitud = byte;
        r->llegados = 0;
        r->crc = actualizarcrc(r->crc, byte);
        r->entrada = byte > CARGAMAXIMA ? DESCARTANDO : byte == 0 ? ENCRCALTO : ENCARGA;
        break;
    case ENCARGA:
        r->carga[r->llegados++] = byte;
        r->crc = actualizarcrc(r->crc, byte);
        if (r->llegados == r->longitud)
            r->entrada = ENCRCALTO;
        break;
    case ENCRCALTO:
        r->crc ^= (uint16_t)(byte << 8);
        r->entrada = ENCRCBAJO;
        break;
    case ENCRCBAJO:
        r->completa = (r->crc ^ byte) == 0 ? 1 : 2;
        r->entrada = ENTIPO;
        break;
    default:
        break;
    }
}

void rapidohueco(struct rapido *r)
{
    r->entrada = ENTIPO;
}

static void responder(struct rapido *r, uint8_t tipo, const uint8_t *carga, uint8_t longitud)
{
    uint16_t crc = 0;
    r->salida[0] = tipo;
    r->salida[1] = longitud;
    for (uint8_t i = 0; i < longitud; ++i)
        r->salida[2 + i] = carga[i];
    for (uint8_t i = 0; i < 2 + longitud; ++i)
        crc = actualizarcrc(crc, r->salida[i]);
    r->salida[2 + longitud] = (uint8_t)(crc >> 8);
    r->salida[3 + longitud] = (uint8_t)crc;
    r->porsalir = (uint8_t)(4 + longitud);
    r->salido = 0;
}


static void cargar(struct rapido *r, const struct chip *c)
{
    c->cargarpagina(c->contexto, r->pagina.direccion, r->pagina.datos, r->pagina.mascara, r->pagina.protegida);
    r->escribiendo = 1;
}

/* As with the old protocol's bytes: a page that did not take goes again behind the
 * protection's three bytes, and once one has gone so the chip is taken as protected. */
static void acabarpagina(struct rapido *r, const struct chip *c)
{
    uint8_t respuesta[3 + TAMANOPAGINA];
    const struct pagina *p = &r->pagina;
    const uint8_t bien = c->leerpagina(c->contexto, p->direccion, respuesta + 3, p->datos, p->mascara);
    if (!bien && !r->pagina.protegida) {
        r->pagina.protegida = 1;
        cargar(r, c);
        return;
    }
    if (bien && r->pagina.protegida)
        r->protegido = 1;
    r->escribiendo = 0;
    respuesta[0] = (uint8_t)(r->pagina.direccion >> 8);
    respuesta[1] = (uint8_t)r->pagina.direccion;
    respuesta[2] = bien ? PAGINABIEN : PAGINAMAL;
    responder(r, TRAMAGRABADA, respuesta, bien ? 3 : (uint8_t)(3 + TAMANOPAGINA));
}

static void empezarpagina(struct rapido *r, const struct chip *c)
{
    struct pagina *p = &r->pagina;
    p->direccion = (uint16_t)(((r->carga[0] << 8 | r->carga[1]) & (r->modelo->tamano - 1)) & ~(TAMANOPAGINA - 1));
    p->mascara = r->carga + 2;
    p->datos = r->carga + 2 + TAMANOPAGINA / 8u;
    p->protegida = r->protegido;
    r->carga = r->carga == r->cargas[0] ? r->cargas[1] : r->cargas[0];
    cargar(r, c);
}

/* The frame in its turn. A page may start while the last reply is still going out: its own
 * reply comes after its write cycle. */
static void servir(struct rapido *r, const struct chip *c)
{
    const uint8_t buena = r->completa == 1;
    if (buena && r->tipo == TRAMAPAGINA && r->longitud == CARGAPAGINA) {
        empezarpagina(r, c);
    } else if (r->porsalir != 0 || r->leyendo != 0) {
        return;
    } else if (buena && r->tipo == TRAMALEER && r->longitud == 4) {
        r->direccionleida =
            (uint16_t)((r->carga[0] << 8 | r->carga[1]) & (r->modelo->tamano - 1) & ~(TAMANOBLOQUE - 1));
        r->leyendo = (uint16_t)(r->carga[2] << 8 | r->carga[3]);
        r->enbloque = 0;
    } else if (buena && r->tipo == TRAMAHOLA && (r->longitud == 0 || (r->longitud == 1 && r->carga[0] < MODELOS))) {
        r->modelo = &modelos[r->longitud == 0 ? MODELOAT28C64B : r->carga[0]];
        c->elegir(c->contexto, r->modelo);
        responder(r, TRAMASALUDO, (const uint8_t *)0, 0);
    } else if (buena && r->tipo == TRAMAPROTECCION && r->longitud == 1 && r->carga[0] <= 1) {
        r->protegido = r->carga[0];
        (r->protegido ? c->proteger : c->desproteger)(c->contexto);
        responder(r, TRAMAPROTEGIDA, r->carga, 1);
    } else if (buena && r->tipo == TRAMAFIN && r->longitud == 0) {
        responder(r, TRAMAADIOS, (const uint8_t *)0, 0);
        r->despedida = 1;
    } else {
        responder(r, TRAMAMAL, (const uint8_t *)0, 0);
    }
    r->completa = 0;
}

void rapidotrabajar(struct rapido *r, const struct chip *c)
{
    if (r->escribiendo) {
        if (c->ocupado(c->contexto) || r->porsalir != 0)
            return;
        acabarpagina(r, c);
    }
    if (r->completa && !r->escribiendo)
        servir(r, c);
}

/* A block frame: type, length, address high and low, the block, CRC high and low. */
static uint8_t bytedebloque(struct rapido *r, const struct chip *c)
{
    const uint8_t i = r->enbloque++;
    uint8_t byte;
    if (i == 0) {
        r->crcbloque = 0;
        byte = TRAMABLOQUE;
    } else if (i == 1)
        byte = 2 + TAMANOBLOQUE;
    else if (i == 2)
        byte = (uint8_t)(r->direccionleida >> 8);
    else if (i == 3)
        byte = (uint8_t)r->direccionleida;
    else if (i < 4 + TAMANOBLOQUE)
        byte = c->leer(c->contexto, (uint16_t)((r->direccionleida + i - 4) & (r->modelo->tamano - 1)));
    else if (i == 4 + TAMANOBLOQUE)
        return (uint8_t)(r->crcbloque >> 8);
    else {
        r->enbloque = 0;
        r->direccionleida = (uint16_t)((r->direccionleida + TAMANOBLOQUE) & (r->modelo->tamano - 1));
        --r->leyendo;
        return (uint8_t)r->crcbloque;
    }
    r->crcbloque = actualizarcrc(r->crcbloque, byte);
    return byte;
}

int16_t rapidosalida(struct rapido *r, const struct chip *c)
{
    if (r->porsalir != 0) {
        const uint8_t byte = r->salida[r->salido++];
        if (r->salido == r->porsalir)
            r->porsalir = 0;
        return byte;
    }
    if (r->leyendo != 0)
        return bytedebloque(r, c);
    return -1;
}

uint8_t rapidoquieto(const struct rapido *r)
{
    return !r->completa && !r->escribiendo && r->porsalir == 0 && r->leyendo == 0;
}

uint8_t rapidoterminado(const struct rapido *r)
{
    return r->despedida && r->porsalir == 0;
}
