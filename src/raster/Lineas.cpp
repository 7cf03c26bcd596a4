// Points, lines and boxes.
//
// Coordinates are rounded to the nearest pixel, floor(v + 0.5). A coordinate
// that is not finite, or farther than 2^28 from the origin, makes the call
// draw nothing. As on the game's picture boxes, drawing moves the current
// position: to the point of PSet and to the second corner of Line and boxes.
#include <algorithm>
#include <cstdlib>
#include <optional>

#include "raster/Superficie.h"
#include "raster/Trazos.h"

using trazos::Redondeado;

namespace {

// The two ends of a line, or two opposite corners of a box, rounded.
struct Extremos {
    int32_t ax, ay, bx, by;
    int32_t Izquierda() const { return std::min(ax, bx); }
    int32_t Derecha() const { return std::max(ax, bx); }
    int32_t Arriba() const { return std::min(ay, by); }
    int32_t Abajo() const { return std::max(ay, by); }
};

// The ends rounded, and the current position moved to the second; nothing
// when a coordinate can't be a pixel's.
std::optional<Extremos> Redondea(Superficie &s, double x1, double y1, double x2, double y2) {
    const auto ax = Redondeado(x1), ay = Redondeado(y1);
    const auto bx = Redondeado(x2), by = Redondeado(y2);
    if (!ax || !ay || !bx || !by) {
        return std::nullopt;
    }
    s.CurrentX = x2;
    s.CurrentY = y2;
    return Extremos{*ax, *ay, *bx, *by};
}

} // namespace

void Superficie::PSet(double x, double y) {
    PSet(x, y, ForeColor);
}

void Superficie::PSet(double x, double y, Color c) {
    const auto px = Redondeado(x);
    const auto py = Redondeado(y);
    if (!px || !py) {
        return;
    }
    CurrentX = x;
    CurrentY = y;
    EscribePixel(*px, *py, APixel(c));
    Cambiado(RectanguloDe(*px, *py, 1, 1));
}

Color Superficie::Point(double x, double y) const {
    const auto px = Redondeado(x);
    const auto py = Redondeado(y);
    if (!px || !py || !Limites().Contiene(*px, *py)) {
        return 0xFFFFFFFFu;
    }
    return AColor(Fila(*py)[*px]);
}

void Superficie::Line(double x1, double y1, double x2, double y2) {
    Line(x1, y1, x2, y2, ForeColor);
}

// Bresenham by its closed form: along the major axis, step i (0 <= i < n,
// the last point n left out) moves i pixels, and the minor axis moves
// floor((2 i m + n) / 2n) pixels, m being the minor length. The closed form
// lets the loop start and stop at the surface's edges.
void Superficie::Line(double x1, double y1, double x2, double y2, Color c) {
    const auto e = Redondea(*this, x1, y1, x2, y2);
    if (!e) {
        return;
    }
    const int32_t ax = e->ax, ay = e->ay;
    const int64_t dx = int64_t{e->bx} - ax, dy = int64_t{e->by} - ay;
    const int64_t sx = dx < 0 ? -1 : 1, sy = dy < 0 ? -1 : 1;
    const bool x_mayor = std::llabs(dx) >= std::llabs(dy);
    const int64_t n = x_mayor ? std::llabs(dx) : std::llabs(dy);
    const int64_t m = x_mayor ? std::llabs(dy) : std::llabs(dx);
    if (n == 0) {
        return;
    }
    // Steps whose major coordinate (origen + paso * i) lies on the surface.
    const int64_t origen = x_mayor ? ax : ay;
    const int64_t paso = x_mayor ? sx : sy;
    const int64_t tope = x_mayor ? ancho_ : alto_;
    int64_t desde = 0, hasta = n - 1;
    if (paso > 0) {
        desde = std::max(desde, -origen);
        hasta = std::min(hasta, tope - 1 - origen);
    } else {
        desde = std::max(desde, origen - (tope - 1));
        hasta = std::min(hasta, origen);
    }
    const uint32_t pixel = APixel(c);
    Rectangulo caja;
    for (int64_t i = desde; i <= hasta; ++i) {
        const int64_t j = (2 * i * m + n) / (2 * n);
        const auto x = static_cast<int32_t>(ax + sx * (x_mayor ? i : j));
        const auto y = static_cast<int32_t>(ay + sy * (x_mayor ? j : i));
        if (Limites().Contiene(x, y)) {
            EscribePixel(x, y, pixel);
            caja = trazos::Union(caja, RectanguloDe(x, y, 1, 1));
        }
    }
    Cambiado(caja);
}

void Superficie::Caja(double x1, double y1, double x2, double y2) {
    Caja(x1, y1, x2, y2, ForeColor);
}

void Superficie::Caja(double x1, double y1, double x2, double y2, Color c) {
    const auto e = Redondea(*this, x1, y1, x2, y2);
    if (!e) {
        return;
    }
    const int32_t l = e->Izquierda(), r = e->Derecha(), t = e->Arriba(), b = e->Abajo();
    if (RellenaFiguras) {
        const uint32_t relleno = APixel(FillColor);
        for (int32_t y = std::max(t + 1, 0); y < std::min(b, alto_); ++y) {
            trazos::PintaTramo(*this, y, l + 1, r, relleno, false);
        }
    }
    // The outline, each pixel once: whole rows t and b, then the columns l
    // and r between them.
    const uint32_t pixel = APixel(c);
    const int32_t x_desde = std::max(l, 0), x_hasta = std::min(r, ancho_ - 1);
    for (int32_t y : {t, b}) {
        if (y >= 0 && y < alto_) {
            for (int32_t x = x_desde; x <= x_hasta; ++x) {
                EscribePixel(x, y, pixel);
            }
        }
        if (b == t) {
            break;
        }
    }
    const int32_t y_desde = std::max(t + 1, 0), y_hasta = std::min(b - 1, alto_ - 1);
    for (int32_t x : {l, r}) {
        if (x >= 0 && x < ancho_) {
            for (int32_t y = y_desde; y <= y_hasta; ++y) {
                EscribePixel(x, y, pixel);
            }
        }
        if (r == l) {
            break;
        }
    }
    Cambiado(Rectangulo{l, t, r + 1, b + 1});
}

// The whole box in one colour, both corners included; the draw mode
// applies, as it does to every figure.
void Superficie::CajaLlena(double x1, double y1, double x2, double y2, Color c) {
    const auto e = Redondea(*this, x1, y1, x2, y2);
    if (!e) {
        return;
    }
    const int32_t l = e->Izquierda(), r = e->Derecha(), t = e->Arriba(), b = e->Abajo();
    const uint32_t pixel = APixel(c);
    for (int32_t y = std::max(t, 0); y <= std::min(b, alto_ - 1); ++y) {
        trazos::PintaTramo(*this, y, l, r + 1, pixel, DrawMode == DRAWMODE_INVIERTE);
    }
    Cambiado(Rectangulo{l, t, r + 1, b + 1});
}
