#include "platform/qt/CargaImagenQt.h"

#include <QFile>
#include <QImage>
#include <QImageReader>
#include <cstdlib>
#include <cstring>

#include "platform/raster/Superficie.h"

namespace {

uint32_t Palabra(const QByteArray &b, int desde, int bytes) {
    uint32_t v = 0;
    for (int i = bytes - 1; i >= 0; --i) {
        v = (v << 8) | static_cast<uint8_t>(b[desde + i]);
    }
    return v;
}

} // namespace

bool BmpTruncado(const std::string &fichero) {
    QFile f(QString::fromStdString(fichero));
    if (!f.open(QIODevice::ReadOnly)) {
        return false;
    }
    const QByteArray cabecera = f.read(54);
    if (cabecera.size() < 2 || cabecera[0] != 'B' || cabecera[1] != 'M') {
        return false;
    }
    if (cabecera.size() < 54) {
        return true;
    }
    const qint64 tamano = f.size();
    const uint32_t inicio = Palabra(cabecera, 10, 4);
    const uint32_t tamanoCabecera = Palabra(cabecera, 14, 4);
    if (tamanoCabecera < 40) {
        return false; // an old OS/2 header: left to the reader
    }
    const int64_t ancho = static_cast<int32_t>(Palabra(cabecera, 18, 4));
    const int64_t alto = std::llabs(static_cast<int32_t>(Palabra(cabecera, 22, 4)));
    const uint32_t bits = Palabra(cabecera, 28, 2);
    const uint32_t compresion = Palabra(cabecera, 30, 4);
    const uint32_t tamanoImagen = Palabra(cabecera, 34, 4);
    int64_t necesarios = 0;
    if (compresion == 0 || compresion == 3) {
        const int64_t fila = ((ancho * bits + 31) / 32) * 4;
        necesarios = static_cast<int64_t>(inicio) + fila * alto;
    } else {
        necesarios = static_cast<int64_t>(inicio) + tamanoImagen;
    }
    return tamano < necesarios;
}

bool CargaImagenQt(const std::string &fichero, Superficie &destino) {
    QImageReader lector(QString::fromStdString(fichero));
    lector.setAutoTransform(false);
    if (lector.format() == "bmp" && BmpTruncado(fichero)) {
        return false;
    }
    QImage imagen = lector.read();
    if (imagen.isNull()) {
        return false;
    }
    imagen = imagen.convertToFormat(QImage::Format_RGB32);
    destino.CambiaTamano(imagen.width(), imagen.height());
    for (int y = 0; y < imagen.height(); ++y) {
        std::memcpy(destino.Fila(y), imagen.constScanLine(y),
                    static_cast<size_t>(imagen.width()) * 4);
    }
    destino.Cambiado(destino.Limites());
    return true;
}
