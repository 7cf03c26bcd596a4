#include "qt/ImagenQt.h"

#include <algorithm>
#include <cstring>

namespace {

// The rows of an RGB32 image are the surface's 0xFFRRGGBB words: the part
// both cover is copied row by row.
void CopiaFilas(const QImage &rgb, Superficie &destino) {
    const int ancho = std::min(rgb.width(), destino.Ancho());
    const int alto = std::min(rgb.height(), destino.Alto());
    for (int y = 0; y < alto; ++y) {
        std::memcpy(destino.Fila(y), rgb.constScanLine(y), static_cast<size_t>(ancho) * 4);
    }
    destino.Cambiado(destino.Limites());
}

QImage EnRgb32(const QImage &imagen) {
    return imagen.format() == QImage::Format_RGB32 ? imagen
                                                   : imagen.convertToFormat(QImage::Format_RGB32);
}

} // namespace

QColor ColorQt(Color c) {
    return QColor::fromRgb(APixel(c));
}

void CopiaEnSuperficie(const QImage &imagen, Superficie &destino) {
    const QImage rgb = EnRgb32(imagen);
    destino.CambiaTamano(rgb.width(), rgb.height());
    CopiaFilas(rgb, destino);
}

bool CargaRecurso(const QString &ruta, Superficie &s) {
    const QImage imagen(ruta);
    if (imagen.isNull()) {
        return false;
    }
    CopiaFilas(EnRgb32(imagen), s);
    return true;
}
