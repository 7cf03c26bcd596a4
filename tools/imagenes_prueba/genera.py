#!/usr/bin/env python3
"""Writes the small pictures that the decoder tests load.

Every picture shows the same four quarters: red at the top left, green at
the top right, blue at the bottom left and white at the bottom right, each
format at a size of its own so that a test can tell that the size came from
the file. The bitmaps and metafiles are assembled record by record here; the
JPEG is the 24-bit bitmap re-encoded by ImageMagick's "convert".

    python3 tools/imagenes_prueba/genera.py tests_qt/imagenes
"""

import os
import struct
import subprocess
import sys

ROJO, VERDE, AZUL, BLANCO = (255, 0, 0), (0, 255, 0), (0, 0, 255), (255, 255, 255)
PALETA = [ROJO, VERDE, AZUL, BLANCO]


def cuarto(x, y, ancho, alto):
    """Index in PALETA of the quarter that holds the pixel (x, y)."""
    return (1 if x >= ancho // 2 else 0) + (2 if y >= alto // 2 else 0)


def cabeceras_bmp(ancho, alto, bits, compresion, datos, colores):
    """File header and 40-byte info header of a bottom-up bitmap."""
    paleta = b"".join(struct.pack("<BBBB", b, g, r, 0) for (r, g, b) in colores)
    inicio = 14 + 40 + len(paleta)
    info = struct.pack("<IiiHHIIiiII", 40, ancho, alto, 1, bits, compresion,
                       len(datos), 2835, 2835, len(colores), 0)
    fichero = struct.pack("<2sIHHI", b"BM", inicio + len(datos), 0, 0, inicio)
    return fichero + info + paleta + datos


def bmp24(ancho, alto):
    relleno = (4 - ancho * 3 % 4) % 4
    filas = bytearray()
    for y in reversed(range(alto)):
        for x in range(ancho):
            r, g, b = PALETA[cuarto(x, y, ancho, alto)]
            filas += bytes((b, g, r))
        filas += bytes(relleno)
    return cabeceras_bmp(ancho, alto, 24, 0, bytes(filas), [])


def bmp8(ancho, alto):
    relleno = (4 - ancho % 4) % 4
    filas = bytearray()
    for y in reversed(range(alto)):
        filas += bytes(cuarto(x, y, ancho, alto) for x in range(ancho))
        filas += bytes(relleno)
    return cabeceras_bmp(ancho, alto, 8, 0, bytes(filas), PALETA)


def tramos(fila):
    """(length, index) runs of a row, each at most 255 long."""
    salida = []
    for indice in fila:
        if salida and salida[-1][1] == indice and salida[-1][0] < 255:
            salida[-1][0] += 1
        else:
            salida.append([1, indice])
    return salida


def rle8(ancho, alto):
    """8-bit run-length bitmap; the first row starts with a literal stretch
    of four pixels (absolute mode), the others are runs only."""
    datos = bytearray()
    for y in reversed(range(alto)):
        fila = [cuarto(x, y, ancho, alto) for x in range(ancho)]
        if y == alto - 1:
            datos += bytes((0, 4)) + bytes(fila[:4])
            fila = fila[4:]
        for n, indice in tramos(fila):
            datos += bytes((n, indice))
        datos += bytes((0, 0))
    datos[-2:] = bytes((0, 1))
    return cabeceras_bmp(ancho, alto, 8, 1, bytes(datos), PALETA)


def rle4(ancho, alto):
    """4-bit run-length bitmap: each run repeats one index in both nibbles."""
    datos = bytearray()
    for y in reversed(range(alto)):
        fila = [cuarto(x, y, ancho, alto) for x in range(ancho)]
        for n, indice in tramos(fila):
            datos += bytes((n, indice << 4 | indice))
        datos += bytes((0, 0))
    datos[-2:] = bytes((0, 1))
    return cabeceras_bmp(ancho, alto, 4, 2, bytes(datos), PALETA)


def colorref(rgb):
    r, g, b = rgb
    return r | g << 8 | b << 16


def wmf(ancho, alto, poligonos=False):
    """Placeable metafile in logical units of 1/1440 inch (twips) drawing
    three filled rectangles with a null pen; the bottom right quarter stays
    the white background. At 96 dpi it measures ancho x alto pixels. With
    poligonos the quarters are filled polygons, and a dashed red line runs
    inside the red one."""
    ext_x, ext_y = ancho * 15, alto * 15
    registros = []

    def registro(funcion, *parametros):
        registros.append(struct.pack("<IH", 3 + len(parametros), funcion) +
                         struct.pack("<%dH" % len(parametros), *(v & 0xFFFF for v in parametros)))

    registro(0x020B, 0, 0)            # SETWINDOWORG y, x
    registro(0x020C, ext_y, ext_x)    # SETWINDOWEXT y, x
    registro(0x02FA, 5, 0, 0, 0, 0)   # CREATEPENINDIRECT null pen -> slot 0
    registro(0x012D, 0)               # SELECTOBJECT 0
    medio_x, medio_y = ext_x // 2, ext_y // 2
    cajas = [(ROJO, 0, 0, medio_x, medio_y), (VERDE, medio_x, 0, ext_x, medio_y),
             (AZUL, 0, medio_y, medio_x, ext_y)]
    for color, izq, arr, der, aba in cajas:
        c = colorref(color)
        registro(0x02FC, 0, c & 0xFFFF, c >> 16, 0)  # CREATEBRUSHINDIRECT -> slot 1
        registro(0x012D, 1)
        if poligonos:
            registro(0x0324, 4, izq, arr, der, arr, der, aba, izq, aba)  # POLYGON
        else:
            registro(0x041B, aba, der, arr, izq)     # RECTANGLE bottom, right, top, left
        registro(0x01F0, 1)                          # DELETEOBJECT 1
    if poligonos:
        c = colorref(ROJO)
        registro(0x01F0, 0)
        registro(0x02FA, 1, 15, 0, c & 0xFFFF, c >> 16)  # CREATEPENINDIRECT dashed -> slot 0
        registro(0x012D, 0)
        registro(0x0325, 3, medio_x // 4, medio_y // 4, medio_x * 3 // 4, medio_y // 4,
                 medio_x * 3 // 4, medio_y * 3 // 4)     # POLYLINE
    registro(0x0000)                                 # EOF
    cuerpo = b"".join(registros)
    palabras = 9 + len(cuerpo) // 2
    mayor = max(len(r) for r in registros) // 2
    cabecera = struct.pack("<HHHIHIH", 1, 9, 0x0300, palabras, 2, mayor, 0)
    colocable = struct.pack("<IHhhhhHI", 0x9AC6CDD7, 0, 0, 0, ext_x, ext_y, 1440, 0)
    suma = 0
    for (palabra,) in struct.iter_unpack("<H", colocable):
        suma ^= palabra
    return colocable + struct.pack("<H", suma) + cabecera + cuerpo


def emf(ancho, alto):
    """Enhanced metafile in device units (MM_TEXT): three filled rectangles
    with the null stock pen over the white background. Its bounds are
    (0, 0)-(ancho - 1, alto - 1)."""
    registros = []

    def registro(tipo, cuerpo):
        registros.append(struct.pack("<II", tipo, 8 + len(cuerpo)) + cuerpo)

    registro(37, struct.pack("<I", 0x80000008))  # SELECTOBJECT NULL_PEN
    medio_x, medio_y = ancho // 2, alto // 2
    cajas = [(ROJO, 0, 0, medio_x, medio_y), (VERDE, medio_x, 0, ancho, medio_y),
             (AZUL, 0, medio_y, medio_x, alto)]
    for color, izq, arr, der, aba in cajas:
        registro(39, struct.pack("<IIII", 1, 0, colorref(color), 0))  # CREATEBRUSHINDIRECT
        registro(37, struct.pack("<I", 1))                            # SELECTOBJECT
        registro(43, struct.pack("<iiii", izq, arr, der, aba))        # RECTANGLE
        registro(40, struct.pack("<I", 1))                            # DELETEOBJECT
    registro(14, struct.pack("<III", 0, 16, 20))                      # EOF
    cuerpo = b"".join(registros)
    tamano_cabecera = 88
    total = tamano_cabecera + len(cuerpo)
    # The frame in hundredths of a millimetre, at 96 dpi.
    marco = (0, 0, round((ancho - 1) * 2540 / 96), round((alto - 1) * 2540 / 96))
    cabecera = struct.pack("<II", 1, tamano_cabecera)
    cabecera += struct.pack("<iiii", 0, 0, ancho - 1, alto - 1)
    cabecera += struct.pack("<iiii", *marco)
    cabecera += struct.pack("<IIIIHHIII", 0x464D4520, 0x10000, total, len(registros) + 1,
                            2, 0, 0, 0, 0)
    cabecera += struct.pack("<iiii", 1024, 768, 271, 203)  # reference device, pixels and mm
    assert len(cabecera) == tamano_cabecera
    return cabecera + cuerpo


def main():
    carpeta = sys.argv[1] if len(sys.argv) > 1 else "."
    os.makedirs(carpeta, exist_ok=True)
    ficheros = {
        "cuartos24.bmp": bmp24(40, 30),
        "cuartos8.bmp": bmp8(48, 36),
        "cuartos_rle8.bmp": rle8(50, 34),
        "cuartos_rle4.bmp": rle4(46, 30),
        "cuartos.rle": rle8(52, 40),
        "cuartos.wmf": wmf(80, 60),
        "poligonos.wmf": wmf(88, 66, poligonos=True),
        "cuartos.emf": emf(72, 54),
    }
    for nombre, datos in ficheros.items():
        with open(os.path.join(carpeta, nombre), "wb") as f:
            f.write(datos)
    # JPEG: a 64 x 48 bitmap of the same quarters, re-encoded.
    fuente = os.path.join(carpeta, "cuartos_jpeg_fuente.bmp")
    with open(fuente, "wb") as f:
        f.write(bmp24(64, 48))
    subprocess.run(["convert", fuente, "-quality", "90", "-strip",
                    os.path.join(carpeta, "cuartos.jpg")], check=True)
    os.remove(fuente)


if __name__ == "__main__":
    main()
