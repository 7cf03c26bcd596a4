// Slow per-pixel references of the raster operations, and small helpers,
// for the raster tests to compare the fast paths against.
#pragma once

#include <cstdint>
#include <deque>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "raster/Raster.h"

namespace referencia {

// rop(d, s) on the 24 colour bits, top byte opaque; false for an unknown rop.
inline bool Combina(uint32_t rop, uint32_t d, uint32_t s, uint32_t &r) {
    switch (rop) {
    case SRCCOPY:
        r = s;
        break;
    case SRCAND:
        r = d & s;
        break;
    case SRCINVERT:
        r = d ^ s;
        break;
    case NOTSRCCOPY:
        r = ~s;
        break;
    case DSTANDNOTSRC:
        r = d & ~s;
        break;
    default:
        return false;
    }
    r = (r & 0xFFFFFFu) | ALFA_OPACO;
    return true;
}

inline bool Escribible(const Superficie &d, int64_t x, int64_t y) {
    return x >= 0 && y >= 0 && x < d.Ancho() && y < d.Alto() &&
           (!d.Recorte() ||
            d.Recorte()->Contiene(static_cast<int32_t>(x), static_cast<int32_t>(y)));
}

// Destination pixel (i, j) of the w x h rectangle reads source pixel
// (xs + fx(i), ys + fy(j)); the source is read whole before any write.
template <class MapaX, class MapaY>
int Copia(Superficie &d, int32_t x, int32_t y, int32_t w, int32_t h, const Superficie &o,
          int32_t xs, int32_t ys, uint32_t rop, MapaX fx, MapaY fy) {
    uint32_t prueba;
    if (!Combina(rop, 0, 0, prueba)) {
        return 0;
    }
    const std::vector<uint32_t> fuente = o.Pixeles();
    const int32_t ow = o.Ancho(), oh = o.Alto();
    for (int32_t j = 0; j < h; ++j) {
        for (int32_t i = 0; i < w; ++i) {
            const int64_t sx = int64_t{xs} + fx(i), sy = int64_t{ys} + fy(j);
            const int64_t dx = int64_t{x} + i, dy = int64_t{y} + j;
            if (!Escribible(d, dx, dy) || sx < 0 || sy < 0 || sx >= ow || sy >= oh) {
                continue;
            }
            uint32_t &p = d.Fila(static_cast<int32_t>(dy))[dx];
            Combina(rop, p, fuente[sy * ow + sx], p);
        }
    }
    return 1;
}

inline int BitBltLento(Superficie &d, int32_t x, int32_t y, int32_t w, int32_t h,
                       const Superficie &o, int32_t xs, int32_t ys, uint32_t rop) {
    const auto igual = [](int32_t i) { return int64_t{i}; };
    return Copia(d, x, y, w, h, o, xs, ys, rop, igual, igual);
}

inline int StretchBltLento(Superficie &d, int32_t x, int32_t y, int32_t w, int32_t h,
                           const Superficie &o, int32_t xs, int32_t ys, int32_t ws, int32_t hs,
                           uint32_t rop) {
    uint32_t prueba;
    if (w < 0 || h < 0 || ws < 0 || hs < 0 || !Combina(rop, 0, 0, prueba)) {
        return 0;
    }
    // The source pixel under the centre of destination pixel i.
    const auto fx = [&](int32_t i) { return (2 * int64_t{i} + 1) * ws / (2 * int64_t{w}); };
    const auto fy = [&](int32_t j) { return (2 * int64_t{j} + 1) * hs / (2 * int64_t{h}); };
    if (ws == 0 || hs == 0) {
        return 1;
    }
    return Copia(d, x, y, w, h, o, xs, ys, rop, fx, fy);
}

// Every pixel of s against the colour esperado(x, y).
template <class Esperado> void EsperaPixeles(const Superficie &s, Esperado esperado) {
    for (int32_t y = 0; y < s.Alto(); ++y) {
        for (int32_t x = 0; x < s.Ancho(); ++x) {
            EXPECT_EQ(s.Point(x, y), esperado(x, y)) << x << "," << y;
        }
    }
}

// A surface of random colours.
inline Superficie Aleatoria(int32_t w, int32_t h, std::mt19937 &azar) {
    Superficie s(w, h);
    for (int32_t y = 0; y < h; ++y) {
        for (int32_t x = 0; x < w; ++x) {
            s.Fila(y)[x] = ALFA_OPACO | (azar() & 0xFFFFFFu);
        }
    }
    return s;
}

inline int Cuenta(const Superficie &s, Color c) {
    int n = 0;
    for (uint32_t p : s.Pixeles()) {
        n += p == APixel(c);
    }
    return n;
}

// The bounding rectangle of the pixels of colour c.
inline Rectangulo CajaDe(const Superficie &s, Color c) {
    Rectangulo r{INT32_MAX, INT32_MAX, INT32_MIN, INT32_MIN};
    for (int32_t y = 0; y < s.Alto(); ++y) {
        for (int32_t x = 0; x < s.Ancho(); ++x) {
            if (s.Fila(y)[x] == APixel(c)) {
                r = {std::min(r.Izquierda, x), std::min(r.Arriba, y), std::max(r.Derecha, x + 1),
                     std::max(r.Abajo, y + 1)};
            }
        }
    }
    return r;
}

// The 4-connected area holding the seed of the pixels for which `dentro`
// holds, as a mask, by a plain breadth-first search.
template <class Dentro>
std::vector<bool> Area(const Superficie &s, int32_t x, int32_t y, Dentro dentro) {
    std::vector<bool> marca(s.Pixeles().size(), false);
    std::deque<std::pair<int32_t, int32_t>> cola;
    const auto mira = [&](int32_t px, int32_t py) {
        if (px >= 0 && py >= 0 && px < s.Ancho() && py < s.Alto() && !marca[py * s.Ancho() + px] &&
            dentro(s.Fila(py)[px])) {
            marca[py * s.Ancho() + px] = true;
            cola.emplace_back(px, py);
        }
    };
    mira(x, y);
    while (!cola.empty()) {
        const auto [px, py] = cola.front();
        cola.pop_front();
        mira(px + 1, py);
        mira(px - 1, py);
        mira(px, py + 1);
        mira(px, py - 1);
    }
    return marca;
}

} // namespace referencia

// A text service that draws nothing and remembers what it was asked, and
// on which surface.
class RotuladorRegistro : public Rotulador {
  public:
    struct Texto {
        double x, y;
        Color color;
        bool negrita;
        std::string texto;
        const Superficie *destino;
    };
    std::vector<Texto> textos;
    double Ancho(const Fuente &, const std::string &t) override {
        return 6.0 * static_cast<double>(t.size());
    }
    double Alto(const Fuente &, const std::string &) override { return 13.0; }
    void Dibuja(Superficie &s, const Fuente &f, double x, double y, Color c,
                const std::string &t) override {
        textos.push_back({x, y, c, f.Negrita, t, &s});
    }
    // The last text printed on s.
    std::string Ultimo(const Superficie &s) const {
        for (auto it = textos.rbegin(); it != textos.rend(); ++it) {
            if (it->destino == &s) {
                return it->texto;
            }
        }
        return {};
    }
};
