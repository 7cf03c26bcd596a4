// The worked examples of the grid, the difficulty, the margins, the
// sockets, the figures and the scroll ranges.
#include <cmath>

#include "core/Redondeo.h"
#include "core/Rejilla.h"
#include "cutting/Corte.h"
#include "cutting/Figuras.h"
#include "cutting/Plantillas.h"
#include "motor_comun.h"

using namespace PuzzGbl;

TEST(Redondeo, MitadesAlPar) {
    // A value, its rounding (halves to even) and its floor.
    const double casos[][3] = {{2.5, 2, 2},     {3.5, 4, 3},      {-2.5, -2, -3}, {0.5, 0, 0},
                               {1.5, 2, 1},     {12.3, 12, 12},   {16.4, 16, 16}, {-0.4, 0, -1},
                               {15.75, 16, 15}, {511.5, 512, 511}};
    for (const auto &[v, redondeado, entero] : casos) {
        EXPECT_EQ(Redondea(v), redondeado) << v;
        EXPECT_EQ(Int(v), entero) << v;
    }
    EXPECT_EQ(DivEntera(345, 10), 34);
    EXPECT_EQ(DivEntera(9, 10), 0);
    EXPECT_EQ(DivEntera(7.5, 2), 4); // 7.5 rounds to 8 before the division
    EXPECT_EQ(DivEntera(5, 0), 0);
}

TEST_F(Motor, DificultadDelEjemploPorTipoYLimites) {
    // 8 x 8 irregular pieces of 80 x 60 at attraction 50.
    PreparaJuego(8, 1, 640, 480);
    CalculaPiezas();
    EXPECT_EQ(AnchoPieza, 80);
    EXPECT_EQ(AltoPieza, 60);
    EXPECT_EQ(NroPiezas, 64);
    EXPECT_NEAR(Dificultad, 42.530, 0.0005);
    TipoPieza = 2; // no change by the cut, but double pieces count differently
    PiezasDobles = 1;
    CalculaPiezas();
    EXPECT_EQ(NroPiezas, 128);
    EXPECT_NEAR(Dificultad, 51.369, 0.0005); // half the area each, twice the pieces
    // Each cut moves the rectangles' figure by a point or two.
    TipoPieza = 0;
    PiezasDobles = 0;
    CalculaPiezas();
    const float base = Dificultad + 1.0f;
    const float cambio[6] = {-1, -2, 0, 1, 0, 2};
    for (int16_t t = 0; t <= 5; ++t) {
        TipoPieza = t;
        CalculaDificultad();
        EXPECT_FLOAT_EQ(Dificultad, base + cambio[t]) << "tipo " << t;
    }
    // Tiny pieces, many of them, no attraction: above 100 becomes 99.9.
    AnchoPieza = AltoPieza = 1;
    NroPiezas = 800;
    FactorPegado = 0;
    TipoPieza = 5;
    CalculaDificultad();
    EXPECT_FLOAT_EQ(Dificultad, 99.9f);
    // Huge pieces, few, full attraction: below 0 becomes 0.1, not 0.
    AnchoPieza = AltoPieza = 300;
    NroPiezas = 9;
    FactorPegado = 100;
    TipoPieza = 0;
    CalculaDificultad();
    EXPECT_FLOAT_EQ(Dificultad, 0.1f);
}

TEST_F(Motor, MargenesDelEjemplo) {
    PreparaJuego(8, 1, 640, 480);
    SesionRestaurando = VERDADERO;
    PreparaBitmap();
    EXPECT_EQ(MargenX, 12);
    EXPECT_EQ(MargenY, 16);
    EXPECT_EQ(AnchoPiezaTotal, 104);
    EXPECT_EQ(AltoPiezaTotal, 92);
    for (Superficie *s :
         {&teselari.Pic_PiezaMascara, &teselari.Pic_PiezaImagen, &teselari.Pic_PiezaFinal}) {
        EXPECT_EQ(s->Ancho(), 104);
        EXPECT_EQ(s->Alto(), 92);
    }
}

