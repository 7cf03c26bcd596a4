// The picture decoders behind the loader: QImageReader for bitmaps (also
// run-length ones) and JPEG, libwmf for Windows metafiles, libemf2svg with
// Qt SVG for enhanced metafiles. Each reads the size the file states before
// anything else, and refuses to decode a size the game could never use.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>
#include <cstdint>

#include "core/Programa.h"

// What a decoder made of a file. Imagen is Format_RGB32 when Estado is
// Leida; Ancho and Alto are the size the file states, also when the picture
// was decoded at a reduced size (see TamanoDecodificado) and when it is
// Desmesurada.
struct Decodificacion {
    EstadoCarga Estado = EstadoCarga::EnBlanco;
    int64_t Ancho = 0;
    int64_t Alto = 0;
    QImage Imagen;
};

// Largest number of pixels decoded at the picture's own size: 64 M, 256 MB
// at four bytes a pixel.
constexpr int64_t PIXELES_MAXIMOS = int64_t{64} << 20;

// Whether a stated size is past any use: even at the smallest zoom, 5 %, it
// stays wider than 1024 or taller than 768. A side of 0 or less is no size
// at all and is not Desmesurada. Such a picture is never decoded.
bool TamanoDesmesurado(int64_t ancho, int64_t alto);

// The size a picture stating w x h is decoded at. Up to PIXELES_MAXIMOS
// pixels, its own. A larger one is decoded straight at a reduced size, in
// its proportions: the least that still covers the largest picture any zoom
// makes of it (1024 x 768), so that the nearest-pixel stretch to the zoomed
// size only ever drops pixels. A JPEG then never exists at its full size.
QSize TamanoDecodificado(int64_t ancho, int64_t alto);

// The kinds of picture file, told by their first bytes, never by the name.
enum class ClaseImagen { Bmp, Jpeg, Wmf, Emf, Otra };
ClaseImagen ClaseDeContenido(const QByteArray &cabecera);

// A bitmap from the open file (it is not read whole first), tamanoFichero
// being its length in bytes.
class QIODevice;
Decodificacion DecodificaBmp(QIODevice &fichero, int64_t tamanoFichero);

// A JPEG from its bytes.
Decodificacion DecodificaJpeg(const QByteArray &datos);

// Whether a BMP file's bytes are fewer than its header needs; a header of
// a kind it doesn't know counts as short.
bool BmpTruncado(const QByteArray &cabecera, int64_t tamanoFichero);

// Whether a JPEG lacks the end-of-image marker after its first scan: a
// file cut anywhere in its coded data.
bool JpegTruncado(const QByteArray &datos);

// Metafiles, from their bytes. Without the library at build time every
// file of that kind is EnBlanco.
Decodificacion DecodificaWmf(const QByteArray &datos);
Decodificacion DecodificaEmf(const QByteArray &datos);
bool HayDecodificadorWmf();
bool HayDecodificadorEmf();
