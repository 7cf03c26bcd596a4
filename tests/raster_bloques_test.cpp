// BitBlt and StretchBlt: raster operations, clipping, overlap, scaling.
#include <gtest/gtest.h>

#include <random>

#include "raster_referencia.h"

namespace {

struct Verdad {
    uint32_t rop;
    Color origen, destino, esperado;
};

// Unknown rops write nothing and return 0.
const Verdad kVerdades[] = {
    {SRCCOPY, 0x123456, 0xF0F0F0, 0x123456},      {SRCAND, 0x123456, 0xF0F0F0, 0x103050},
    {SRCINVERT, 0x123456, 0xF0F0F0, 0xE2C4A6},    {SRCINVERT, 0xFFFFFF, 0xFFFFFF, 0x000000},
    {NOTSRCCOPY, 0x123456, 0xF0F0F0, 0xEDCBA9},   {DSTANDNOTSRC, 0x123456, 0xF0F0F0, 0xE0C0A0},
    {DSTANDNOTSRC, 0xFFFFFF, 0xABCDEF, 0x000000}, {0, 0x123456, 0x654321, 0x654321},
    {0xFFFFFFFF, 0x123456, 0x654321, 0x654321},
};

// Each rop by its truth table, through BitBlt and a 2x StretchBlt; the store
// keeps its opaque top byte.
TEST(RasterBloques, TablasDeVerdad) {
    for (const Verdad &v : kVerdades) {
        uint32_t nada;
        const bool conocida = referencia::Combina(v.rop, 0, 0, nada);
        for (bool estira : {false, true}) {
            Superficie o(1, 1, v.origen), d(2, 2, v.destino);
            const int r = estira ? StretchBlt(d, 0, 0, 2, 2, o, 0, 0, 1, 1, v.rop)
                                 : BitBlt(d, 0, 0, 1, 1, o, 0, 0, v.rop);
            EXPECT_EQ(r != 0, conocida);
            for (int i = 0; i < (estira ? 4 : 1); ++i) {
                EXPECT_EQ(d.Point(i % 2, i / 2), v.esperado)
                    << std::hex << v.rop << " " << v.origen;
                EXPECT_EQ(d.Pixeles()[i] >> 24, 0xFFu);
            }
        }
    }
}

// The edges of both surfaces are the random cases' work; at the far end of
// the coordinates nothing is written and nothing overflows (the sanitizer
// build watches).
TEST(RasterBloques, ALaOrillaDeLosEnterosNoEscribe) {
    Superficie d(8, 6);
    const Superficie o(5, 4, COLOR_NEGRO);
    EXPECT_EQ(BitBlt(d, INT32_MAX - 2, INT32_MAX - 2, 5, 4, o, 0, 0, SRCCOPY), 1);
    EXPECT_EQ(referencia::Cuenta(d, COLOR_NEGRO), 0);
}

// The clip regions a blit meets: a rectangle, an AND, a DIFF with a hole,
// an empty region. What each write leaves outside a region is the
// surface's test.
std::vector<Region> RegionesDePrueba() {
    Region rect(Rectangulo{1, 1, 6, 5}), y, hueco, vacia;
    CombineRgn(y, rect, Region(Rectangulo{3, 0, 9, 3}), RGN_AND);
    CombineRgn(hueco, Region(Rectangulo{0, 0, 8, 6}), Region(Rectangulo{2, 2, 5, 4}), RGN_DIFF);
    SetRectRgn(vacia, 4, 4, 4, 9);
    return {rect, y, hueco, vacia};
}

// The fast paths against the per-pixel reference on random cases.
TEST(RasterBloques, IgualQueLaReferenciaEnCasosAlAzar) {
    std::mt19937 azar(20240611);
    const uint32_t rops[] = {SRCCOPY, SRCAND, SRCINVERT, NOTSRCCOPY, DSTANDNOTSRC, 0x00EE0086};
    const std::vector<Region> regiones = RegionesDePrueba();
    const auto entre = [&](int a, int b) { return std::uniform_int_distribution<int>(a, b)(azar); };
    for (int caso = 0; caso < 400; ++caso) {
        Superficie d = referencia::Aleatoria(entre(0, 12), entre(0, 10), azar);
        const Superficie o = referencia::Aleatoria(entre(0, 12), entre(0, 10), azar);
        const bool misma = entre(0, 4) == 0;
        const int region = entre(-2, 3);
        if (region >= 0) {
            d.PonRecorte(&regiones[region]);
        }
        const uint32_t rop = rops[entre(0, 5)];
        const int x = entre(-6, 14), y = entre(-6, 12), xs = entre(-6, 14), ys = entre(-6, 12);
        const int w = entre(-2, 14), h = entre(-2, 12), ws = entre(-1, 16), hs = entre(-1, 16);
        Superficie esperado = d;
        const Superficie &fuente = misma ? d : o;
        const Superficie &fuente_ref = misma ? esperado : o;
        if (caso % 2 == 0) {
            EXPECT_EQ(BitBlt(d, x, y, w, h, fuente, xs, ys, rop),
                      referencia::BitBltLento(esperado, x, y, w, h, fuente_ref, xs, ys, rop));
        } else {
            EXPECT_EQ(
                StretchBlt(d, x, y, w, h, fuente, xs, ys, ws, hs, rop),
                referencia::StretchBltLento(esperado, x, y, w, h, fuente_ref, xs, ys, ws, hs, rop));
        }
        ASSERT_EQ(d.Pixeles(), esperado.Pixeles()) << "caso " << caso;
    }
}

// A surface copied onto itself one pixel off, in each direction, reads the
// source as it was.
TEST(RasterBloques, CopiaSobreSiMismaSolapada) {
    std::mt19937 azar(3);
    for (int k = 0; k < 9; ++k) {
        const int dx = k % 3 - 1, dy = k / 3 - 1;
        const uint32_t rop = k % 2 ? SRCCOPY : SRCINVERT;
        Superficie s = referencia::Aleatoria(9, 7, azar);
        const Superficie antes = s;
        Superficie esperado = s;
        BitBlt(s, dx, dy, 9, 7, s, 0, 0, rop);
        referencia::BitBltLento(esperado, dx, dy, 9, 7, antes, 0, 0, rop);
        EXPECT_EQ(s.Pixeles(), esperado.Pixeles()) << dx << "," << dy;
    }
}

// The worked example the reference's sampling rests on: halving takes the
// pixel under each destination centre, the odd ones.
TEST(RasterBloques, EstiraPorElPixelMasCercano) {
    std::mt19937 azar(11);
    const Superficie o = referencia::Aleatoria(6, 4, azar);
    Superficie mitad(3, 2);
    StretchBlt(mitad, 0, 0, 3, 2, o, 0, 0, 6, 4, SRCCOPY);
    referencia::EsperaPixeles(mitad,
                              [&](int32_t x, int32_t y) { return o.Point(2 * x + 1, 2 * y + 1); });
}

} // namespace
