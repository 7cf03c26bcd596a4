// The grids offered, the steppers with their repeat and the zoom's limit,
// the attraction test and the two-state selectors of AbrirFic.
#include "dialog/Rejillas.h"
#include "dialogo_comun.h"
#include "plataforma_prueba.h"

using namespace PuzzGbl;
using namespace dialogo_prueba;
using sesion_prueba::mensajes;
using sesion_prueba::sonidos;

// The grids offered are always a run, so the nearest is the one asked for
// or the end of the run on its side.
TEST(RejillaCercana, LaMasProximaDeLasOfrecidas) {
    const std::vector<int16_t> ofrecidas{5, 6, 7, 8};
    for (const auto &[actual, indice] : {std::pair<int16_t, int32_t>{3, 0}, {7, 2}, {20, 3}}) {
        EXPECT_EQ(RejillaCercana(ofrecidas, actual), indice) << actual;
    }
    EXPECT_EQ(RejillaCercana({}, 8), -1);
}

// A strip that no grid fits leaves the grid as it was; rows of double
// pieces name the same grids and keep the selection; a smaller picture cuts
// the grid down without the player's click.
TEST_F(Dialogo, LaListaSeAjustaALaImagenYConservaLaRejilla) {
    PonImagen("p.bmp", 320, 240);
    PonImagen("tira.bmp", 2000, 100); // zoom 50: 1000 x 50
    Abre();
    EXPECT_EQ(f->Lis_NroPiezas.ListCount(), 16); // 5..20
    Elige("tira.bmp");
    ASSERT_EQ(ImagenValida, VERDADERO);
    EXPECT_EQ(Zoom, 50);
    EXPECT_EQ(f->Lis_NroPiezas.ListCount(), 0);
    EXPECT_EQ(f->Lis_NroPiezas.ListIndex(), -1);
    EXPECT_EQ(PiezasPorLado, 8);
    EXPECT_EQ(NroPiezas, 64);
    Elige("a.bmp");
    EXPECT_EQ(f->Lis_NroPiezas.Text(), CadenaFija(TextoNroPiezas[8], 14));
    sonidos.clear();
    f->Pic_TipPuz_Click(2);
    EXPECT_EQ(f->Lis_NroPiezas.Text(), CadenaFija(TextoNroPiezas[28], 18));
    EXPECT_EQ(NroPiezas, 128);
    EXPECT_EQ(sonidos, (std::vector<int16_t>{11, 12}));
    PiezasPorLado = 20;
    Elige("p.bmp");
    EXPECT_EQ(PiezasPorLado, 10);
    EXPECT_EQ(NroPiezas, 200);
    EXPECT_EQ(f->Lis_NroPiezas.ListCount(), 8);
}

// Without an event loop a press takes one step; a press beside the arrows,
// or on a corner of an arrow's image in the panel's grey, takes none.
TEST_F(Dialogo, ElFactorCaeEnMultiploDe5YRespetaLosTopes) {
    const struct {
        int16_t desde;
        float x, y;
        int16_t hasta;
        bool gris = false;
    } casos[] = {{52, SUBE_X, SUBE_Y, 55},
                 {52, BAJA_X, BAJA_Y, 45},
                 {50, SUBE_X, SUBE_Y, 55},
                 {3, BAJA_X, BAJA_Y, 0},
                 {0, BAJA_X, BAJA_Y, 0},
                 {98, SUBE_X, SUBE_Y, 100},
                 {50, 113, 30, 50},
                 {50, 139, 30, 50},
                 {50, 120, 24, 50},
                 {50, 60, 30, 50},
                 {50, SUBE_X, SUBE_Y, 50, true}};
    for (const auto &c : casos) {
        FactorPegado = c.desde;
        Abre();
        if (c.gris) {
            f->Pic_FactorPegado.PSet(c.x, c.y, 0xC0C0C0);
        }
        f->Pic_FactorPegado_MouseDown(1, 0, c.x, c.y);
        EXPECT_EQ(FactorPegado, c.hasta) << c.desde << " " << c.x << "," << c.y;
        EXPECT_EQ(rotulador.Ultimo(f->Pic_PorcFactorPegado), std::to_string(c.hasta) + "%");
        EXPECT_EQ(std::count(sonidos.begin(), sonidos.end(), 2), c.desde == c.hasta ? 0 : 1);
    }
}

