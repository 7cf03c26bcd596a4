// Ellipses and arcs.
//
// Rules:
// - The centre and the radius are taken as they are, not rounded.
// - aspecto is the ratio of the vertical to the horizontal semi-axis. Below
//   1 the horizontal semi-axis a is the radius and the vertical b is
//   radius * aspecto; above 1 b is the radius and a is radius / aspecto.
// - Points are P(t) = (cx + a cos t, cy - b sin t): t runs counter-clockwise
//   on the screen. An arc runs from inicio to fin; when fin < inicio it goes
//   through 0. Angles are radians; a negative angle counts by its size (no
//   radius line is drawn) and angles are held to [0, 2 pi]. Equal angles
//   make a whole (unfilled) ellipse, as on a device context.
// - The outline is rasterised by sampling t in N equal steps,
//   N = max(4, ceil(sweep * max(a, b) * 1.5)), rounding each sample
//   (floor(v + 0.5)) and joining consecutive ones by line segments with both
//   ends. The outline is closed and 8-connected; in the invert mode each
//   of its pixels is inverted once.
// - A whole ellipse on a surface that fills figures is first filled with
//   FillColor over every pixel whose centre satisfies
//   ((px - cx) / a)^2 + ((py - cy) / b)^2 <= 1; the outline goes over it.
//   Arcs are never filled.
// - A radius or aspect that is not positive, or values that are not finite
//   or too large, draw nothing.
// The current position moves to the centre.
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <numbers>

#include "raster/Superficie.h"
#include "raster/Trazos.h"

namespace {

using trazos::Punto;

constexpr double DOS_PI = 2.0 * std::numbers::pi;
// Radii beyond this draw nothing: the samples of the outline would be too many.
constexpr double RADIO_MAXIMO = 1048576.0; // 2^20

// Adds the pixels of the segment p-q, both ends included, that lie in the
// rectangle.
void AnadeSegmento(std::vector<Punto> &puntos, Punto p, Punto q, const Rectangulo &r) {
    const int64_t dx = int64_t{q.x} - p.x, dy = int64_t{q.y} - p.y;
    const int64_t n = std::max(std::llabs(dx), std::llabs(dy));
    if (n <= 1) {
        // Neighbouring samples, the usual case: both ends are the segment.
        for (const Punto &e : {p, q}) {
            if (r.Contiene(e.x, e.y)) {
                puntos.push_back(e);
            }
        }
        return;
    }
    for (int64_t i = 0; i <= n; ++i) {
        // Round to nearest, halves away from p, in exact integers.
        const auto paso = [&](int64_t d) {
            return n == 0 ? 0 : (d < 0 ? -1 : 1) * ((2 * i * std::llabs(d) + n) / (2 * n));
        };
        const auto x = static_cast<int32_t>(p.x + paso(dx));
        const auto y = static_cast<int32_t>(p.y + paso(dy));
        if (r.Contiene(x, y)) {
            puntos.push_back(Punto{x, y});
        }
    }
}

struct Elipse {
    double cx, cy, a, b;

