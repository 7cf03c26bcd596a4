// Bitmaps and JPEG through QImageReader, with the checks it leaves to us: a
// truncated BMP comes back with rows of uninitialised memory and a
// truncated JPEG grey at the bottom, both without an error.
#include <QBuffer>
#include <QImageReader>

#include "qt/Decodificadores.h"

namespace {

// QImageReader's own allocation limit, in MB: room for the largest bitmap
// any zoom can use, 20499 x 15379 at four bytes a pixel, which the reader
// decodes whole before it is reduced. (Its bytes are all in the file: a
// bitmap stating more than its file holds is refused before.) A JPEG is
// decoded at its reduced size and never comes near it.
constexpr int LIMITE_LECTOR_MB = 1280;

uint32_t Palabra(const QByteArray &b, int desde, int bytes) {
    uint32_t v = 0;
    for (int i = bytes - 1; i >= 0; --i) {
        v = (v << 8) | static_cast<uint8_t>(b[desde + i]);
    }
    return v;
}

uint32_t PalabraAlta(const QByteArray &b, qsizetype desde) {
    return (static_cast<uint32_t>(static_cast<uint8_t>(b[desde])) << 8) |
           static_cast<uint8_t>(b[desde + 1]);
}

// Every index of a palette picture a colour: those past the file's own
// palette are black.
void CompletaPaleta(QImage &imagen) {
    if (imagen.format() == QImage::Format_Indexed8 && imagen.colorCount() < 256) {
        QList<QRgb> paleta = imagen.colorTable();
        paleta.resize(256, qRgb(0, 0, 0));
        imagen.setColorTable(paleta);
    }
}

// Reads the picture. A run-length bitmap may skip pixels (a jump, a line
// ended early), which the reader leaves as they were: it reads into a
// palette picture cleared to index 0 that it reuses, and anything else is
// taken for unreadable.
bool LeeImagen(QImageReader &lector, const QSize &tamano, bool conSaltos, QImage &imagen) {
    const uchar *previo = nullptr;
    if (conSaltos) {
        imagen = QImage(tamano, QImage::Format_Indexed8);
        if (imagen.isNull()) {
            return false;
        }
        imagen.fill(0);
        previo = imagen.constBits();
    }
    if (!lector.read(&imagen) || imagen.isNull() || imagen.size() != tamano) {
        return false;
    }
    return previo == nullptr || imagen.constBits() == previo;
}

// The size the reader finds in the header; then the picture, unless the
// size is past use or the file is cut short. A picture of more pixels than
// are decoded whole comes out reduced: the reader decodes a JPEG straight
// at that size (libjpeg's scaled decoding); a bitmap, which it can only
// read whole, is reduced by the nearest pixel right after.
Decodificacion Lee(QImageReader &lector, bool truncado, bool conSaltos, bool reduceAlLeer) {
    Decodificacion d;
    lector.setAutoTransform(false);
    const QSize tamano = lector.size();
    if (!tamano.isValid()) {
        return d;
    }
    if (TamanoDesmesurado(tamano.width(), tamano.height())) {
        return {EstadoCarga::Desmesurada, tamano.width(), tamano.height(), {}};
    }
    if (truncado) {
        return d;
    }
    const QSize reducido = TamanoDecodificado(tamano.width(), tamano.height());
    const bool alLeer = reducido != tamano && reduceAlLeer;
    if (alLeer) {
        lector.setScaledSize(reducido);
    }
    QImage imagen;
    if (!LeeImagen(lector, alLeer ? reducido : tamano, conSaltos, imagen)) {
        return d;
    }
    CompletaPaleta(imagen);
    if (imagen.size() != reducido) {
        imagen = imagen.scaled(reducido, Qt::IgnoreAspectRatio, Qt::FastTransformation);
    }
    d.Imagen = imagen.convertToFormat(QImage::Format_RGB32);
    if (!d.Imagen.isNull()) {
        d.Estado = EstadoCarga::Leida;
        d.Ancho = tamano.width();
        d.Alto = tamano.height();
    }
    return d;
}

// The fields of a BMP header that size it.
struct CabeceraBmp {
    bool conocida = false; // a header kind this reads
    int64_t ancho = 0, alto = 0;
    uint32_t inicio = 0, bits = 0, compresion = 0, tamanoImagen = 0;
};

CabeceraBmp LeeCabeceraBmp(const QByteArray &c) {
    CabeceraBmp b;
    if (c.size() < 26) {
        return b;
    }
    b.inicio = Palabra(c, 10, 4);
    const uint32_t tamanoCabecera = Palabra(c, 14, 4);
    if (tamanoCabecera == 12) { // the old OS/2 header: 16-bit sides, never compressed
        b.conocida = true;
        b.ancho = Palabra(c, 18, 2);
        b.alto = Palabra(c, 20, 2);
        b.bits = Palabra(c, 24, 2);
    } else if (tamanoCabecera >= 40 && tamanoCabecera <= 124 && c.size() >= 54) {
        b.conocida = true;
        b.ancho = static_cast<int32_t>(Palabra(c, 18, 4));
        b.alto = static_cast<int32_t>(Palabra(c, 22, 4));
        b.alto = b.alto < 0 ? -b.alto : b.alto; // rows from the top
        b.bits = Palabra(c, 28, 2);
        b.compresion = Palabra(c, 30, 4);
        b.tamanoImagen = Palabra(c, 34, 4);
    }
    return b;
}

// The bytes a BMP of this header needs, or -1 when it can't tell.
int64_t BytesNecesariosBmp(const CabeceraBmp &b) {
    if (!b.conocida || b.ancho <= 0 || TamanoDesmesurado(b.ancho, b.alto)) {
        return -1;
    }
    if (b.compresion == 0 || b.compresion == 3 || b.compresion == 6) {
        const int64_t fila = ((b.ancho * b.bits + 31) / 32) * 4;
        return static_cast<int64_t>(b.inicio) + fila * b.alto;
    }
    // Run-length data: the header's length, when it gives one. Many writers
    // leave it at 0; then the data must at least begin, and a file cut
    // short is harmless, since runs are read into a picture cleared first.
    if (b.compresion == 1 || b.compresion == 2) {
        return static_cast<int64_t>(b.inicio) + (b.tamanoImagen == 0 ? 2 : b.tamanoImagen);
    }
    // Embedded data: the header gives the length, which it can't lack.
    return b.tamanoImagen == 0 ? -1 : static_cast<int64_t>(b.inicio) + b.tamanoImagen;
}

} // namespace

