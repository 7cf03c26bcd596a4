// The kind of a picture file by its content, and the size past any use.
#include "qt/Decodificadores.h"

#include <algorithm>
#include <cmath>

namespace {

// The smallest zoom the game allows, in percent, and the largest picture.
constexpr int64_t ZOOM_MINIMO = 5;
constexpr int64_t ANCHO_MAXIMO = 1024, ALTO_MAXIMO = 768;

uint32_t Palabra(const QByteArray &b, int desde, int bytes) {
    uint32_t v = 0;
    for (int i = bytes - 1; i >= 0; --i) {
        v = (v << 8) | static_cast<uint8_t>(b[desde + i]);
    }
    return v;
}

bool EsWmf(const QByteArray &c) {
    if (c.size() >= 4 && Palabra(c, 0, 4) == 0x9AC6CDD7) { // placeable header
        return true;
    }
    if (c.size() < 6) {
        return false;
    }
    const uint32_t tipo = Palabra(c, 0, 2), tamano = Palabra(c, 2, 2), version = Palabra(c, 4, 2);
    return (tipo == 1 || tipo == 2) && tamano == 9 && (version == 0x0100 || version == 0x0300);
}

} // namespace

bool TamanoDesmesurado(int64_t ancho, int64_t alto) {
    if (ancho <= 0 || alto <= 0) {
        return false;
    }
    return ancho * ZOOM_MINIMO / 100 > ANCHO_MAXIMO || alto * ZOOM_MINIMO / 100 > ALTO_MAXIMO;
}

QSize TamanoDecodificado(int64_t ancho, int64_t alto) {
    if (ancho > 0 && alto > 0 && ancho > PIXELES_MAXIMOS / alto) {
        // A zoomed side is the integer part of side x zoom / 100, at most
        // 1024 (768): the zoom's factor stays below 1025 / side (769 / side).
        const double factor = std::min((ANCHO_MAXIMO + 1.0) / static_cast<double>(ancho),
                                       (ALTO_MAXIMO + 1.0) / static_cast<double>(alto));
        return {static_cast<int>(std::ceil(static_cast<double>(ancho) * factor)),
                static_cast<int>(std::ceil(static_cast<double>(alto) * factor))};
    }
    return {static_cast<int>(ancho), static_cast<int>(alto)};
}

ClaseImagen ClaseDeContenido(const QByteArray &c) {
    if (c.startsWith("BM")) {
        return ClaseImagen::Bmp;
    }
    if (c.startsWith("\xFF\xD8\xFF")) {
        return ClaseImagen::Jpeg;
    }
    if (c.size() >= 44 && Palabra(c, 0, 4) == 1 && Palabra(c, 40, 4) == 0x464D4520) {
        return ClaseImagen::Emf;
    }
    return EsWmf(c) ? ClaseImagen::Wmf : ClaseImagen::Otra;
}
