// BitBlt and StretchBlt: clipped once, then whole rows.
//
// Clipping: a destination pixel is written only when it lies on the
// destination, inside its clip region (when one is selected) and its source
// pixel lies on the source. The clip region is met by blitting one piece per
// region rectangle. When the source is the destination itself, the source
// pixels are copied aside first when the areas overlap, so an overlapping
// copy reads the source as it was before the call.
//
// StretchBlt by the nearest pixel: destination pixel i of the w-wide
// destination rectangle takes source pixel xs + floor((2i + 1) ws / 2w),
// the source pixel under the centre of the destination pixel (likewise for
// rows), in exact integer arithmetic.
#include <algorithm>
#include <cstring>

#include "raster/Raster.h"

namespace {

bool RopConocida(uint32_t rop) {
    return rop == SRCCOPY || rop == SRCAND || rop == SRCINVERT || rop == NOTSRCCOPY ||
           rop == DSTANDNOTSRC;
}

template <class Operacion> void Combina(uint32_t *d, const uint32_t *s, size_t n, Operacion op) {
    for (size_t i = 0; i < n; ++i) {
        d[i] = op(d[i], s[i]) | ALFA_OPACO;
    }
}

// d = rop(d, s) over n pixels. d and s do not overlap.
void AplicaRop(uint32_t *d, const uint32_t *s, size_t n, uint32_t rop) {
    switch (rop) {
    case SRCCOPY:
        std::memcpy(d, s, n * sizeof(uint32_t));
        break;
    case SRCAND:
        Combina(d, s, n, [](uint32_t a, uint32_t b) { return a & b; });
        break;
    case SRCINVERT:
        Combina(d, s, n, [](uint32_t a, uint32_t b) { return a ^ b; });
        break;
    case NOTSRCCOPY:
        Combina(d, s, n, [](uint32_t, uint32_t b) { return ~b; });
        break;
    case DSTANDNOTSRC:
        Combina(d, s, n, [](uint32_t a, uint32_t b) { return a & ~b; });
        break;
    default:
        break;
    }
}

// The parts of r that may be written: r itself on the surface, or its
// intersections with the rectangles of the clip region.
std::vector<Rectangulo> Piezas(const Superficie &d, const Rectangulo &r) {
    std::vector<Rectangulo> piezas;
    const Rectangulo enSuperficie = Interseccion(r, d.Limites());
    if (enSuperficie.Vacio()) {
        return piezas;
    }
    if (!d.Recorte()) {
        piezas.push_back(enSuperficie);
        return piezas;
    }
    for (const Rectangulo &rr : d.Recorte()->Rectangulos()) {
        const Rectangulo p = Interseccion(enSuperficie, rr);
        if (!p.Vacio()) {
            piezas.push_back(p);
        }
    }
    return piezas;
}

Rectangulo Envolvente(const std::vector<Rectangulo> &piezas) {
    Rectangulo caja = piezas.front();
    for (const Rectangulo &p : piezas) {
        caja = Rectangulo{std::min(caja.Izquierda, p.Izquierda), std::min(caja.Arriba, p.Arriba),
                          std::max(caja.Derecha, p.Derecha), std::max(caja.Abajo, p.Abajo)};
    }
    return caja;
}

// Read access to source pixels: (x, y) is at base[(y - y0) * paso + x - x0].
// Either the source surface itself or a copy of part of it.
struct Lectura {
    const uint32_t *base;
    size_t paso;
    int32_t x0, y0;
    std::vector<uint32_t> copia;

    Lectura(const Superficie &s, bool aparte, const Rectangulo &zona)
        : base(s.Pixeles().data()), paso(static_cast<size_t>(s.Ancho())), x0(0), y0(0) {
        if (!aparte) {
            return;
        }
        paso = static_cast<size_t>(zona.Ancho());
        x0 = zona.Izquierda;
        y0 = zona.Arriba;
        copia.resize(paso * static_cast<size_t>(zona.Alto()));
        for (int32_t y = zona.Arriba; y < zona.Abajo; ++y) {
            std::copy_n(s.Fila(y) + zona.Izquierda, paso,
                        copia.data() + static_cast<size_t>(y - y0) * paso);
        }
        base = copia.data();
    }
    const uint32_t *En(int32_t x, int32_t y) const {
        return base + static_cast<size_t>(y - y0) * paso + static_cast<size_t>(x - x0);
    }
};

// Whether the source area is read from the pixels the blit writes.
bool SeSolapan(const Superficie &origen, const Superficie &destino, const Rectangulo &zona,
               const Rectangulo &escrito) {
    return &origen == &destino && !Interseccion(zona, escrito).Vacio();
}

// a clamped into [lo, hi].
int32_t Acota(int64_t a, int64_t lo, int64_t hi) {
    return static_cast<int32_t>(std::clamp(a, lo, std::max(lo, hi)));
}

} // namespace

