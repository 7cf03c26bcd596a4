// Clip regions: lists of disjoint rectangles, and their selection.
#include "raster/Region.h"

#include <algorithm>

#include "raster/Raster.h"

void Region::Pon(const Rectangulo &r) {
    rects_.clear();
    if (!r.Vacio()) {
        rects_.push_back(r);
    }
}

bool Region::Contiene(int32_t x, int32_t y) const {
    return std::any_of(rects_.begin(), rects_.end(),
                       [&](const Rectangulo &r) { return r.Contiene(x, y); });
}

Rectangulo Region::Limites() const {
    if (rects_.empty()) {
        return Rectangulo{};
    }
    Rectangulo l = rects_.front();
    for (const Rectangulo &r : rects_) {
        l = Rectangulo{std::min(l.Izquierda, r.Izquierda), std::min(l.Arriba, r.Arriba),
                       std::max(l.Derecha, r.Derecha), std::max(l.Abajo, r.Abajo)};
    }
    return l;
}

int Region::Tipo() const {
    if (rects_.empty()) {
        return NULLREGION;
    }
    return rects_.size() == 1 ? SIMPLEREGION : COMPLEXREGION;
}

// The rectangles of each region are disjoint, so their pairwise
// intersections are too.
Region Region::Interseccion(const Region &a, const Region &b) {
    Region r;
    for (const Rectangulo &ra : a.rects_) {
        for (const Rectangulo &rb : b.rects_) {
            const Rectangulo i = ::Interseccion(ra, rb);
            if (!i.Vacio()) {
                r.rects_.push_back(i);
            }
        }
    }
    return r;
}

// Each rectangle of b is cut out of every piece left so far; a cut splits a
// piece into at most four: the bands above and below the cut, and the parts
// left and right of it between those bands.
Region Region::Diferencia(const Region &a, const Region &b) {
    std::vector<Rectangulo> piezas = a.rects_;
    for (const Rectangulo &corte : b.rects_) {
        std::vector<Rectangulo> quedan;
        for (const Rectangulo &p : piezas) {
            const Rectangulo i = ::Interseccion(p, corte);
            if (i.Vacio()) {
                quedan.push_back(p);
                continue;
            }
            const Rectangulo partes[] = {
                {p.Izquierda, p.Arriba, p.Derecha, i.Arriba},
                {p.Izquierda, i.Abajo, p.Derecha, p.Abajo},
                {p.Izquierda, i.Arriba, i.Izquierda, i.Abajo},
                {i.Derecha, i.Arriba, p.Derecha, i.Abajo},
            };
            for (const Rectangulo &parte : partes) {
                if (!parte.Vacio()) {
                    quedan.push_back(parte);
                }
            }
        }
        piezas.swap(quedan);
    }
    Region r;
    r.rects_ = std::move(piezas);
    return r;
}

int SetRectRgn(Region &region, int32_t l, int32_t t, int32_t r, int32_t b) {
    region.Pon(Rectangulo{std::min(l, r), std::min(t, b), std::max(l, r), std::max(t, b)});
    return 1;
}

int CombineRgn(Region &destino, const Region &a, const Region &b, int modo) {
    if (modo == RGN_AND) {
        destino = Region::Interseccion(a, b);
    } else if (modo == RGN_DIFF) {
        destino = Region::Diferencia(a, b);
    } else {
        return ERROR_REGION;
    }
    return destino.Tipo();
}

int SelectClipRgn(Superficie &s, const Region *region) {
    s.PonRecorte(region);
    return region != nullptr ? region->Tipo() : SIMPLEREGION;
}
