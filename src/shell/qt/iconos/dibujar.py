#!/usr/bin/env python3
"""Draws the picture-button icons (48 x 48) and the 32 x 32 window icon as pixel art
and writes them as indexed PNG files next to this script.

Only the standard library is needed. Every shape gets a dark outline and its own fill,
and every word a soft light halo, so the icons read on the pale skins and on the dark
ones alike: the button paints its colour behind the transparent background.
"""

import os
import struct
import sys
import zlib

CARPETA = os.path.dirname(os.path.abspath(__file__))

# --- Colours -------------------------------------------------------------------------

TINTA = "#101410"  # the words
HALO = "#ffffff90"  # the light rim around the words

NEGRO = "#141418"  # outline of the dark and the grey parts
CUERPO = "#34343c"  # chip body
CUERPO_LUZ = "#50505c"
CUERPO_MARCA = "#8c8c9a"
PATA_LUZ = "#d4d4dc"
PATA_SOMBRA = "#70707c"

PAPEL = "#ffffff"
PAPEL_BORDE = "#303038"
PAPEL_PLIEGUE = "#c4c8d2"
RENGLON = "#7a8cb0"

VERDE = "#3cc43c"
VERDE_LUZ = "#8ae88a"
VERDE_BORDE = "#0e4a14"

# --- Canvas and masks ------------------------------------------------------------------


def rgba(color):
    if isinstance(color, tuple):
        return color
    h = color.lstrip("#")
    a = int(h[6:8], 16) if len(h) == 8 else 255
    return (int(h[0:2], 16), int(h[2:4], 16), int(h[4:6], 16), a)


class Lienzo:
    def __init__(self, ancho, alto):
        self.ancho = ancho
        self.alto = alto
        self.pixeles = [[(0, 0, 0, 0)] * ancho for _ in range(alto)]

    def dentro(self, x, y):
        return 0 <= x < self.ancho and 0 <= y < self.alto

    def punto(self, x, y, color):
        if self.dentro(x, y):
            self.pixeles[y][x] = rgba(color)

    def vacio(self, x, y):
        return self.dentro(x, y) and self.pixeles[y][x][3] == 0

    def pintar(self, mascara, color):
        for x, y in mascara:
            self.punto(x, y, color)

    def forma(self, mascara, relleno, borde):
        """A filled shape with its outline on its own outer pixels."""
        self.pintar(mascara, relleno)
        self.pintar(orilla(mascara), borde)

    def guardar(self, nombre):
        colores = {}
        filas = []
        for fila in self.pixeles:
            datos = bytearray([0])
            for p in fila:
                if p[3] == 0:
                    p = (0, 0, 0, 0)
                if p not in colores:
                    colores[p] = len(colores)
                datos.append(colores[p])
            filas.append(bytes(datos))
        if len(colores) > 256:
            sys.exit(f"{nombre}: {len(colores)} colours, more than a palette holds")
        paleta = sorted(colores, key=colores.get)
        plte = b"".join(bytes(p[:3]) for p in paleta)
        trns = bytes(p[3] for p in paleta)

        def trozo(tipo, datos):
            cuerpo = tipo + datos
            return struct.pack(">I", len(datos)) + cuerpo + struct.pack(">I", zlib.crc32(cuerpo) & 0xFFFFFFFF)

        cabecera = struct.pack(">IIBBBBB", self.ancho, self.alto, 8, 3, 0, 0, 0)
        png = (b"\x89PNG\r\n\x1a\n" + trozo(b"IHDR", cabecera) + trozo(b"PLTE", plte) + trozo(b"tRNS", trns)
               + trozo(b"IDAT", zlib.compress(b"".join(filas), 9)) + trozo(b"IEND", b""))
        with open(os.path.join(CARPETA, nombre), "wb") as salida:
            salida.write(png)
        return len(colores)


