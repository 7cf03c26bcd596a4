// Closure and containment of every cut, on grids and cell sizes at the edges
// of what the dialog can make: n from 3 to 20, cells of 24 to 140 pixels each
// way within a picture of at most 1024 x 768, as wide and as tall as each cut
// allows.
#include <algorithm>
#include <deque>

#include "core/Redondeo.h"
#include "cutting/Corte.h"
#include "motor_comun.h"

using namespace PuzzGbl;

namespace {

struct CasoCorte {
    int16_t tipo, n;
    int32_t w, h;
};

std::string NombreCaso(const ::testing::TestParamInfo<CasoCorte> &i) {
    const CasoCorte &c = i.param;
    return "t" + std::to_string(c.tipo) + "_n" + std::to_string(c.n) + "_" + std::to_string(c.w) +
           "x" + std::to_string(c.h);
}

// Irregular cells stay within 0.476 to 2.1 of width to height, stars within
// 0.416 to 2.4; the other cuts take any proportion.
const CasoCorte IRREGULARES[] = {{1, 3, 140, 140}, {1, 3, 24, 24},  {1, 7, 140, 67},
                                 {1, 8, 80, 60},   {1, 11, 24, 50}, {1, 13, 50, 24},
                                 {1, 20, 24, 38},  {1, 20, 51, 38}};
const CasoCorte DOBLES[] = {{2, 3, 140, 140}, {2, 16, 64, 48}, {3, 4, 24, 140}, {3, 20, 24, 24},
                            {4, 9, 100, 24},  {4, 20, 51, 38}, {5, 5, 24, 57},  {5, 12, 57, 24}};

// Prepares the cut without dealing: every piece at home, in order.
void Corta(const CasoCorte &c) {
    // A few spare pixels right and below that the grid leaves out.
    PreparaJuego(c.n, c.tipo, c.n * c.w + c.n / 2, c.n * c.h + c.n / 3);
    SesionRestaurando = VERDADERO;
    PreparaBitmap();
    ColocaPiezasEnCasa();
}

// The pixels outside the piece (not black) that no 4-connected path of
// such pixels joins to the box's border or to the centre of a socket:
// pinholes in the piece. (Where the grid is fine, a socket's mouth may close
// to a pixel line; its bay is still the neighbour's knob's place.)
size_t Agujeros(const Superficie &s) {
    const int32_t w = s.Ancho(), h = s.Alto();
    std::vector<uint8_t> fuera(static_cast<size_t>(w) * h, 0);
    const double aw = AnchoPieza, ah = AltoPieza, mx = MargenX, my = MargenY;
    std::deque<std::pair<int32_t, int32_t>> cola{
        {Redondea(mx + 0.5 * aw), Redondea(my + 0.09 * aw)},
        {Redondea(mx + 0.5 * aw), Redondea(my + ah - 0.09 * aw) - AjusteY},
        {Redondea(mx + 0.09 * ah), Redondea(my + 0.5 * ah)},
        {Redondea(mx + aw - 0.09 * ah) - AjusteX, Redondea(my + 0.5 * ah)}};
    for (int32_t y = 0; y < h; ++y) {
        for (int32_t x = 0; x < w; ++x) {
            if (x == 0 || y == 0 || x == w - 1 || y == h - 1) {
                cola.emplace_back(x, y);
            }
        }
    }
    while (!cola.empty()) {
        auto [x, y] = cola.front();
        cola.pop_front();
        if (x < 0 || y < 0 || x >= w || y >= h) {
            continue;
        }
        uint8_t &v = fuera[static_cast<size_t>(y) * w + x];
        if (v != 0 || s.Point(x, y) == COLOR_NEGRO) {
            continue;
        }
        v = 1;
        cola.insert(cola.end(), {{x - 1, y}, {x + 1, y}, {x, y - 1}, {x, y + 1}});
    }
    size_t agujeros = 0;
    for (int32_t y = 0; y < h; ++y) {
        for (int32_t x = 0; x < w; ++x) {
            agujeros += fuera[static_cast<size_t>(y) * w + x] == 0 && s.Point(x, y) != COLOR_NEGRO;
        }
    }
    return agujeros;
}

// The picture beyond the puzzle's right and bottom is not cut.
void CompruebaRestoIntacto() {
    const Superficie &b = teselari.Pic_Bitmap, &o = teselari.Pic_Origin;
    for (int32_t y = 0; y < b.Alto(); ++y) {
        for (int32_t x = 0; x < b.Ancho(); ++x) {
            if (x >= AnchoPuzzle || y >= AltoPuzzle) {
                ASSERT_EQ(b.Point(x, y), o.Point(x, y)) << x << "," << y;
            }
        }
    }
}

// The image of the piece is black wherever its mask is white and is the cut
// picture wherever the mask is black.
void CompruebaImagenEnmascarada(const Pieza &q) {
    const Superficie &m = teselari.Pic_PiezaMascara, &im = teselari.Pic_PiezaImagen;
    for (int32_t y = 0; y < m.Alto(); ++y) {
        for (int32_t x = 0; x < m.Ancho(); ++x) {
            const int32_t bx = q.XCorrecta - MargenX + x, by = q.YCorrecta - MargenY + y;
            if (m.Point(x, y) != COLOR_NEGRO) {
                ASSERT_EQ(im.Point(x, y), COLOR_NEGRO) << x << "," << y;
            } else {
                ASSERT_EQ(im.Point(x, y), teselari.Pic_Bitmap.Point(bx, by)) << x << "," << y;
            }
        }
    }
}

} // namespace

