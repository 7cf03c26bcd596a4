// Clip regions: a list of disjoint half-open rectangles.
//
// The game only ever makes rectangles, intersects two of them and takes one
// out of another, so a short list of rectangles is all a region needs. The
// rectangles of a region never overlap and none of them is empty.
#pragma once

#include <vector>

#include "raster/Rectangulo.h"

// Results of CombineRgn, by the values the game tests.
constexpr int ERROR_REGION = 0;
constexpr int NULLREGION = 1;
constexpr int SIMPLEREGION = 2;
constexpr int COMPLEXREGION = 3;

// Modes of CombineRgn.
constexpr int RGN_AND = 1;
constexpr int RGN_DIFF = 4;

class Region {
  public:
    Region() = default;
    explicit Region(const Rectangulo &r) { Pon(r); }

    // Replaces the region by one rectangle (empty when r is empty).
    void Pon(const Rectangulo &r);
    bool Vacia() const { return rects_.empty(); }
    const std::vector<Rectangulo> &Rectangulos() const { return rects_; }
    bool Contiene(int32_t x, int32_t y) const;
    // The bounding rectangle of the whole region (empty when the region is).
    Rectangulo Limites() const;
    // NULLREGION, SIMPLEREGION or COMPLEXREGION, by the number of rectangles.
    int Tipo() const;

    static Region Interseccion(const Region &a, const Region &b);
    static Region Diferencia(const Region &a, const Region &b);

  private:
    std::vector<Rectangulo> rects_;
};

// Reshapes a region into the rectangle (l, t)-(r, b), right and bottom
// excluded. Returns non-zero, as the platform call does.
int SetRectRgn(Region &region, int32_t l, int32_t t, int32_t r, int32_t b);

// destino = a AND b, or a minus b. Returns the type of the result:
// NULLREGION when it is empty. destino may be a or b.
int CombineRgn(Region &destino, const Region &a, const Region &b, int modo);