VECINOS4 = ((1, 0), (-1, 0), (0, 1), (0, -1))
VECINOS8 = VECINOS4 + ((1, 1), (1, -1), (-1, 1), (-1, -1))


def orilla(mascara, vecinos=VECINOS4):
    """The pixels of the mask that touch the outside."""
    return {(x, y) for x, y in mascara if any((x + dx, y + dy) not in mascara for dx, dy in vecinos)}


def aureola(mascara, vecinos=VECINOS8):
    """The pixels just outside the mask."""
    return {(x + dx, y + dy) for x, y in mascara for dx, dy in vecinos} - mascara


def rect(x0, y0, x1, y1):
    return {(x, y) for x in range(x0, x1 + 1) for y in range(y0, y1 + 1)}


def poligono(puntos):
    """Pixels whose centre lies inside the polygon (corners given on the pixel grid)."""
    xs = [p[0] for p in puntos]
    ys = [p[1] for p in puntos]
    res = set()
    for y in range(int(min(ys)) - 1, int(max(ys)) + 1):
        cy = y + 0.5
        cortes = []
        for i in range(len(puntos)):
            (ax, ay), (bx, by) = puntos[i], puntos[(i + 1) % len(puntos)]
            if (ay <= cy) != (by <= cy):
                cortes.append(ax + (cy - ay) * (bx - ax) / (by - ay))
        cortes.sort()
        for a, b in zip(cortes[0::2], cortes[1::2]):
            for x in range(int(min(xs)) - 1, int(max(xs)) + 1):
                if a <= x + 0.5 < b:
                    res.add((x, y))
    return res


def trazo(puntos, grosor):
    """A thick polyline: every pixel within grosor/2 of one of its segments."""
    res = set()
    r = grosor / 2
    for (ax, ay), (bx, by) in zip(puntos, puntos[1:]):
        for x in range(int(min(ax, bx) - r) - 1, int(max(ax, bx) + r) + 2):
            for y in range(int(min(ay, by) - r) - 1, int(max(ay, by) + r) + 2):
                px, py = x + 0.5, y + 0.5
                vx, vy = bx - ax, by - ay
                t = max(0.0, min(1.0, ((px - ax) * vx + (py - ay) * vy) / (vx * vx + vy * vy)))
                qx, qy = ax + t * vx - px, ay + t * vy - py
                if qx * qx + qy * qy <= r * r:
                    res.add((x, y))
    return res


def mover(mascara, dx, dy):
    return {(x + dx, y + dy) for x, y in mascara}


def diagonal(x, y, a, b):
    """Coordinates along a stroke rising to the right: a runs up the stroke, b across it."""
    return ((x - a) - (y - b), (x - a) + (y - b))


# --- Pieces --------------------------------------------------------------------------


def chip(lienzo, x, y, patas=7, ancho=10, marca=True):
    """A DIP package standing upright: x is the left end of the left pins, y the body's top.
    Returns the body's mask."""
    alto = 3 * patas + 3
    cuerpo = rect(x + 3, y, x + 2 + ancho, y + alto - 1)
    centro = x + 3 + ancho // 2
    muesca = {(centro - 2, y), (centro - 1, y), (centro, y), (centro + 1, y), (centro - 1, y + 1), (centro, y + 1)}
    cuerpo -= muesca
    for i in range(patas):
        py = y + 2 + 3 * i
        for px in (x, x + ancho + 3):
            lienzo.pintar(rect(px, py, px + 2, py), PATA_LUZ)
            lienzo.pintar(rect(px, py + 1, px + 2, py + 1), PATA_SOMBRA)
    lienzo.forma(cuerpo, CUERPO, NEGRO)
    lienzo.pintar(rect(x + 4, y + 1, x + 1 + ancho, y + 1) - muesca - orilla(cuerpo), CUERPO_LUZ)
    lienzo.pintar(rect(x + 4, y + 1, x + 4, y + alto - 2), CUERPO_LUZ)
    if marca:
        lienzo.punto(x + 5, y + 3, CUERPO_MARCA)
        medio = y + alto // 2
        lienzo.pintar(rect(x + 6, medio - 1, x + ancho - 1, medio - 1), CUERPO_MARCA)
        lienzo.pintar(rect(x + 6, medio + 1, x + ancho - 2, medio + 1), CUERPO_MARCA)
    return cuerpo


