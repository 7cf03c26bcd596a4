// Shared set-up of the panel tests: a synthetic button strip whose shadows
// lie under the seed points of the pressed look.
#pragma once

#include <utility>
#include <vector>

#include "motor_comun.h"
#include "platform/raster/Colores.h"

constexpr Color SOMBRA_PRUEBA = RGB(0, 0, 0x80);
constexpr Color GRIS_PANEL = 0xC0C0C0;

// The seeds of each button in control coordinates of the pressed position,
// written out again here so that a wrong table in the game shows.
inline const std::vector<std::pair<int, int>> &SemillasPrueba(int boton) {
    static const std::vector<std::pair<int, int>> tabla[12] = {
        {},
        {{51, 51}},
        {{43, 51}, {44, 17}},
        {{50, 50}},
        {{50, 50}, {19, 19}, {22, 32}},
        {{49, 46}},
        {{51, 51}, {30, 22}, {26, 16}},
        {{21, 51}, {35, 51}, {51, 51}},
        {{23, 23}, {49, 40}, {33, 51}},
        {{51, 51}},
        {{51, 51}},
        {{14, 37}},
    };
    return tabla[boton];
}

// The body colour of image i: never the shadow, never the grey.
constexpr Color CuerpoPrueba(int boton) {
    return RGB(20 * boton, 200, 30);
}

// Image i is its body colour, with a 3 x 3 blot of shadow around each seed
// (cut at the image's edge). The blots stand apart from one another, so
// each needs its own seed.
inline void PintaTiraPrueba(Superficie &tira) {
    tira.CambiaTamano(638, 50);
    tira.CajaLlena(0, 0, 637, 49, GRIS_PANEL);
    for (int i = 1; i <= 13; ++i) {
        const int x0 = (i - 1) * 49 + 1;
        tira.CajaLlena(x0, 1, x0 + 47, 48, CuerpoPrueba(i));
        if (i > 11) {
            continue;
        }
        for (const auto &[sx, sy] : SemillasPrueba(i)) {
            const int lx = sx - 5, ly = sy - 5; // the image's own pixel
            for (int dy = -1; dy <= 1; ++dy) {
                for (int dx = -1; dx <= 1; ++dx) {
                    if (lx + dx >= 0 && lx + dx < 48 && ly + dy >= 0 && ly + dy < 48) {
                        tira.PSet(x0 + lx + dx, 1 + ly + dy, SOMBRA_PRUEBA);
                    }
                }
            }
        }
    }
}

// How many pixels of a surface have the colour.
inline int CuentaColor(const Superficie &s, Color c) {
    int n = 0;
    for (uint32_t p : s.Pixeles()) {
        n += (p & 0xFFFFFF) == (APixel(c) & 0xFFFFFF) ? 1 : 0;
    }
    return n;
}