TEST(Plantillas, LaBocaDelHuecoSeEstrechaAlCrecerLaRejilla) {
    // 117 to 68 degrees on a grid of 3, 100 to 85 on one of 20; the bottom
    // socket half a turn round.
    const double casos[][3] = {{3, 117, 68}, {20, 100, 85}};
    for (const auto &[n, inicio, fin] : casos) {
        const ArcosPlantilla b = ArcosPlantillaB(0, 0, 80, 60, n);
        EXPECT_DOUBLE_EQ(b[1].inicio, inicio) << n;
        EXPECT_DOUBLE_EQ(b[1].fin, fin) << n;
        EXPECT_DOUBLE_EQ(b[10].inicio, inicio + 180) << n;
        EXPECT_DOUBLE_EQ(b[10].fin, fin + 180) << n;
    }
}

TEST(Figuras, ValoresDelEjemplo) {
    const Figura c = CalculaFigura(2, 52, 45);
    EXPECT_EQ(c.R, 15);
    const Figura r = CalculaFigura(3, 52, 45);
    EXPECT_EQ(r.Dx, 10);
    EXPECT_EQ(r.Dy, 9);
    const Figura e = CalculaFigura(4, 52, 45);
    EXPECT_EQ(e.R, 18);
    EXPECT_FLOAT_EQ(e.E, static_cast<float>(15.75 / 18));
    const Figura s = CalculaFigura(5, 52, 45);
    EXPECT_EQ(s.A, 16);
    EXPECT_EQ(s.B, 18);
    EXPECT_FLOAT_EQ(s.E1, 16.0f / 9.0f);
    EXPECT_FLOAT_EQ(s.E2, 8.0f / 18.0f);
    // Taller than wide: the ellipse's radius becomes the vertical semi-axis.
    const Figura alta = CalculaFigura(4, 45, 52);
    EXPECT_EQ(alta.R, 18);
    EXPECT_FLOAT_EQ(alta.E, static_cast<float>(18 / 15.75));
    EXPECT_GT(alta.E, 1.0f);
}

// The puzzle leaves the rest of the picture uncut; the model is the picture
// at half size, its size and its left rounded halves to even; the work area
// is the picture and 200 pixels, at least the 1008 x 752 of the view of a
// 1024 x 768 screen, and the bars scroll the rest.
struct CasoLienzo {
    int16_t lado;
    int32_t ancho, alto, anchoPuzzle, altoPuzzle, anchoModelo, altoModelo, izquierda;
    int32_t max, paso;
    int16_t fondo;
};

const CasoLienzo LIENZOS[] = {{4, 641, 481, 640, 480, 320, 240, 352, 0, 0, 0},
                              {4, 643, 483, 640, 480, 322, 242, 351, 0, 0, 1},
                              {4, 638, 480, 636, 480, 319, 240, 352, 0, 0, 2},
                              {4, 808, 552, 808, 552, 404, 276, 310, 0, 0, 3},
                              {4, 809, 553, 808, 552, 404, 276, 310, 10, 1, 4},
                              {4, 818, 562, 816, 560, 409, 281, 308, 10, 1, 5},
                              {4, 1153, 897, 1152, 896, 576, 448, 224, 345, 34, 2},
                              {7, 1024, 768, 1022, 763, 512, 384, 256, 216, 21, 3}};

class Lienzo : public Motor, public ::testing::WithParamInterface<CasoLienzo> {};