    bool Dentro(int32_t px, int32_t py) const {
        const double u = (px - cx) / a, v = (py - cy) / b;
        return u * u + v * v <= 1.0;
    }
};

// Fills the ellipse row by row over the rows of the surface.
Rectangulo RellenaElipse(Superficie &s, const Elipse &e, uint32_t pixel) {
    Rectangulo caja;
    const auto y_desde = static_cast<int32_t>(std::max(std::ceil(e.cy - e.b), 0.0));
    const auto y_hasta = static_cast<int32_t>(std::min(std::floor(e.cy + e.b), s.Alto() - 1.0));
    for (int32_t y = y_desde; y <= y_hasta; ++y) {
        const double v = (y - e.cy) / e.b;
        const double resto = 1.0 - v * v;
        if (resto < 0) {
            continue;
        }
        // The span by the square root, then settled pixel by pixel on the
        // exact test (the root may be off by a rounding).
        const double medio = e.a * std::sqrt(resto);
        const double lado = s.Ancho() + 1.0;
        auto x0 = static_cast<int32_t>(std::clamp(std::ceil(e.cx - medio), -1.0, lado));
        auto x1 = static_cast<int32_t>(std::clamp(std::floor(e.cx + medio), -1.0, lado));
        while (x0 > -1 && e.Dentro(x0 - 1, y)) {
            --x0;
        }
        while (x0 <= x1 && !e.Dentro(x0, y)) {
            ++x0;
        }
        while (x1 < s.Ancho() && e.Dentro(x1 + 1, y)) {
            ++x1;
        }
        while (x1 >= x0 && !e.Dentro(x1, y)) {
            --x1;
        }
        if (x0 <= x1) {
            trazos::PintaTramo(s, y, x0, x1 + 1, pixel, false);
            caja = trazos::Union(caja, Rectangulo{x0, y, x1 + 1, y + 1});
        }
    }
    return caja;
}

// The angle of an arc end as it is used: by its size, held to [0, 2 pi].
double Angulo(double t) {
    return std::min(std::fabs(t), DOS_PI);
}

void DibujaElipse(Superficie &s, double cx, double cy, double radio, double aspecto, double inicio,
                  double fin, bool entera) {
    const bool validos = std::isfinite(cx) && std::isfinite(cy) && std::isfinite(radio) &&
                         std::isfinite(aspecto) && std::isfinite(inicio) && std::isfinite(fin);
    if (!validos || radio <= 0 || radio > RADIO_MAXIMO || aspecto <= 0 ||
        std::fabs(cx) > trazos::LIMITE_COORDENADA || std::fabs(cy) > trazos::LIMITE_COORDENADA) {
        return;
    }
    s.CurrentX = cx;
    s.CurrentY = cy;
    const Elipse e{cx, cy, aspecto > 1 ? radio / aspecto : radio,
                   aspecto < 1 ? radio * aspecto : radio};
    double barrido = DOS_PI;
    if (!entera) {
        inicio = Angulo(inicio);
        fin = Angulo(fin);
        if (fin < inicio) {
            fin += DOS_PI;
        }
        barrido = fin > inicio ? fin - inicio : DOS_PI;
    }
    const auto n =
        static_cast<int64_t>(std::max(4.0, std::ceil(barrido * std::max(e.a, e.b) * 1.5)));
    std::vector<Punto> puntos;
    Punto anterior{};
    for (int64_t k = 0; k <= n; ++k) {
        const double t = inicio + barrido * static_cast<double>(k) / static_cast<double>(n);
        const Punto p{static_cast<int32_t>(std::floor(cx + e.a * std::cos(t) + 0.5)),
                      static_cast<int32_t>(std::floor(cy - e.b * std::sin(t) + 0.5))};
        if (k == 0) {
            anterior = p;
        } else if (p.x != anterior.x || p.y != anterior.y) {
            AnadeSegmento(puntos, anterior, p, s.Limites());
            anterior = p;
        }
    }
    Rectangulo caja;
    if (entera && s.RellenaFiguras && e.b > 0) {
        caja = RellenaElipse(s, e, APixel(s.FillColor));
    }
    caja = trazos::Union(caja, trazos::EscribePuntos(s, puntos, APixel(s.ForeColor)));
    s.Cambiado(caja);
}

} // namespace

void Superficie::Circle(double x, double y, double radio) {
    Circle(x, y, radio, 1.0);
}

void Superficie::Circle(double x, double y, double radio, double aspecto) {
    DibujaElipse(*this, x, y, radio, aspecto, 0.0, DOS_PI, true);
}

void Superficie::CircleArco(double x, double y, double radio, double inicio, double fin,
                            double aspecto) {
    DibujaElipse(*this, x, y, radio, aspecto, inicio, fin, false);
}
