// The figures of the double puzzles, from the size of a cell.
#pragma once

#include <cstdint>

struct Figura {
    int32_t R = 0;          // circle (type 2), ellipse (type 4)
    int32_t Dx = 0, Dy = 0; // inset of the rectangle (type 3)
    float E = 1.0f;         // aspect of the ellipse (type 4)
    int32_t A = 0, B = 0;   // radii of the star's ellipses (type 5)
    float E1 = 1.0f, E2 = 1.0f;
};

// Circles span 70 percent of the shorter side, rectangles 60 percent of the
// cell, ellipses and stars about 70 percent each way.
Figura CalculaFigura(int16_t tipo, int32_t ancho, int32_t alto);
