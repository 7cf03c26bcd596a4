// Ellipses: closed outlines, arcs, useless values. Their aspect, the arcs'
// direction and the filled ellipses are the pieces' outlines and masks, seen
// by the cut's checksums.
#include <gtest/gtest.h>

#include <cmath>

#include "raster_referencia.h"

namespace {

// A whole ellipse holds a flood fill from its centre: the fill stays inside
// the outline's bounding box for every radius and aspect.
TEST(RasterCirculos, ElipseEnteraEsCerrada) {
    for (double aspecto : {0.35, 1.0, 2.85}) {
        for (int radio = 2; radio <= 60; radio += 2) {
            Superficie s(160, 160);
            s.FillColor = 0x0000FF;
            s.Circle(80.3, 79.6, radio + 0.25, aspecto);
            const Rectangulo caja = referencia::CajaDe(s, COLOR_NEGRO);
            if (s.Point(80, 80) == COLOR_NEGRO) {
                continue; // flat enough that the centre is on the outline
            }
            ASSERT_EQ(FloodFill(s, 80, 80, COLOR_NEGRO), 1);
            const Rectangulo relleno = referencia::CajaDe(s, 0x0000FF);
            EXPECT_EQ(Interseccion(relleno, caja), relleno) << radio << " " << aspecto;
            EXPECT_GT(referencia::Cuenta(s, 0x0000FF), 0);
        }
    }
}

// An arc is never filled, and its angles count by their size: -45 and -135
// degrees draw the top quarter. The cuts' arcs are all positive.
TEST(RasterCirculos, ArcoSinRellenoYAngulosPorSuTamano) {
    Superficie s(50, 50);
    s.RellenaFiguras = true;
    s.FillColor = 0x00FF00;
    s.CircleArco(25, 25, 15, -0.785398, -2.356194);
    EXPECT_EQ(s.Point(25, 10), COLOR_NEGRO);
    EXPECT_EQ(s.Point(40, 25), COLOR_BLANCO);
    EXPECT_EQ(s.Point(10, 25), COLOR_BLANCO);
    EXPECT_EQ(referencia::Cuenta(s, 0x00FF00), 0);
}

TEST(RasterCirculos, ValoresInutilesNoDibujan) {
    Superficie s(30, 30);
    std::vector<Rectangulo> informes;
    s.AlCambiar = [&](const Rectangulo &r) { informes.push_back(r); };
    s.Circle(15, 15, 0);
    s.Circle(15, 15, -4);
    s.Circle(15, 15, 5, 0);
    s.Circle(15, 15, 5, -1);
    s.Circle(NAN, 15, 5);
    s.Circle(15, 15, INFINITY);
    s.Circle(15, 15, 1e12);
    s.CircleArco(15, 15, 5, NAN, 1);
    EXPECT_EQ(referencia::Cuenta(s, COLOR_NEGRO), 0);
    EXPECT_TRUE(informes.empty());
    s.Circle(-1e5, 15, 1e5 + 3); // huge, a sliver visible
    EXPECT_GT(referencia::Cuenta(s, COLOR_NEGRO), 0);
    EXPECT_EQ(informes.size(), 1u);
}

} // namespace
