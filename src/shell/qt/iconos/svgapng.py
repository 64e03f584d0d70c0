#!/usr/bin/env python3
"""Renders an SVG file to a square PNG with the system's librsvg and cairo, for machines
without rsvg-convert. ImageMagick's own SVG reader shifts thin shapes by half a pixel, so
it is not used for the application icon.

    python3 svgapng.py eeprog.svg 128 eeprog-128.png
"""

import ctypes
import sys


class Rectangulo(ctypes.Structure):
    _fields_ = [("x", ctypes.c_double), ("y", ctypes.c_double),
                ("width", ctypes.c_double), ("height", ctypes.c_double)]


def biblioteca(*nombres):
    for nombre in nombres:
        try:
            return ctypes.CDLL(nombre)
        except OSError:
            pass
    sys.exit(f"svgapng: none of {', '.join(nombres)} could be loaded")


def main():
    if len(sys.argv) != 4:
        sys.exit("use: svgapng.py ORIGEN.svg LADO DESTINO.png")
    origen, lado, destino = sys.argv[1], int(sys.argv[2]), sys.argv[3]
    rsvg = biblioteca("librsvg-2.so.2", "librsvg-2.so", "librsvg-2.2.dylib")
    cairo = biblioteca("libcairo.so.2", "libcairo.so", "libcairo.2.dylib")

    rsvg.rsvg_handle_new_from_file.restype = ctypes.c_void_p
    rsvg.rsvg_handle_new_from_file.argtypes = [ctypes.c_char_p, ctypes.c_void_p]
    rsvg.rsvg_handle_render_document.restype = ctypes.c_int
    rsvg.rsvg_handle_render_document.argtypes = [ctypes.c_void_p, ctypes.c_void_p,
                                                 ctypes.POINTER(Rectangulo), ctypes.c_void_p]
    cairo.cairo_image_surface_create.restype = ctypes.c_void_p
    cairo.cairo_image_surface_create.argtypes = [ctypes.c_int, ctypes.c_int, ctypes.c_int]
    cairo.cairo_create.restype = ctypes.c_void_p
    cairo.cairo_create.argtypes = [ctypes.c_void_p]
    cairo.cairo_destroy.argtypes = [ctypes.c_void_p]
    cairo.cairo_surface_flush.argtypes = [ctypes.c_void_p]
    cairo.cairo_surface_write_to_png.restype = ctypes.c_int
    cairo.cairo_surface_write_to_png.argtypes = [ctypes.c_void_p, ctypes.c_char_p]
    cairo.cairo_surface_destroy.argtypes = [ctypes.c_void_p]

    dibujo = rsvg.rsvg_handle_new_from_file(origen.encode(), None)
    if not dibujo:
        sys.exit(f"svgapng: cannot read {origen}")
    CAIRO_FORMAT_ARGB32 = 0
    superficie = cairo.cairo_image_surface_create(CAIRO_FORMAT_ARGB32, lado, lado)
    contexto = cairo.cairo_create(superficie)
    if not rsvg.rsvg_handle_render_document(dibujo, contexto, ctypes.byref(Rectangulo(0, 0, lado, lado)), None):
        sys.exit(f"svgapng: cannot render {origen}")
    cairo.cairo_destroy(contexto)
    cairo.cairo_surface_flush(superficie)
    if cairo.cairo_surface_write_to_png(superficie, destino.encode()) != 0:
        sys.exit(f"svgapng: cannot write {destino}")
    cairo.cairo_surface_destroy(superficie)


if __name__ == "__main__":
    main()