def hoja(lienzo, x0, y0, x1, y1, pliegue=4, renglones=True):
    """A sheet of paper with its top right corner folded."""
    esquina = x1 - pliegue
    papel = {(x, y) for x, y in rect(x0, y0, x1, y1) if not (x - esquina > y - y0)}
    lienzo.forma(papel, PAPEL, PAPEL_BORDE)
    doblez = {(x, y) for x, y in rect(esquina, y0, x1, y0 + pliegue) if x - esquina <= y - y0}
    lienzo.pintar(doblez, PAPEL_PLIEGUE)
    lienzo.pintar(rect(esquina, y0, esquina, y0 + pliegue), PAPEL_BORDE)
    lienzo.pintar(rect(esquina, y0 + pliegue, x1, y0 + pliegue), PAPEL_BORDE)
    if renglones:
        largos = (0, -3, -1, -4, 0, -2, -5, -1)
        y = y0 + pliegue + 3
        i = 0
        while y <= y1 - 3:
            fin = (esquina - 2 if y < y0 + pliegue + 2 else x1 - 2) + largos[i % len(largos)]
            lienzo.pintar(rect(x0 + 2, y, max(x0 + 3, fin), y), RENGLON)
            y += 2
            i += 1
    return papel


def flecha(lienzo, x0, yc, largo, cuerpo=2, cabeza=5, giro=0, relleno=VERDE, borde=VERDE_BORDE):
    """An arrow pointing right from x0 with its axis on row yc, turned giro quarter turns
    counterclockwise around its tail."""
    punta = cabeza
    forma = rect(0, -cuerpo, largo - punta - 1, cuerpo)
    for i in range(punta + 1):
        forma |= rect(largo - punta - 1 + i, -(cabeza - i), largo - punta - 1 + i, cabeza - i)
    for _ in range(giro % 4):
        forma = {(y, -x) for x, y in forma}
    forma = mover(forma, x0, yc)
    lienzo.forma(forma, relleno, borde)
    brillo = {(x, y) for x, y in forma if (x, y) not in orilla(forma)}
    if giro % 2 == 0:
        brillo = {(x, y) for x, y in brillo if (x, y - 1) in orilla(forma)}
    else:
        brillo = {(x, y) for x, y in brillo if (x - 1, y) in orilla(forma)}
    lienzo.pintar(brillo, VERDE_LUZ if relleno == VERDE else relleno)
    return forma


def lapiz(lienzo, x, y, largo, colores, grueso=3, goma=4, punta=5, metal=2):
    """A pencil (or a pen) rising to the right with its point at (x, y).
    colores: point, wood, body, body shade, band, rubber."""
    mina, madera, cuerpo, sombra, banda, trasera = colores
    forma = {}
    for px in range(x - 2, x + largo + 3):
        for py in range(y - largo - 3, y + 3):
            a, b = diagonal(px, py, x, y)
            # a: 0 at the point, up the pencil; b: 0 on its axis
            if a < 0 or a > 2 * largo:
                continue
            if a <= 2 * punta:
                ancho = grueso * a / (2 * punta)
                if abs(b) <= ancho + 0.01:
                    forma[(px, py)] = mina if a <= 3 else madera
            elif abs(b) <= grueso:
                if a > 2 * (largo - goma):
                    forma[(px, py)] = trasera
                elif a > 2 * (largo - goma - metal):
                    forma[(px, py)] = banda
                else:
                    forma[(px, py)] = sombra if b > grueso // 3 else cuerpo
    mascara = set(forma)
    for p, c in forma.items():
        lienzo.punto(*p, c)
    lienzo.pintar(orilla(mascara, VECINOS4), NEGRO)
    return mascara


