// The press on the board: picking a piece through the pile, carrying it and
// letting it go, the pop-up panel, and presses that must be refused.
#include <utility>

#include "board/Arrastre.h"
#include "board/Raton.h"
#include "board/Render.h"
#include "core/Cronometro.h"
#include "tablero_comun.h"

using namespace PuzzGbl;

namespace {

// Moves the mouse with the left button down and checks that the board shows
// the composite with the piece in the hand on it.
void Lleva(float x, float y) {
    Pic_Trabajo_MouseMove(1, 0, x, y);
    EXPECT_TRUE(MismosPixeles(teselari.Pic_Trabajo, ImagenConLaPiezaEnLaMano())) << x << ", " << y;
}

} // namespace

class Mano : public Tablero, public ::testing::WithParamInterface<int16_t> {};

TEST_P(Mano, CogeLlevaYSueltaLaPiezaPulsada) {
    PreparaTablero(5, GetParam(), 500, 400);
    // A pile with overlaps: every third piece a little off its place.
    for (int16_t k = 1; k <= NroPiezas; k += 3) {
        PonPieza(k, Piezas[k].XCorrecta + 7, Piezas[k].YCorrecta + 9);
    }
    RepintaTablero();
    const int32_t colocadas = PiezasColocadas; // counted by the paint
    // An inner cell below several pieces in the pile; in a double game its
    // centre belongs to the figure.
    const int16_t k = TipoPieza < 2 ? 8 : 8 + 25;
    const int32_t x0 = Piezas[k].X + AnchoPieza / 2, y0 = Piezas[k].Y + AltoPieza / 2;
    teselari.Pic_BotonesDerecho.Visible = true; // closed by the pick
    Pic_Trabajo_MouseDown(1, 0, static_cast<float>(x0) + 0.4f, static_cast<float>(y0) - 0.4f);
    EXPECT_EQ(OrdenPiezas[1], k);
    EXPECT_EQ(PiezaLevantada, VERDADERO);
    EXPECT_EQ(escritorio.sonidos, std::vector<int16_t>{5});
    EXPECT_EQ(teselari.Pic_Trabajo.MousePointer, PUNTERO_CUATRO_FLECHAS);
    EXPECT_EQ(CursorTrabajo, 0);
    EXPECT_EQ(PulsacionX, x0);
    EXPECT_EQ(PulsacionY, y0);
    EXPECT_TRUE(MismosPixeles(teselari.Pic_Trabajo, ImagenConLaPiezaEnLaMano()));
    // To and fro, then let go free at (600, 620), in the view.
    const int32_t hx = x0 + 600 - Piezas[k].X, hy = y0 + 620 - Piezas[k].Y;
    for (auto [x, y] :
         {std::pair{x0 + 3, y0 + 1}, std::pair{x0 + 40, y0 + 25}, std::pair{x0 + 200, y0 + 150},
          std::pair{x0 + 190, y0 + 160}, std::pair{hx, hy}}) {
        Lleva(static_cast<float>(x), static_cast<float>(y));
    }
    Pic_Trabajo_MouseUp(1, 0, static_cast<float>(hx), static_cast<float>(hy));
    EXPECT_EQ(Piezas[k].X, 600);
    EXPECT_EQ(Piezas[k].Y, 620);
    EXPECT_EQ(PiezasColocadas, colocadas - 1);
    EXPECT_EQ(PiezaLevantada, FALSO);
    EXPECT_TRUE(TableroAlDia());
    // Picked again and let go a little off home: attracted.
    Pic_Trabajo_MouseDown(1, 0, static_cast<float>(hx), static_cast<float>(hy));
    const float ax = static_cast<float>(hx + Piezas[k].XCorrecta + 5 - 600);
    const float ay = static_cast<float>(hy + Piezas[k].YCorrecta - 4 - 620);
    Lleva(ax, ay);
    Pic_Trabajo_MouseUp(1, 0, ax, ay);
    EXPECT_TRUE(PiezaEnSuSitio(k));
    EXPECT_EQ(PiezasColocadas, colocadas);
    EXPECT_TRUE(TableroAlDia());
}

INSTANTIATE_TEST_SUITE_P(Cortes, Mano, ::testing::Values(0, 1, 2, 3, 4, 5));

TEST_F(Tablero, ElBotonDerechoAbreElPanelYElIzquierdoLoCierra) {
    PreparaTablero(4, 0, 320, 240);
    CuadroImagen &panel = teselari.Pic_BotonesDerecho;
    BotonEnDerecho.fill(true);
    struct Caso {
        const char *que;
        int16_t *modo;
    };
    const Caso casos[] = {
        {"playing", nullptr}, {"laying out", &ModoOrdenar}, {"solving", &ModoResolver}};
    for (const Caso &c : casos) {
        panel.Visible = false;
        if (c.modo != nullptr) {
            *c.modo = VERDADERO;
        }
        Pic_Trabajo_MouseDown(2, 0, 100, 100);
        EXPECT_TRUE(panel.Visible) << c.que;
        EXPECT_EQ(PiezaLevantada, FALSO) << c.que;
        // The left button does nothing while the game moves pieces itself.
        Pic_Trabajo_MouseDown(1, 0, 100, 100);
        EXPECT_EQ(panel.Visible, c.modo != nullptr) << c.que;
        EXPECT_EQ(PiezaLevantada, c.modo == nullptr ? VERDADERO : FALSO) << c.que;
        if (c.modo != nullptr) {
            *c.modo = FALSO;
        } else {
            Pic_Trabajo_MouseUp(1, 0, 100, 100);
        }
    }
    // A left press on no piece closes it too, and changes nothing else.
    panel.Visible = true;
    ParaCronometro();
    escritorio.sonidos.clear();
    const std::vector<int16_t> pila = Pila();
    teselari.Pic_Trabajo.MousePointer = 0;
    Pic_Trabajo_MouseDown(1, 0, 700, 500);
    EXPECT_FALSE(panel.Visible);
    EXPECT_EQ(Pila(), pila);
    EXPECT_EQ(PiezaLevantada, FALSO);
    EXPECT_TRUE(escritorio.sonidos.empty());
    EXPECT_EQ(teselari.Pic_Trabajo.MousePointer, 0);
    EXPECT_EQ(RelojEnMarcha, FALSO);
}
