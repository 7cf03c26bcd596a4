// Helpers shared by the drawing routines of the raster layer. Not part of
// its interface: only the raster layer's own sources include this.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <optional>
#include <vector>

#include "raster/Superficie.h"

namespace trazos {

// Coordinates farther than this from the origin are ignored by the drawing
// routines: far beyond any surface, near enough that the integer arithmetic
// of a line cannot overflow.
constexpr double LIMITE_COORDENADA = 268435456.0; // 2^28

// A coordinate rounded to the nearest pixel, floor(v + 0.5); nothing when
// it is not finite or too far away to draw.
inline std::optional<int32_t> Redondeado(double v) {
    if (!std::isfinite(v) || std::fabs(v) > LIMITE_COORDENADA) {
        return std::nullopt;
    }
    return static_cast<int32_t>(std::floor(v + 0.5));
}

struct Punto {
    int32_t x;
    int32_t y;
};

// Paints the pixels [x0, x1) of row y with a store pixel, or inverts them,
// through the surface's bounds and clip region.
void PintaTramo(Superficie &s, int32_t y, int32_t x0, int32_t x1, uint32_t pixel, bool invierte);

// Writes the points through EscribePixel; in the invert mode each distinct
// point once, however many times it is listed. Points outside
// the surface are skipped. Returns the bounding rectangle of those written.
Rectangulo EscribePuntos(Superficie &s, std::vector<Punto> &puntos, uint32_t pixel);

// The smallest rectangle holding both.
inline Rectangulo Union(const Rectangulo &a, const Rectangulo &b) {
    if (a.Vacio()) {
        return b;
    }
    if (b.Vacio()) {
        return a;
    }
    return Rectangulo{std::min(a.Izquierda, b.Izquierda), std::min(a.Arriba, b.Arriba),
                      std::max(a.Derecha, b.Derecha), std::max(a.Abajo, b.Abajo)};
}

} // namespace trazos