int BitBlt(Superficie &destino, int32_t x, int32_t y, int32_t w, int32_t h,
           const Superficie &origen, int32_t xs, int32_t ys, uint32_t rop) {
    if (!RopConocida(rop)) {
        return 0;
    }
    if (w <= 0 || h <= 0) {
        return 1;
    }
    // Offset from a destination pixel to its source pixel.
    const int64_t ox = int64_t{xs} - x, oy = int64_t{ys} - y;
    const Rectangulo r{
        Acota(std::max<int64_t>(x, -ox), 0, destino.Ancho()),
        Acota(std::max<int64_t>(y, -oy), 0, destino.Alto()),
        Acota(std::min<int64_t>(int64_t{x} + w, origen.Ancho() - ox), 0, destino.Ancho()),
        Acota(std::min<int64_t>(int64_t{y} + h, origen.Alto() - oy), 0, destino.Alto())};
    const std::vector<Rectangulo> piezas = Piezas(destino, r);
    if (piezas.empty()) {
        return 1;
    }
    const Rectangulo caja = Envolvente(piezas);
    const auto dx = static_cast<int32_t>(ox), dy = static_cast<int32_t>(oy);
    const Rectangulo zona{caja.Izquierda + dx, caja.Arriba + dy, caja.Derecha + dx,
                          caja.Abajo + dy};
    const Lectura fuente(origen, SeSolapan(origen, destino, zona, caja), zona);
    for (const Rectangulo &p : piezas) {
        const size_t n = static_cast<size_t>(p.Ancho());
        const bool filas_enteras = n == static_cast<size_t>(destino.Ancho()) && n == fuente.paso;
        if (filas_enteras) {
            // Whole rows on both sides: one run over the block.
            AplicaRop(destino.Fila(p.Arriba), fuente.En(p.Izquierda + dx, p.Arriba + dy),
                      n * static_cast<size_t>(p.Alto()), rop);
            continue;
        }
        for (int32_t fy = p.Arriba; fy < p.Abajo; ++fy) {
            AplicaRop(destino.Fila(fy) + p.Izquierda, fuente.En(p.Izquierda + dx, fy + dy), n, rop);
        }
    }
    destino.Cambiado(caja);
    return 1;
}

int SetStretchBltMode(Superficie &, int) {
    return COLORONCOLOR;
}

namespace {

// The source index of each destination index in [desde, hasta) of a
// destination run of n pixels starting at d, from a source run of ns pixels
// starting at o.
int64_t Cercano(int64_t i, int64_t d, int64_t n, int64_t o, int64_t ns) {
    return o + (2 * (i - d) + 1) * ns / (2 * n);
}

// Narrows [desde, hasta) to the destination indices whose source index lies
// in [0, limite). The map is non-decreasing, so they are contiguous.
void Estrecha(int32_t &desde, int32_t &hasta, int64_t d, int64_t n, int64_t o, int64_t ns,
              int32_t limite) {
    while (desde < hasta && Cercano(desde, d, n, o, ns) < 0) {
        ++desde;
    }
    while (hasta > desde && Cercano(hasta - 1, d, n, o, ns) >= limite) {
        --hasta;
    }
}

} // namespace

int StretchBlt(Superficie &destino, int32_t x, int32_t y, int32_t w, int32_t h,
               const Superficie &origen, int32_t xs, int32_t ys, int32_t ws, int32_t hs,
               uint32_t rop) {
    if (!RopConocida(rop) || w < 0 || h < 0 || ws < 0 || hs < 0) {
        return 0;
    }
    if (w == 0 || h == 0 || ws == 0 || hs == 0) {
        return 1;
    }
    if (w == ws && h == hs) {
        return BitBlt(destino, x, y, w, h, origen, xs, ys, rop);
    }
    int32_t l = Acota(x, 0, destino.Ancho());
    int32_t r = Acota(int64_t{x} + w, 0, destino.Ancho());
    int32_t t = Acota(y, 0, destino.Alto());
    int32_t b = Acota(int64_t{y} + h, 0, destino.Alto());
    Estrecha(l, r, x, w, xs, ws, origen.Ancho());
    Estrecha(t, b, y, h, ys, hs, origen.Alto());
    const std::vector<Rectangulo> piezas = Piezas(destino, Rectangulo{l, t, r, b});
    if (piezas.empty()) {
        return 1;
    }
    const Rectangulo caja = Envolvente(piezas);
    std::vector<int32_t> columnas(static_cast<size_t>(caja.Ancho()));
    for (int32_t i = caja.Izquierda; i < caja.Derecha; ++i) {
        columnas[i - caja.Izquierda] = static_cast<int32_t>(Cercano(i, x, w, xs, ws));
    }
    const auto fila_de = [&](int32_t j) { return static_cast<int32_t>(Cercano(j, y, h, ys, hs)); };
    const Rectangulo zona{columnas.front(), fila_de(caja.Arriba), columnas.back() + 1,
                          fila_de(caja.Abajo - 1) + 1};
    const Lectura fuente(origen, SeSolapan(origen, destino, zona, caja), zona);
    std::vector<uint32_t> tramo(columnas.size());
    for (const Rectangulo &p : piezas) {
        const size_t n = static_cast<size_t>(p.Ancho());
        const int32_t *cols = columnas.data() + (p.Izquierda - caja.Izquierda);
        for (int32_t fy = p.Arriba; fy < p.Abajo; ++fy) {
            const uint32_t *fila = fuente.En(fuente.x0, fila_de(fy));
            for (size_t i = 0; i < n; ++i) {
                tramo[i] = fila[cols[i] - fuente.x0];
            }
            AplicaRop(destino.Fila(fy) + p.Izquierda, tramo.data(), n, rop);
        }
    }
    destino.Cambiado(caja);
    return 1;
}
