// Superficie: size (and a picture box's place), colours, picture, clip of every write, change
// reports, text through the installed Rotulador.
#include <gtest/gtest.h>

#include <functional>
#include <random>

#include "core/Controles.h"
#include "raster_referencia.h"

namespace {

TEST(RasterSuperficie, CambiaTamanoConservaYRellena) {
    const struct {
        double ancho, alto;
        int32_t w, h;
    } casos[] = {{10.4, 6.5, 10, 6}, {3, 2, 3, 2},    {14.6, 3.49, 15, 3}, {-3, 5, 0, 5},
                 {0, 0, 0, 0},       {7.5, 4.5, 8, 4}}; // halves go to the even neighbour
    std::mt19937 azar(1);
    for (const auto &c : casos) {
        CuadroImagen s(referencia::Aleatoria(8, 5, azar));
        const Superficie antes = s;
        s.PonBackColorSinPintar(0x00FF00);
        s.Move(1.6, -2.4, c.ancho, c.alto);
        EXPECT_EQ(s.Left, 2);
        EXPECT_EQ(s.Top, -2);
        ASSERT_EQ(s.Ancho(), c.w);
        ASSERT_EQ(s.Alto(), c.h);
        referencia::EsperaPixeles(s, [&](int32_t x, int32_t y) {
            return x < 8 && y < 5 ? antes.Point(x, y) : 0x00FF00u;
        });
    }
}

// The background and the kept picture are the board's and the book's; here
// what they do not show: Cls goes back to the origin, and a dropped picture
// does not come back.
TEST(RasterSuperficie, ClsVuelveAlOrigenYSinImagenQuedaElFondo) {
    Superficie s(6, 4, 0x445566);
    s.AsignaImagen(Superficie(4, 3, COLOR_NEGRO));
    s.CurrentX = 3;
    s.CurrentY = 2;
    s.QuitaImagen();
    s.Cls();
    EXPECT_EQ(s.CurrentX, 0);
    EXPECT_EQ(s.CurrentY, 0);
    EXPECT_EQ(referencia::Cuenta(s, 0x445566), 24);
}

// Every kind of write into a surface, each reporting once.
const std::vector<std::pair<std::function<void(Superficie &)>, Rectangulo>> kEscrituras = {
    {[](Superficie &s) { s.PSet(3, 4); }, {3, 4, 4, 5}},
    {[](Superficie &s) { s.Line(1, 1, 6, 1); }, {1, 1, 6, 2}},
    {[](Superficie &s) { s.Line(-4, 9, 4, 1); }, {0, 2, 4, 6}},
    {[](Superficie &s) { s.Caja(2, 2, 6, 5); }, {2, 2, 7, 6}},
    {[](Superficie &s) { s.CajaLlena(7, 6, 20, 1, COLOR_NEGRO); }, {7, 1, 12, 7}},
    {[](Superficie &s) { s.Circle(6, 5, 3); }, {3, 2, 10, 9}},
    {[](Superficie &s) { FloodFill(s, 0, 0, COLOR_BLANCO + 1); }, {0, 0, 12, 10}},
    {[](Superficie &s) { BitBlt(s, -1, 8, 4, 4, Superficie(9, 9, COLOR_NEGRO), 0, 0, SRCCOPY); },
     {0, 8, 3, 10}},
    {[](Superficie &s) { StretchBlt(s, -2, 6, 8, 8, Superficie(4, 4), 0, 0, 4, 2, SRCAND); },
     {0, 6, 6, 10}},
    {[](Superficie &s) { s.PonBackColor(COLOR_NEGRO); }, {0, 0, 12, 10}},
    {[](Superficie &s) { s.CambiaTamano(13, 10); }, {0, 0, 13, 10}},
};

TEST(RasterSuperficie, CadaEscrituraInformaUnaVez) {
    for (size_t k = 0; k < kEscrituras.size(); ++k) {
        Superficie s(12, 10);
        s.FillColor = COLOR_NEGRO;
        s.RellenaFiguras = true;
        std::vector<Rectangulo> informes;
        s.AlCambiar = [&](const Rectangulo &r) { informes.push_back(r); };
        kEscrituras[k].first(s);
        EXPECT_EQ(informes, std::vector<Rectangulo>{kEscrituras[k].second}) << "escritura " << k;
    }
}

// The same writes with a clip region with a hole change what they change
// without it, less what the region leaves out.
TEST(RasterSuperficie, CadaEscrituraRespetaElRecorte) {
    Region marco;
    CombineRgn(marco, Region({1, 1, 11, 9}), Region({3, 3, 8, 6}), RGN_DIFF);
    for (size_t k = 0; k + 2 < kEscrituras.size(); ++k) {
        Superficie libre(12, 10), recortada(12, 10);
        recortada.PonRecorte(&marco);
        for (Superficie *s : {&libre, &recortada}) {
            s->FillColor = 0x0000FF;
            s->RellenaFiguras = true;
            kEscrituras[k].first(*s);
        }
        referencia::EsperaPixeles(recortada, [&](int32_t x, int32_t y) {
            return marco.Contiene(x, y) ? libre.Point(x, y) : COLOR_BLANCO;
        });
    }
}

TEST(RasterSuperficie, TamanoCeroNoHaceNada) {
    Superficie s(0, 5), o(3, 3);
    int informes = 0;
    s.AlCambiar = [&](const Rectangulo &) { ++informes; };
    for (size_t k = 0; k + 1 < kEscrituras.size(); ++k) {
        kEscrituras[k].first(s);
    }
    s.EscribePixel(0, 0, 0);
    EXPECT_EQ(BitBlt(o, 0, 0, 3, 3, s, 0, 0, SRCCOPY), 1);
    EXPECT_EQ(StretchBlt(o, 0, 0, 3, 3, s, 0, 0, 2, 2, SRCCOPY), 1);
    EXPECT_EQ(s.Point(0, 0), 0xFFFFFFFFu);
    EXPECT_EQ(informes, 0);
    EXPECT_EQ(referencia::Cuenta(o, COLOR_BLANCO), 9);
}

TEST(RasterSuperficie, TextoPasaPorElRotulador) {
    Superficie s(40, 20);
    s.CurrentX = 2;
    s.CurrentY = 5;
    s.ForeColor = 0x0000FF;
    s.Print("sin"); // no service: nothing written, nothing measured
    EXPECT_EQ(s.TextWidth("abc"), 0);
    EXPECT_EQ(s.TextHeight("x"), 0);
    EXPECT_EQ(s.CurrentX, 2);
    RotuladorRegistro r;
    PonRotulador(&r);
    std::vector<Rectangulo> informes;
    s.AlCambiar = [&](const Rectangulo &c) { informes.push_back(c); };
    s.Print("hola");
    s.Print("xy");
    PonRotulador(nullptr);
    ASSERT_EQ(r.textos.size(), 2u);
    EXPECT_EQ(r.textos[1].texto, "xy");
    EXPECT_DOUBLE_EQ(r.textos[1].x, 26);
    EXPECT_EQ(r.textos[1].color, 0x0000FFu);
    EXPECT_DOUBLE_EQ(s.CurrentX, 38);
    EXPECT_EQ(informes, (std::vector<Rectangulo>{{2, 5, 26, 18}, {26, 5, 38, 18}}));
}

} // namespace
