// Rectangles of the raster layer.
//
// Every rectangle here is half-open: it holds the pixels x with
// Izquierda <= x < Derecha and y with Arriba <= y < Abajo. A rectangle whose
// right edge is not beyond its left edge, or whose bottom is not below its
// top, is empty. This is said once, here, and holds for regions, clipping
// and every blit.
#pragma once

#include <algorithm>
#include <cstdint>

struct Rectangulo {
    int32_t Izquierda = 0;
    int32_t Arriba = 0;
    int32_t Derecha = 0;
    int32_t Abajo = 0;

    constexpr bool Vacio() const { return Derecha <= Izquierda || Abajo <= Arriba; }
    constexpr int32_t Ancho() const { return Derecha - Izquierda; }
    constexpr int32_t Alto() const { return Abajo - Arriba; }
    constexpr bool Contiene(int32_t x, int32_t y) const {
        return x >= Izquierda && x < Derecha && y >= Arriba && y < Abajo;
    }
    constexpr bool operator==(const Rectangulo &o) const = default;
};

// The common part of two rectangles; empty when they do not meet.
constexpr Rectangulo Interseccion(const Rectangulo &a, const Rectangulo &b) {
    return Rectangulo{std::max(a.Izquierda, b.Izquierda), std::max(a.Arriba, b.Arriba),
                      std::min(a.Derecha, b.Derecha), std::min(a.Abajo, b.Abajo)};
}

// A rectangle from a corner and a size.
constexpr Rectangulo RectanguloDe(int32_t x, int32_t y, int32_t ancho, int32_t alto) {
    return Rectangulo{x, y, x + ancho, y + alto};
}
