// Points, lines, and the invert draw mode over every figure. Boxes are the
// panels' and the frames' outlines, seen by their tests.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <random>
#include <set>

#include "raster_referencia.h"

namespace {

// A point goes to the nearest pixel; one off the surface, or at no place,
// writes nothing.
TEST(RasterLineas, PuntosRedondeanAlMasCercano) {
    const double casos[][4] = {{2.5, 3.49, 3, 3}, {-0.5, 0.5, 0, 1}, {4.49, 1.51, 4, 2}};
    for (const auto &c : casos) {
        Superficie s(6, 6);
        s.PSet(c[0], c[1], 0x0000FF);
        EXPECT_EQ(s.Point(c[2], c[3]), 0x0000FFu);
        EXPECT_EQ(s.Point(c[0], c[1]), 0x0000FFu);
        EXPECT_EQ(referencia::Cuenta(s, 0x0000FF), 1);
        s.PSet(9, 9);
        s.PSet(NAN, 1);
        EXPECT_EQ(referencia::Cuenta(s, COLOR_NEGRO), 0);
    }
}

// One line per octant and along the axes, from the centre of the surface.
TEST(RasterLineas, LineaDejaFueraSuUltimoPunto) {
    const int32_t fines[][2] = {{30, 24}, {24, 30}, {16, 30}, {10, 24}, {10, 16},
                                {16, 10}, {24, 10}, {30, 16}, {30, 20}, {20, 31},
                                {9, 20},  {20, 9},  {30, 30}, {10, 30}, {20, 20}};
    for (const auto &f : fines) {
        Superficie s(40, 40);
        s.Line(20, 20, f[0], f[1]);
        const int32_t dx = f[0] - 20, dy = f[1] - 20;
        const int32_t n = std::max(std::abs(dx), std::abs(dy));
        EXPECT_EQ(referencia::Cuenta(s, COLOR_NEGRO), n) << f[0] << "," << f[1];
        EXPECT_EQ(s.Point(f[0], f[1]), COLOR_BLANCO);
        EXPECT_EQ(s.Point(20, 20), n > 0 ? COLOR_NEGRO : COLOR_BLANCO);
        // One pixel per step of the major axis, within half a pixel of the
        // ideal line across it.
        const bool x_mayor = std::abs(dx) >= std::abs(dy);
        std::set<int32_t> pasos;
        for (int32_t y = 0; y < 40; ++y) {
            for (int32_t x = 0; x < 40; ++x) {
                if (s.Point(x, y) == COLOR_NEGRO) {
                    pasos.insert(x_mayor ? x : y);
                    const double ideal =
                        x_mayor ? 20 + dy * (x - 20.0) / dx : 20 + dx * (y - 20.0) / dy;
                    EXPECT_LE(std::fabs((x_mayor ? y : x) - ideal), 0.5) << x << "," << y;
                }
            }
        }
        EXPECT_EQ(pasos.size(), static_cast<size_t>(n));
    }
}

// Long lines far past the surface keep only their visible part.
TEST(RasterLineas, LineaLargaSeRecorta) {
    Superficie s(20, 10);
    s.Line(-1e7, 4, 1e7, 4);
    s.Line(3, 1e8, 3, -1e8);
    s.Line(NAN, 0, 5, 5);
    s.Line(0, 0, 1e300, 0);
    EXPECT_EQ(referencia::Cuenta(s, COLOR_NEGRO), 20 + 10 - 1);
}

// Every figure drawn in invert mode changes exactly the pixels it draws in
// copy mode, and drawing it again restores the surface: no pixel of a
// figure is written twice.
TEST(RasterLineas, InvertirDosVecesRestaura) {
    const std::vector<std::function<void(Superficie &)>> figuras = {
        [](Superficie &s) { s.Line(2, 3, 37, 19); },
        [](Superficie &s) { s.Caja(3, 4, 30, 25); },
        [](Superficie &s) { s.CajaLlena(-2, 5, 12, 9, COLOR_NEGRO); },
        [](Superficie &s) { s.PSet(5, 5); },
        [](Superficie &s) { s.Circle(20, 15, 11); },
        [](Superficie &s) { s.Circle(20.4, 15.7, 30, 0.35); },
        [](Superficie &s) { s.CircleArco(20, 15, 12, 5.2, 1.1); },
        [](Superficie &s) { s.CircleArco(20, 15, 12, 1.570796, 4.712389, 0.5); }};
    std::mt19937 azar(5);
    for (size_t k = 0; k < figuras.size(); ++k) {
        Superficie copia(40, 30);
        figuras[k](copia);
        Superficie s = referencia::Aleatoria(40, 30, azar);
        const Superficie antes = s;
        s.DrawMode = DRAWMODE_INVIERTE;
        figuras[k](s);
        int cambiados = 0;
        for (size_t i = 0; i < s.Pixeles().size(); ++i) {
            cambiados += s.Pixeles()[i] != antes.Pixeles()[i];
            EXPECT_EQ(s.Pixeles()[i], antes.Pixeles()[i] == s.Pixeles()[i]
                                          ? antes.Pixeles()[i]
                                          : (~antes.Pixeles()[i] | ALFA_OPACO));
        }
        EXPECT_EQ(cambiados, referencia::Cuenta(copia, COLOR_NEGRO)) << "figura " << k;
        EXPECT_GT(cambiados, 0);
        figuras[k](s);
        EXPECT_EQ(s.Pixeles(), antes.Pixeles()) << "figura " << k;
    }
}

} // namespace