TEST_P(Lienzo, PuzzleModeloYBarras) {
    const CasoLienzo c = GetParam();
    PreparaJuego(c.lado, 0, c.ancho, c.alto);
    ColorFondo = c.fondo;
    SesionRestaurando = VERDADERO;
    PreparaBitmap();
    const FormTeselari &f = teselari;
    // The cuts are black on the light backgrounds (0 to 2), white on the
    // dark ones, along the picture's top and each cell's right edge.
    const Color corte = c.fondo > 2 ? COLOR_BLANCO : COLOR_NEGRO;
    EXPECT_EQ(static_cast<Color>(ColorContraste), corte);
    EXPECT_EQ(f.Pic_Bitmap.Point(0, 0), corte);
    EXPECT_EQ(f.Pic_Bitmap.Point(AnchoPieza - 1, AltoPieza / 2), corte);
    EXPECT_EQ(f.Pic_Imagen.BackColor(), static_cast<Color>(ColoresFondo[c.fondo]));
    EXPECT_EQ(AnchoPuzzle, c.anchoPuzzle);
    EXPECT_EQ(AltoPuzzle, c.altoPuzzle);
    EXPECT_EQ(f.Pic_Mascara.Ancho(), c.anchoPuzzle);
    EXPECT_EQ(f.Pic_Bitmap.Ancho(), c.ancho);
    EXPECT_EQ(f.Pic_Muestra.Ancho(), c.anchoModelo);
    EXPECT_EQ(f.Pic_Muestra.Alto(), c.altoModelo);
    EXPECT_EQ(f.Pic_Muestra.Left, c.izquierda);
    for (const BarraDesplazamiento *b : {&f.BarraHor, &f.BarraVer}) {
        EXPECT_EQ(b->Max(), c.max);
        if (c.max > 0) {
            EXPECT_EQ(b->LargeChange, c.paso);
        }
        EXPECT_EQ(b->Value(), 0);
    }
    for (const Superficie *s : {&f.Pic_Trabajo, &f.Pic_Imagen}) {
        EXPECT_EQ(s->Ancho(), std::max(1008, c.ancho + 200));
        EXPECT_EQ(s->Alto(), std::max(752, c.alto + 200));
    }
}

INSTANTIATE_TEST_SUITE_P(Ejemplos, Lienzo, ::testing::ValuesIn(LIENZOS));

TEST_F(Motor, BarrasYModeloSeColocan) {
    PreparaJuego(5, 0, 1000, 700, 1280, 1024);
    ModeloVisible = true;
    SesionRestaurando = VERDADERO;
    PreparaBitmap();
    // The bars' top and left, the model's size and left are the examples'.
    const FormTeselari &f = teselari;
    EXPECT_EQ(f.BarraHor.Width, 1280 - 16);
    EXPECT_EQ(f.BarraVer.Height, 1024 - 16);
    EXPECT_EQ(f.Pic_Cuadrito.Left, 1264);
    EXPECT_EQ(f.Pic_Cuadrito.Top, 1008);
    EXPECT_EQ(f.Pic_Muestra.Top, 1008 - 350);
    EXPECT_TRUE(f.Pic_Muestra.Visible);
    // The model is the clean picture at half size: each of its pixels is one
    // of the 2 x 2 pixels of the picture it stands for, never a blend.
    for (int32_t y : {0, 10, 175, 349}) {
        for (int32_t x : {0, 10, 250, 499}) {
            const Color m = f.Pic_Muestra.Point(x, y);
            bool hallado = false;
            for (int32_t dy = 0; dy < 2; ++dy) {
                for (int32_t dx = 0; dx < 2; ++dx) {
                    hallado |= f.Pic_Origin.Point(2 * x + dx, 2 * y + dy) == m;
                }
            }
            EXPECT_TRUE(hallado) << x << "," << y;
        }
    }
}

TEST(Tablas, TextosFijos) {
    RestauraValoresIniciales();
    EXPECT_EQ(TextoNroPiezas[3], " 3 x  3 ->   9    ");
    EXPECT_EQ(TextoNroPiezas[10], "10 x 10 -> 100    ");
    EXPECT_EQ(TextoNroPiezas[20], "20 x 20 -> 400    ");
    EXPECT_EQ(TextoNroPiezas[23], " 3 x  3 x 2 ->  18");
    EXPECT_EQ(TextoNroPiezas[30], "10 x 10 x 2 -> 200");
    EXPECT_EQ(TextoNroPiezas[40], "20 x 20 x 2 -> 800");
    EXPECT_EQ(CadenaFija("Histórico de puzzles", 5), "Histó");
}