TEST_F(Dialogo, ElRepiteAvanzaHastaSoltarYSeQuedaEnElTope) {
    Velocidad = 80;
    Abre();
    static FormAbrirFic *enPrueba;
    static int vueltas;
    enPrueba = f.get();
    vueltas = 0;
    // The event loop of this test: the button is released after 15 turns.
    PonEscritorio({sesion_prueba::MensajeDePrueba, sesion_prueba::SonidoDePrueba, [] {
                       if (++vueltas == 15) {
                           enPrueba->Pic_Velocidad_MouseUp(1, 0, SUBE_X, SUBE_Y);
                       }
                   }});
    // Velocidad is its own stepper: the repeat gets faster as it goes.
    f->Pic_Velocidad_MouseDown(1, 0, SUBE_X, SUBE_Y);
    EXPECT_EQ(vueltas, 15);
    EXPECT_EQ(Velocidad, 100);
    EXPECT_EQ(f->PasoVelocidad.Subiendo, FALSO);
    EXPECT_EQ(std::count(sonidos.begin(), sonidos.end(), 2), 4);
    // Leaving the arrow ends the repeat after one step.
    PonEscritorio({sesion_prueba::MensajeDePrueba, sesion_prueba::SonidoDePrueba,
                   [] { enPrueba->Pic_Velocidad_MouseMove(1, 0, 10, 10); }});
    f->Pic_Velocidad_MouseDown(1, 0, BAJA_X, BAJA_Y);
    EXPECT_EQ(Velocidad, 95);
    EXPECT_EQ(f->PasoVelocidad.Bajando, FALSO);
}

// At 95 the picture is 608 x 456: a 20 x 20 grid would cut cells below
// 24 pixels, and the nearest grid left is 19.
TEST_F(Dialogo, AlSoltarElZoomSeReconstruyenImagenYLista) {
    PiezasPorLado = 20;
    Abre();
    sonidos.clear();
    f->Pic_Zoom_MouseDown(1, 0, BAJA_X, BAJA_Y);
    EXPECT_EQ(Zoom, 95);
    EXPECT_EQ(teselari.Pic_Origin.Ancho(), 608);
    EXPECT_EQ(f->Lis_NroPiezas.List(0), CadenaFija(TextoNroPiezas[5], 14));
    EXPECT_EQ(f->Lis_NroPiezas.ListCount(), 15);
    EXPECT_EQ(PiezasPorLado, 19);
    // The row is clicked again, and heard: the zoom is not a file click.
    EXPECT_EQ(sonidos.back(), 12);
}

// K = Int((100 - FactorPegado) x 26 / 100): the piece walks K + 15 steps,
// blinks there six times, and jumps home.
TEST_F(Dialogo, LaPruebaParpadeaDondeAtraeriaElFactor) {
    for (const auto &[factor, k] :
         {std::pair<int16_t, int32_t>{0, 26}, {50, 13}, {55, 11}, {100, 0}}) {
        FactorPegado = factor;
        Abre();
        std::vector<std::pair<int32_t, int32_t>> ocultas;
        f->AlRefrescar = [this, &ocultas] {
            if (!f->Pic_PruebaPeq.Visible) {
                ocultas.emplace_back(f->Pic_PruebaPeq.Left, f->Pic_PruebaPeq.Top);
            }
        };
        f->Bot_Prueba_Click();
        ASSERT_EQ(ocultas.size(), 6u);
        EXPECT_EQ(ocultas.front(), std::make_pair(56 + k + 15, 45 - k - 15));
        EXPECT_EQ(ocultas.back(), ocultas.front());
        EXPECT_EQ(f->Pic_PruebaPeq.Left, 97);
        EXPECT_EQ(f->Pic_PruebaPeq.Top, 4);
        EXPECT_TRUE(f->Pic_PruebaPeq.Visible);
        EXPECT_EQ(FactorPegado, factor);
    }
}

// The key of each selector turns its value 1, 2, 1; a press beside it does
// nothing. Sonido's own key is never heard.
TEST_F(Dialogo, LosSelectoresDeDosEstadosVanYVuelven) {
    Abre();
    struct Selector {
        int16_t &valor;
        void (FormAbrirFic::*pulsa)(int16_t, int16_t, float, float);
        CuadroImagen &pic;
        const char *uno, *dos;
    };
    Selector sel[] = {
        {Cronometro, &FormAbrirFic::Pic_Cronometro_MouseDown, f->Pic_Cronometro, "Visible",
         "Oculto"},
        {Sonido, &FormAbrirFic::Pic_Sonido_MouseDown, f->Pic_Sonido, "Activado", "Desactivado"},
        {Pistas, &FormAbrirFic::Pic_Pistas_MouseDown, f->Pic_Pistas, "Activada", "Desactivada"},
    };
    for (Selector &s : sel) {
        s.valor = 1;
        sonidos.clear();
        (f.get()->*s.pulsa)(1, 0, 50, 20);
        EXPECT_EQ(s.valor, 1);
        for (auto [esperado, texto] : {std::pair{2, s.dos}, {1, s.uno}}) {
            (f.get()->*s.pulsa)(1, 0, 10, 25);
            EXPECT_EQ(s.valor, esperado);
            EXPECT_EQ(rotulador.Ultimo(s.pic), CadenaFija(texto, 12));
        }
        const bool esSonido = &s.valor == &Sonido;
        EXPECT_EQ(std::count(sonidos.begin(), sonidos.end(), 3), esSonido ? 0 : 2);
    }
    // The tooltips of the dialog follow Pistas at once.
    Pistas = 1;
    f->Pic_Pistas_MouseDown(1, 0, 10, 25);
    EXPECT_EQ(f->Pic_Si.ToolTipText, "");
    f->Pic_Pistas_MouseDown(1, 0, 10, 25);
    EXPECT_EQ(f->Pic_Si.ToolTipText, "Aceptar los cambios y salir de Personalizar");
}
