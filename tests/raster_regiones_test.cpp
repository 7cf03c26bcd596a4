// Regions: combination, types, membership, aliasing.
#include <gtest/gtest.h>

#include "raster_referencia.h"

namespace {

// Rectangles of a region must be disjoint and not empty.
void CompruebaInvariantes(const Region &r) {
    const auto &v = r.Rectangulos();
    for (size_t i = 0; i < v.size(); ++i) {
        EXPECT_FALSE(v[i].Vacio());
        for (size_t j = i + 1; j < v.size(); ++j) {
            EXPECT_TRUE(Interseccion(v[i], v[j]).Vacio()) << i << " y " << j;
        }
    }
}

// Membership of every pixel of a grid around both against brute force;
// the result is the same when the destination is one of the operands.
TEST(RasterRegiones, CombinaComoLaFuerzaBruta) {
    Region marco, tiras;
    CombineRgn(marco, Region({0, 0, 12, 12}), Region({3, 3, 9, 9}), RGN_DIFF);
    CombineRgn(tiras, Region({-2, 1, 14, 4}), Region({5, -2, 7, 14}), RGN_DIFF);
    const struct {
        Region a, b;
        int modo, tipo;
    } casos[] = {
        {Region({0, 0, 10, 10}), Region({5, 5, 15, 15}), RGN_AND, SIMPLEREGION},
        {Region({0, 0, 10, 10}), Region({10, 0, 15, 15}), RGN_AND, NULLREGION},
        {Region({0, 0, 10, 10}), Region({2, 2, 8, 8}), RGN_DIFF, COMPLEXREGION}, // a frame
        {Region({0, 0, 10, 10}), Region({5, -1, 11, 11}), RGN_DIFF, SIMPLEREGION},
        {Region({0, 0, 10, 10}), Region({-1, -1, 11, 11}), RGN_DIFF, NULLREGION},
        {Region({0, 0, 10, 10}), Region({20, 20, 30, 30}), RGN_DIFF, SIMPLEREGION},
        {Region({0, 0, 10, 10}), Region(), RGN_AND, NULLREGION},
        {marco, tiras, RGN_AND, COMPLEXREGION},
        {marco, tiras, RGN_DIFF, COMPLEXREGION},
        {tiras, marco, RGN_DIFF, COMPLEXREGION},
    };
    for (const auto &c : casos) {
        Region r, alias_a = c.a, alias_b = c.b;
        EXPECT_EQ(CombineRgn(r, c.a, c.b, c.modo), c.tipo);
        EXPECT_EQ(r.Tipo(), c.tipo);
        CompruebaInvariantes(r);
        for (int32_t y = -3; y < 32; ++y) {
            for (int32_t x = -3; x < 32; ++x) {
                const bool a = c.a.Contiene(x, y), b = c.b.Contiene(x, y);
                EXPECT_EQ(r.Contiene(x, y), c.modo == RGN_AND ? a && b : a && !b);
            }
        }
        CombineRgn(alias_a, alias_a, c.b, c.modo);
        EXPECT_EQ(alias_a.Rectangulos(), r.Rectangulos());
        CombineRgn(alias_b, c.a, alias_b, c.modo);
        EXPECT_EQ(alias_b.Rectangulos(), r.Rectangulos());
    }
}

TEST(RasterRegiones, ModoDesconocidoYRectangulos) {
    Region r(Rectangulo{1, 1, 2, 2});
    const Region a({0, 0, 12, 12}), b({3, 3, 20, 9});
    EXPECT_EQ(CombineRgn(r, a, b, 2), ERROR_REGION); // RGN_OR is not kept
    EXPECT_EQ(r.Rectangulos(), std::vector<Rectangulo>{(Rectangulo{1, 1, 2, 2})});
    CombineRgn(r, a, b, RGN_DIFF);
    EXPECT_EQ(r.Limites(), (Rectangulo{0, 0, 12, 12}));
    EXPECT_EQ(Region().Limites(), Rectangulo{});
    EXPECT_EQ(SetRectRgn(r, 8, 6, 2, 1), 1);
    EXPECT_EQ(r.Rectangulos(), std::vector<Rectangulo>{(Rectangulo{2, 1, 8, 6})});
    SetRectRgn(r, 3, 3, 3, 7);
    EXPECT_TRUE(r.Vacia());
    EXPECT_EQ(r.Tipo(), NULLREGION);
}

} // namespace
