// Shared set-up of the panel tests: a synthetic button strip whose shadows
// lie under the seed points of the pressed look.
#pragma once

#include <utility>
#include <vector>

#include "motor_comun.h"
#include "panels/SemillasBotones.h"
#include "raster/Colores.h"
#include "raster_referencia.h"

constexpr Color SOMBRA_PRUEBA = RGB(0, 0, 0x80);
constexpr Color GRIS_PANEL = 0xC0C0C0;

// The body colour of image i: never the shadow, never the grey.
constexpr Color CuerpoPrueba(int boton) {
    return RGB(20 * boton, 200, 30);
}

// Image i is its body colour, with a 3 x 3 blot of shadow around each of the
// game's seeds (cut at the image's edge). The blots stand apart from one
// another, so each needs its own seed. Whether the seeds fall in the real
// strip's shadows is the asset tests' business.
inline void PintaTiraPrueba(Superficie &tira) {
    tira.CambiaTamano(638, 50);
    tira.CajaLlena(0, 0, 637, 49, GRIS_PANEL);
    for (int i = 1; i <= 13; ++i) {
        const int x0 = (i - 1) * 49 + 1;
        tira.CajaLlena(x0, 1, x0 + 47, 48, CuerpoPrueba(i));
        if (i > 11) {
            continue;
        }
        for (const auto &[sx, sy] : SemillasSombra()[static_cast<size_t>(i)]) {
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

// A 1024 x 768 screen (the first instant's) with its scroll bars, a board larger than the view
// (both bars can scroll 200 pixels), the board's twin in the same pixels,
// and the always-visible panel of eleven buttons in one column.
inline void PreparaPantallaPaneles() {
    using namespace PuzzGbl;
    FormTeselari &f = teselari;
    f.BarraHor.Top = 752;
    f.BarraVer.Left = 1008;
    f.BarraHor.PonMax(200);
    f.BarraVer.PonMax(200);
    PintaImagenGenerada(f.Pic_Imagen, 1208, 952);
    PintaImagenGenerada(f.Pic_Trabajo, 1208, 952);
    f.Pic_BotonesSiempre.Move(946, 0, 62, 667);
    ColorContraste = COLOR_BLANCO;
}