# --- Words ------------------------------------------------------------------------------

LETRAS = {
    "A": [".###.", "##.##", "##.##", "#####", "##.##", "##.##", "##.##"],
    "B": ["####.", "##.##", "##.##", "####.", "##.##", "##.##", "####."],
    "C": [".###.", "##.##", "##...", "##...", "##...", "##.##", ".###."],
    "D": ["####.", "##.##", "##.##", "##.##", "##.##", "##.##", "####."],
    "E": ["####", "##..", "##..", "###.", "##..", "##..", "####"],
    "F": ["####", "##..", "##..", "###.", "##..", "##..", "##.."],
    "G": [".###.", "##.##", "##...", "##.##", "##.##", "##.##", ".####"],
    "I": ["##", "##", "##", "##", "##", "##", "##"],
    "L": ["##..", "##..", "##..", "##..", "##..", "##..", "####"],
    "O": [".###.", "##.##", "##.##", "##.##", "##.##", "##.##", ".###."],
    "R": ["####.", "##.##", "##.##", "####.", "##.##", "##.##", "##.##"],
    "T": ["######", "..##..", "..##..", "..##..", "..##..", "..##..", "..##.."],
    "U": ["##.##", "##.##", "##.##", "##.##", "##.##", "##.##", ".###."],
    "V": ["##.##", "##.##", "##.##", "##.##", "##.##", ".###.", "..#.."],
}

FILA_PALABRA = 38


def palabra(lienzo, texto, y=FILA_PALABRA):
    """The word in capitals, centred, dark on a light halo."""
    ancho = sum(len(LETRAS[c][0]) for c in texto) + len(texto) - 1
    x = (lienzo.ancho - ancho) // 2
    tinta = set()
    for c in texto:
        filas = LETRAS[c]
        for fy, fila in enumerate(filas):
            for fx, marca in enumerate(fila):
                if marca == "#":
                    tinta.add((x + fx, y + fy))
        x += len(filas[0]) + 1
    for p in aureola(tinta):
        if lienzo.vacio(*p):
            lienzo.punto(*p, HALO)
    lienzo.pintar(tinta, TINTA)


# --- The icons ----------------------------------------------------------------------------


def abrir():
    lienzo = Lienzo(48, 48)
    ocre, ocre_luz, ocre_borde = "#d99a1e", "#f7cf55", "#4a3008"
    fondo = rect(4, 11, 36, 33) | poligono([(4, 11), (6, 7), (16, 7), (18, 11)])
    lienzo.forma(fondo, ocre, ocre_borde)
    lienzo.pintar(rect(6, 12, 34, 12), "#b87c10")
    flecha(lienzo, 24, 25, 24, cuerpo=3, cabeza=7, giro=1)
    frente = poligono([(4, 34), (36, 34), (44, 17), (11, 17)])
    lienzo.forma(frente, ocre_luz, ocre_borde)
    lienzo.pintar({(x, y) for x, y in frente if (x, y - 1) in orilla(frente) and (x, y) not in orilla(frente)},
                  "#fde69a")
    palabra(lienzo, "ABRIR")
    return lienzo


def guardar():
    lienzo = Lienzo(48, 48)
    azul, azul_luz, azul_borde = "#2f62c8", "#5c8ae4", "#0c1a3c"
    disco = poligono([(9, 2), (36, 2), (40, 6), (40, 34), (9, 34)])
    lienzo.forma(disco, azul, azul_borde)
    lienzo.pintar({(x, y) for x, y in disco if (x - 1, y) in orilla(disco) and (x, y) not in orilla(disco)
                   and y < 33}, azul_luz)
    cierre = rect(15, 2, 33, 13)
    lienzo.forma(cierre, "#c6ccd6", azul_borde)
    lienzo.pintar(rect(16, 3, 32, 3), "#e8ecf2")
    lienzo.forma(rect(27, 4, 31, 11), "#34343c", azul_borde)
    etiqueta = rect(13, 17, 36, 34)
    lienzo.forma(etiqueta, PAPEL, azul_borde)
    lienzo.pintar(rect(14, 18, 35, 20), "#e85050")
    for y in (24, 27, 30):
        lienzo.pintar(rect(15, y, 34 - (y % 4) * 2, y), RENGLON)
    lienzo.punto(10, 32, azul_borde)
    lienzo.punto(38, 32, azul_borde)
    palabra(lienzo, "GUARDAR")
    return lienzo


