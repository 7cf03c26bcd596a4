// The checked writers behind lines, boxes, ellipses and fills.
#include "raster/Trazos.h"

#include <algorithm>

namespace trazos {

namespace {

void PintaTramoSinRecorte(uint32_t *fila, int32_t x0, int32_t x1, uint32_t pixel, bool invierte) {
    if (invierte) {
        for (int32_t x = x0; x < x1; ++x) {
            fila[x] = ~fila[x] | ALFA_OPACO;
        }
    } else {
        std::fill(fila + x0, fila + x1, pixel | ALFA_OPACO);
    }
}

} // namespace

void PintaTramo(Superficie &s, int32_t y, int32_t x0, int32_t x1, uint32_t pixel, bool invierte) {
    if (y < 0 || y >= s.Alto()) {
        return;
    }
    x0 = std::max(x0, 0);
    x1 = std::min(x1, s.Ancho());
    if (x0 >= x1) {
        return;
    }
    uint32_t *fila = s.Fila(y);
    if (!s.Recorte()) {
        PintaTramoSinRecorte(fila, x0, x1, pixel, invierte);
        return;
    }
    // The rectangles of a region are disjoint: no pixel is painted twice.
    for (const Rectangulo &r : s.Recorte()->Rectangulos()) {
        if (y < r.Arriba || y >= r.Abajo) {
            continue;
        }
        const int32_t a = std::max(x0, r.Izquierda);
        const int32_t b = std::min(x1, r.Derecha);
        if (a < b) {
            PintaTramoSinRecorte(fila, a, b, pixel, invierte);
        }
    }
}

Rectangulo EscribePuntos(Superficie &s, std::vector<Punto> &puntos, uint32_t pixel) {
    const Rectangulo limites = s.Limites();
    std::erase_if(puntos, [&](const Punto &p) { return !limites.Contiene(p.x, p.y); });
    const auto antes = [](const Punto &a, const Punto &b) {
        return a.y != b.y ? a.y < b.y : a.x < b.x;
    };
    const auto igual = [](const Punto &a, const Punto &b) { return a.x == b.x && a.y == b.y; };
    // Copying a pixel twice changes nothing; inverting it twice would undo
    // it, so only the invert mode needs each pixel once.
    if (s.DrawMode == DRAWMODE_INVIERTE) {
        std::sort(puntos.begin(), puntos.end(), antes);
        puntos.erase(std::unique(puntos.begin(), puntos.end(), igual), puntos.end());
    }
    Rectangulo caja;
    for (const Punto &p : puntos) {
        s.EscribePixel(p.x, p.y, pixel);
        caja = Union(caja, RectanguloDe(p.x, p.y, 1, 1));
    }
    return caja;
}

} // namespace trazos
