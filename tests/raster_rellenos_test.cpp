// Flood fills: bad seeds and the per-pixel reference. The clip is every
// write's, in raster_superficie_test.cpp.
#include <gtest/gtest.h>

#include <random>

#include "raster_referencia.h"

namespace {

TEST(RasterRellenos, SemillaInvalidaNoPinta) {
    Superficie s(10, 10);
    s.Caja(2, 2, 7, 7);
    s.FillColor = 0x0000FF;
    const auto antes = s.Pixeles();
    EXPECT_EQ(FloodFill(s, 2, 4, COLOR_NEGRO), 0);
    EXPECT_EQ(FloodFill(s, -1, 4, COLOR_NEGRO), 0);
    EXPECT_EQ(FloodFill(s, 4, 10, COLOR_NEGRO), 0);
    EXPECT_EQ(ExtFloodFill(s, 4, 4, COLOR_NEGRO, FLOODFILLSURFACE), 0);
    EXPECT_EQ(ExtFloodFill(s, 4, 4, COLOR_NEGRO, 7), 0);
    EXPECT_EQ(s.Pixeles(), antes);
    Superficie vacia;
    EXPECT_EQ(FloodFill(vacia, 0, 0, COLOR_NEGRO), 0);
}

// Both kinds of fill on random two-colour patterns, against a plain search;
// the fill colour is sometimes one of the pattern's colours.
TEST(RasterRellenos, IgualQueUnaBusquedaSencilla) {
    std::mt19937 azar(99);
    const Color colores[] = {0x102030, 0x405060};
    for (int caso = 0; caso < 60; ++caso) {
        Superficie s(23, 17);
        for (int32_t y = 0; y < 17; ++y) {
            for (int32_t x = 0; x < 23; ++x) {
                s.Fila(y)[x] = APixel(colores[azar() % 100 < 45]);
            }
        }
        const auto x = static_cast<int32_t>(azar() % 23), y = static_cast<int32_t>(azar() % 17);
        const uint32_t semilla = s.Fila(y)[x];
        const bool superficie = caso % 2 == 0;
        s.FillColor = caso % 3 == 0 ? colores[1] : 0xABCDEF;
        const auto area = referencia::Area(s, x, y, [&](uint32_t p) {
            return superficie ? p == semilla : p != APixel(colores[0]);
        });
        Superficie esperado = s;
        for (size_t i = 0; i < area.size(); ++i) {
            if (area[i]) {
                esperado.Fila(static_cast<int32_t>(i / 23))[i % 23] = APixel(s.FillColor);
            }
        }
        const int r = superficie ? ExtFloodFill(s, x, y, AColor(semilla), FLOODFILLSURFACE)
                                 : ExtFloodFill(s, x, y, colores[0], FLOODFILLBORDER);
        EXPECT_EQ(r, superficie || semilla != APixel(colores[0]) ? 1 : 0);
        ASSERT_EQ(s.Pixeles(), esperado.Pixeles()) << "caso " << caso;
    }
}

} // namespace