def leer():
    lienzo = Lienzo(48, 48)
    chip(lienzo, 0, 5)
    flecha(lienzo, 17, 17, 12, cuerpo=2, cabeza=5)
    hoja(lienzo, 31, 4, 46, 30)
    palabra(lienzo, "LEER")
    return lienzo


def borrar():
    lienzo = Lienzo(48, 48)
    chip(lienzo, 3, 5)
    rojo, rojo_sombra, azul, azul_sombra = "#f06a78", "#c84858", "#4a7ee0", "#2c58b0"
    goma = {}
    for px in range(10, 48):
        for py in range(0, 34):
            a, b = diagonal(px, py, 20, 32)
            if 0 <= a <= 34 and -9 <= b <= 9:
                if a <= 14:
                    goma[(px, py)] = rojo_sombra if b > 4 else rojo
                else:
                    goma[(px, py)] = azul_sombra if b > 4 else azul
    mascara = set(goma)
    for p, c in goma.items():
        lienzo.punto(*p, c)
    lienzo.pintar(orilla(mascara), NEGRO)
    lienzo.pintar({(x, y) for x, y in mascara if diagonal(x, y, 20, 32)[0] in (15, 16)}, NEGRO)
    for p in ((17, 33), (14, 31), (20, 34), (12, 34)):
        lienzo.pintar(rect(p[0], p[1], p[0] + 1, p[1]), "#d05060")
    palabra(lienzo, "BORRAR")
    return lienzo


def grabar():
    lienzo = Lienzo(48, 48)
    hoja(lienzo, 1, 4, 14, 28)
    flecha(lienzo, 16, 16, 11, cuerpo=2, cabeza=5)
    chip(lienzo, 28, 5, ancho=10)
    pluma = ("#202028", "#d0d4de", "#d8283c", "#a01828", "#f0c840", "#303038")
    lapiz(lienzo, 32, 27, 16, pluma, grueso=3, goma=3, punta=4, metal=2)
    palabra(lienzo, "GRABAR")
    return lienzo


def verificar():
    lienzo = Lienzo(48, 48)
    chip(lienzo, 0, 5)
    hoja(lienzo, 20, 3, 38, 30)
    marca = trazo([(24, 18), (30, 25), (44, 8)], 5)
    lienzo.forma(marca, VERDE, VERDE_BORDE)
    palabra(lienzo, "VERIFICAR")
    return lienzo


def editar():
    lienzo = Lienzo(48, 48)
    hoja(lienzo, 6, 2, 28, 33, pliegue=6)
    madera = ("#303030", "#f2d2a0", "#f6c629", "#d49a10", "#b8bcc8", "#f08ca0")
    lapiz(lienzo, 21, 30, 24, madera, grueso=3, goma=4, punta=5, metal=2)
    palabra(lienzo, "EDITAR")
    return lienzo


