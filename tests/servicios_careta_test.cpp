// The splash: where its panel stands on any screen, how it ends (by a key,
// or by itself after two passes at the pace of Velocidad), and what a frame
// leaves in the viewport.

#include "core/Plataforma.h"
#include "raster/Raster.h"
#include "services/Careta.h"
#include "services/Reloj.h"
#include "tablero_comun.h"

using namespace PuzzGbl;

namespace {

// A clock that advances one millisecond a reading.
double hora = 0.0;

double RelojPrueba() {
    hora += 0.001;
    return hora;
}

// A source whose every pixel tells its place and picture, with a black last
// row (or not); Pic_Bmp's three bands each end in a black row.
void PintaFuente(Superficie &s, uint32_t marca, bool filaNegra) {
    for (int32_t y = 0; y < s.Alto(); ++y) {
        for (int32_t x = 0; x < s.Ancho(); ++x) {
            const bool ultima = y == s.Alto() - 1 || (s.Alto() == 87 && (y == 48 || y == 71));
            const bool negra = filaNegra && ultima;
            s.Fila(y)[x] = negra ? 0xFF000000u : 0xFF000000u | marca | (y << 8) | x;
        }
    }
}

void PintaFuentes(FormCareta &f) {
    PintaFuente(f.Pic_Logo, 0x100000, true);
    PintaFuente(f.Pic_Icono, 0x200000, true);
    PintaFuente(f.Pic_Bmp, 0x300000, true);
}

class Careta : public Motor {
  protected:
    void SetUp() override {
        InstalaEscritorio(); // one yield a frame
        Velocidad = 100;
        PintaFuentes(form);
        form.Form_Load(1024, 768);
    }
    FormCareta form;
};

TEST_F(Careta, ElMarcoRodeaLaVentanaConSusLadosOscuros) {
    const CuadroImagen &t = form.Pic_Todos;
    ASSERT_EQ(t.Ancho(), 323);
    ASSERT_EQ(t.Alto(), 209);
    const CuadroImagen &v = form.Pic_Careta;
    EXPECT_EQ(v.Left, 16);
    EXPECT_EQ(v.Top, 30);
    // x, y and colour. Outer border; Shape1 at (14, 28)-(305, 181) on the outer pixels, its
    // top and left sides dark for 290 and 152 pixels; a black gap about the
    // viewport; black elsewhere.
    const int32_t puntos[][3] = {
        {0, 0, 0xC0C0C0},     {322, 208, 0xC0C0C0}, {1, 1, 0},           {14, 28, 0x808080},
        {303, 28, 0x808080},  {304, 28, 0xC0C0C0},  {14, 179, 0x808080}, {14, 180, 0xC0C0C0},
        {305, 181, 0xC0C0C0}, {15, 29, 0},          {304, 180, 0},       {160, 100, 0},
    };
    for (const auto &[x, y, color] : puntos) {
        EXPECT_EQ(t.Point(x, y), static_cast<Color>(color)) << x << "," << y;
    }
}

// Two passes of 351 frames; 0.035 s a frame at 50.
TEST_F(Careta, SolaTerminaTrasDosPasadasAlRitmoDeLaVelocidad) {
    hora = 1000.0;
    PonServicio(&ServiciosPlataforma::Reloj, RelojPrueba);
    Velocidad = 50;
    int32_t finPrimera = 0;
    escritorio.alDejarPasarEventos = [this, &finPrimera](int32_t n) {
        if (form.Pasadas == 1 && RectArriba == -200) {
            finPrimera = n;
        }
    };
    form.Form_Activate();
    EXPECT_EQ(finPrimera, 351);
    EXPECT_EQ(escritorio.eventos, 702);
    EXPECT_TRUE(form.Cerrada());
    EXPECT_EQ(RectArriba, 150);
    // Each frame's pause reads the clock a few times more than it waits.
    EXPECT_NEAR(hora - 1000.0, 702 * 0.035, 702 * (0.01 * 0.035 + 0.003));
}

// A key at frame k ends the splash there, the first frame included; the
// viewport holds exactly that frame's five copies on black: every picture's
// black last row has wiped its trail.
TEST_F(Careta, LasCincoCopiasDeUnFotogramaEnSuSitio) {
    struct Copia {
        const Superficie *fuente;
        int32_t xs, ys, w, h, x, dy;
    };
    const Copia copias[] = {{&form.Pic_Logo, 0, 0, 97, 44, 27, 0},
                            {&form.Pic_Icono, 0, 0, 34, 34, 214, 5},
                            {&form.Pic_Bmp, 0, 0, 236, 49, 27, 80},
                            {&form.Pic_Bmp, 0, 49, 238, 23, 26, 145},
                            {&form.Pic_Bmp, 0, 72, 240, 15, 25, 186}};
    for (int32_t k : {1, 40, 120, 200, 300}) {
        FormCareta f;
        PintaFuentes(f);
        f.Form_Load(1024, 768);
        escritorio.eventos = 0;
        escritorio.alDejarPasarEventos = [&f, k](int32_t n) {
            if (n == k) {
                f.Pic_Careta_KeyDown(13, 0);
            }
        };
        f.Form_Activate();
        EXPECT_EQ(escritorio.eventos, k);
        EXPECT_TRUE(f.Cerrada());
        const int32_t y = 151 - k;
        Superficie esperada(ANCHO_CARETA, ALTO_CARETA, COLOR_NEGRO);
        for (const Copia &c : copias) {
            for (int32_t j = 0; j < c.h; ++j) {
                for (int32_t i = 0; i < c.w; ++i) {
                    const Color p = c.fuente->Point(c.xs + i, c.ys + j);
                    if (p != static_cast<Color>(-1)) {
                        esperada.PSet(c.x + i, y + c.dy + j, p);
                    }
                }
            }
        }
        EXPECT_EQ(f.Pic_Careta.Pixeles(), esperada.Pixeles()) << k;
    }
}

// The viewport is never cleared: a picture without its black last row
// leaves its last row smeared below it.
TEST_F(Careta, SinFilaNegraElLogoDejaRastro) {
    PintaFuente(form.Pic_Logo, 0x100000, false);
    escritorio.alDejarPasarEventos = [this](int32_t n) {
        if (n == 60) {
            form.Pic_Careta_KeyDown(13, 0);
        }
    };
    form.Form_Activate();
    // The logo's top at 91; its last row at 134 and, smeared, down to 149.
    const Color ultima = form.Pic_Logo.Point(40, 43);
    for (int32_t y : {134, 140, 149}) {
        EXPECT_EQ(form.Pic_Careta.Point(27 + 40, y), ultima) << y;
    }
}

} // namespace