class CorteIrregular : public Motor, public ::testing::WithParamInterface<CasoCorte> {};

TEST_P(CorteIrregular, MascarasRectasEnElBordeYCubrenElPuzzle) {
    Corta(GetParam());
    CompruebaRestoIntacto();
    std::vector<uint8_t> cuenta(static_cast<size_t>(AnchoPuzzle) * AltoPuzzle, 0);
    const Superficie &m = teselari.Pic_PiezaMascara;
    for (int16_t i = 1; i <= NroPiezas; ++i) {
        const Pieza q = Piezas[OrdenPiezas[i]];
        EnmascaraPieza(i);
        const bool izq = q.XCorrecta == 0, der = q.XCorrecta + AnchoPieza == AnchoPuzzle;
        const bool arr = q.YCorrecta == 0, aba = q.YCorrecta + AltoPieza == AltoPuzzle;
        size_t negros = 0;
        for (int32_t y = 0; y < m.Alto(); ++y) {
            for (int32_t x = 0; x < m.Ancho(); ++x) {
                const bool negro = m.Point(x, y) == COLOR_NEGRO;
                const bool enCelda = x >= MargenX && x < MargenX + AnchoPieza && y >= MargenY &&
                                     y < MargenY + AltoPieza;
                // On an outer side nothing sticks out, and the edge is straight.
                if ((izq && x < MargenX) || (der && x >= MargenX + AnchoPieza) ||
                    (arr && y < MargenY) || (aba && y >= MargenY + AltoPieza)) {
                    ASSERT_FALSE(negro) << "pieza " << q.XCorrecta << "," << q.YCorrecta;
                }
                if (enCelda && ((izq && x == MargenX) || (der && x == MargenX + AnchoPieza - 1) ||
                                (arr && y == MargenY) || (aba && y == MargenY + AltoPieza - 1))) {
                    ASSERT_TRUE(negro) << "borde " << x << "," << y;
                }
                if (!negro) {
                    continue;
                }
                ++negros;
                const int32_t px = q.XCorrecta - MargenX + x, py = q.YCorrecta - MargenY + y;
                if (px >= 0 && py >= 0 && px < AnchoPuzzle && py < AltoPuzzle) {
                    uint8_t &c = cuenta[static_cast<size_t>(py) * AnchoPuzzle + px];
                    c = static_cast<uint8_t>(std::min(c + 1, 250));
                }
            }
        }
        ASSERT_GT(negros, static_cast<size_t>(AnchoPieza) * AltoPieza / 2);
        ASSERT_EQ(Agujeros(m), 0u) << "pieza " << q.XCorrecta << "," << q.YCorrecta;
        CompruebaImagenEnmascarada(q);
    }
    size_t sinCubrir = 0, solapados = 0;
    for (uint8_t c : cuenta) {
        sinCubrir += c == 0;
        solapados += c > 1;
    }
    const double area = static_cast<double>(cuenta.size());
    const double juntas =
        static_cast<double>(PiezasPorLado) * (PiezasPorLado - 1) * (AnchoPieza + AltoPieza);
    // The pieces close up: almost nothing of the puzzle is left out (the
    // socket is a little wider than its knob), and neighbours meet on their
    // shared outline, about one pixel along each joint, knobs included.
    EXPECT_LE(static_cast<double>(sinCubrir) / area, 0.005);
    EXPECT_LE(static_cast<double>(solapados) / juntas, 1.5);
    EXPECT_GT(solapados, 0u);
}

INSTANTIATE_TEST_SUITE_P(Rejillas, CorteIrregular, ::testing::ValuesIn(IRREGULARES), NombreCaso);

class CorteDoble : public Motor, public ::testing::WithParamInterface<CasoCorte> {};

TEST_P(CorteDoble, LasDosMascarasDeUnaCeldaSeComplementan) {
    Corta(GetParam());
    CompruebaRestoIntacto();
    const int32_t mitad = NroPiezas / 2;
    const Superficie &m = teselari.Pic_PiezaMascara;
    for (int16_t k = 1; k <= mitad; ++k) {
        const Pieza &q = Piezas[k];
        ASSERT_EQ(q, Piezas[k + mitad]);
        EnmascaraPieza(PosicionDe(static_cast<int16_t>(k + mitad)));
        CompruebaImagenEnmascarada(q);
        std::vector<uint8_t> interior;
        for (int32_t y = 0; y < m.Alto(); ++y) {
            for (int32_t x = 0; x < m.Ancho(); ++x) {
                interior.push_back(m.Point(x, y) == COLOR_NEGRO);
            }
        }
        EnmascaraPieza(PosicionDe(k));
        CompruebaImagenEnmascarada(q);
        size_t nInterior = 0, nExterior = 0, i = 0;
        for (int32_t y = 0; y < m.Alto(); ++y) {
            for (int32_t x = 0; x < m.Ancho(); ++x, ++i) {
                const bool exterior = m.Point(x, y) == COLOR_NEGRO;
                ASSERT_NE(exterior, interior[i] != 0) << "celda " << k << " " << x << "," << y;
                nInterior += interior[i];
                nExterior += exterior;
            }
        }
        ASSERT_GT(nInterior, 0u);
        ASSERT_GT(nExterior, 0u);
        // The figure stands in the middle of its cell.
        ASSERT_NE(interior[static_cast<size_t>(m.Alto() / 2) * m.Ancho() + m.Ancho() / 2], 0);
    }
}

INSTANTIATE_TEST_SUITE_P(Rejillas, CorteDoble, ::testing::ValuesIn(DOBLES), NombreCaso);