def editado():
    lienzo = Lienzo(48, 48)
    chip(lienzo, 0, 5)
    flecha(lienzo, 16, 17, 11, cuerpo=2, cabeza=5)
    x0, y0, x1, y1 = 29, 6, 46, 29
    rejilla = rect(x0, y0, x1, y1)
    lienzo.forma(rejilla, PAPEL, PAPEL_BORDE)
    lienzo.pintar(rect(x0 + 1, y0 + 1, x1 - 1, y0 + 3), "#b8cef0")
    lienzo.pintar(rect(x0 + 1, y0 + 1, x0 + 3, y1 - 1), "#b8cef0")
    lienzo.forma(rect(36, 14, 40, 18), "#ffd83a", "#ffd83a")
    for x in range(x0 + 4, x1, 4):
        lienzo.pintar(rect(x, y0 + 1, x, y1 - 1), "#8c96aa")
    for y in range(y0 + 4, y1, 4):
        lienzo.pintar(rect(x0 + 1, y, x1 - 1, y), "#8c96aa")
    lienzo.pintar(orilla(rect(36, 14, 41, 19)), "#c06000")
    palabra(lienzo, "EDITADO")
    return lienzo


VENTANA = [
    "................................",
    "................................",
    "........KKKKKK....KKKKKK........",
    "........KHHHHHK..KHHHHHK........",
    "........KHBBBBBKKBBBBBBK........",
    "...KPPPPKHBMBBBBBKKKKKBKPPPPK...",
    "...KSSSSKHBBBBBBKLYYYKBKSSSSK...",
    "...KKKKKKHBBBBBBKLYYKBBKKKKKK...",
    "........KHBBBBBKLYYYKBBK........",
    "...KPPPPKHBBBBBKLYYKBBBKPPPPK...",
    "...KSSSSKHBBBBKLYYYKBBBKSSSSK...",
    "...KKKKKKHBBBBKLYYKBBBBKKKKKK...",
    "........KHBBBKLYYYKKKKBK........",
    "...KPPPPKHBBBKLYYYYYYYKKPPPPK...",
    "...KSSSSKHBBKYYYYYYYYKBKSSSSK...",
    "...KKKKKKHBBKKKKKYYYYKBKKKKKK...",
    "........KHBBBBBBKYYYKBBK........",
    "...KPPPPKHBBBBBBKYYKBBBKPPPPK...",
    "...KSSSSKHBBBBBKYYYKBBBKSSSSK...",
    "...KKKKKKHBBBBBKYYKBBBBKKKKKK...",
    "........KHBBBBKYYKBBBBBK........",
    "...KPPPPKHBBBBKYYKBBBBBKPPPPK...",
    "...KSSSSKHBBBBKYKBBBBBBKSSSSK...",
    "...KKKKKKHBBBKYKBBBBBBBKKKKKK...",
    "........KHBBBKYKBBBBBBBK........",
    "...KPPPPKHBBBKKBBBBBBBBKPPPPK...",
    "...KSSSSKHBBBBBBBBBBBBBKSSSSK...",
    "...KKKKKKHBBBBBBBBBBBBBKKKKKK...",
    "........KHBBBBBBBBBBBBBK........",
    "........KKKKKKKKKKKKKKKK........",
    "................................",
    "................................",
]

COLORES_VENTANA = {
    "K": NEGRO, "B": CUERPO, "H": CUERPO_LUZ, "M": CUERPO_MARCA, "P": PATA_LUZ, "S": PATA_SOMBRA,
    "Y": "#ffd21e", "L": "#fff2a0",
}


def ventana():
    """The window's icon, drawn pixel by pixel: the chip with a bolt, in few colours."""
    lienzo = Lienzo(32, 32)
    for y, fila in enumerate(VENTANA):
        for x, c in enumerate(fila):
            if c != ".":
                lienzo.punto(x, y, COLORES_VENTANA[c])
    return lienzo


ICONOS = {
    "abrir.png": abrir,
    "guardar.png": guardar,
    "leer.png": leer,
    "borrar.png": borrar,
    "grabar.png": grabar,
    "verificar.png": verificar,
    "edit.png": editar,
    "editado.png": editado,
    "eeprog-32.png": ventana,
}

if __name__ == "__main__":
    for nombre, dibujo in ICONOS.items():
        colores = dibujo().guardar(nombre)
        print(f"{nombre}: {colores} colours")
