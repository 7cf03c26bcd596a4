// Ellipses and arcs: closed outlines, aspect, arcs through 0. Filled
// ellipses are the pieces' masks, seen by the cut's checksums.
#include <gtest/gtest.h>

#include <cmath>

#include "raster_referencia.h"

namespace {

constexpr double GRADO = 3.141593 / 180; // as the game writes it

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

// aspect < 1: a = r, b = r * aspect; aspect > 1: b = r, a = r / aspect.
TEST(RasterCirculos, AspectoFijaLosSemiejes) {
    const struct {
        double aspecto;
        int ancho, alto;
    } casos[] = {{1.0, 41, 41}, {0.5, 41, 21}, {2.0, 21, 41}, {0.35, 41, 15}, {4.0, 11, 41}};
    for (const auto &c : casos) {
        Superficie s(60, 60);
        s.Circle(30, 30, 20, c.aspecto);
        const Rectangulo caja = referencia::CajaDe(s, COLOR_NEGRO);
        EXPECT_EQ(caja.Ancho(), c.ancho) << c.aspecto;
        EXPECT_EQ(caja.Alto(), c.alto) << c.aspecto;
        EXPECT_EQ(caja.Izquierda + caja.Derecha, 61) << c.aspecto; // centred on 30
    }
}

TEST(RasterCirculos, ArcosEnSentidoAntihorario) {
    const struct {
        double inicio, fin;
        bool derecha, izquierda, arriba, abajo; // the points at t = 0, pi, pi/2, 3pi/2
        bool mitad_izquierda, mitad_derecha;    // any pixel left / right of the centre
    } casos[] = {
        {300 * GRADO, 60 * GRADO, true, false, false, false, false, true},
        {90 * GRADO, 270 * GRADO, false, true, true, true, true, false},
        {0, 90 * GRADO, true, false, true, false, false, true},
        {180 * GRADO, 360 * GRADO, true, true, false, true, true, true},
        {-45 * GRADO, -135 * GRADO, false, false, true, false, true, true}, // by their size
    };
    for (const auto &c : casos) {
        Superficie s(50, 50);
        s.RellenaFiguras = true; // arcs are never filled
        s.FillColor = 0x00FF00;
        s.CircleArco(25, 25, 15, c.inicio, c.fin);
        EXPECT_EQ(s.Point(40, 25) == COLOR_NEGRO, c.derecha) << c.inicio;
        EXPECT_EQ(s.Point(10, 25) == COLOR_NEGRO, c.izquierda) << c.inicio;
        EXPECT_EQ(s.Point(25, 10) == COLOR_NEGRO, c.arriba) << c.inicio;
        EXPECT_EQ(s.Point(25, 40) == COLOR_NEGRO, c.abajo) << c.inicio;
        const Rectangulo caja = referencia::CajaDe(s, COLOR_NEGRO);
        EXPECT_EQ(caja.Izquierda < 25, c.mitad_izquierda) << c.inicio;
        EXPECT_EQ(caja.Derecha > 26, c.mitad_derecha) << c.inicio;
        EXPECT_EQ(referencia::Cuenta(s, 0x00FF00), 0);
    }
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