bool BmpTruncado(const QByteArray &cabecera, int64_t tamanoFichero) {
    const int64_t necesarios = BytesNecesariosBmp(LeeCabeceraBmp(cabecera));
    return necesarios < 0 || tamanoFichero < necesarios;
}

bool JpegTruncado(const QByteArray &datos) {
    qsizetype pos = 2;
    while (pos + 4 <= datos.size()) {
        if (static_cast<uint8_t>(datos[pos]) != 0xFF) {
            return true;
        }
        const uint8_t marca = static_cast<uint8_t>(datos[pos + 1]);
        if (marca == 0xFF) { // fill byte
            ++pos;
            continue;
        }
        if (marca == 0x01 || (marca >= 0xD0 && marca <= 0xD8)) { // no length
            pos += 2;
            continue;
        }
        if (marca == 0xD9) { // the end before any scan
            return true;
        }
        const uint32_t largo = PalabraAlta(datos, pos + 2);
        if (largo < 2) {
            return true;
        }
        if (marca == 0xDA) {
            // Coded data never holds FF D9: the first one is the end.
            return datos.indexOf("\xFF\xD9", pos + 2 + largo) < 0;
        }
        pos += 2 + largo;
    }
    return true;
}

Decodificacion DecodificaBmp(QIODevice &fichero, int64_t tamanoFichero) {
    // The reader itself gives no size for a very large bitmap: the header
    // is read here first.
    const QByteArray cabecera = fichero.peek(54);
    const CabeceraBmp b = LeeCabeceraBmp(cabecera);
    if (b.conocida && TamanoDesmesurado(b.ancho, b.alto)) {
        return {EstadoCarga::Desmesurada, b.ancho, b.alto, {}};
    }
    const bool truncado = BmpTruncado(cabecera, tamanoFichero);
    QImageReader lector(&fichero, "bmp");
    lector.setAllocationLimit(LIMITE_LECTOR_MB);
    return Lee(lector, truncado, b.compresion == 1 || b.compresion == 2, false);
}

Decodificacion DecodificaJpeg(const QByteArray &datos) {
    QBuffer buffer;
    buffer.setData(datos);
    buffer.open(QIODevice::ReadOnly);
    QImageReader lector(&buffer, "jpeg");
    lector.setAllocationLimit(LIMITE_LECTOR_MB);
    return Lee(lector, JpegTruncado(datos), false, true);
}
