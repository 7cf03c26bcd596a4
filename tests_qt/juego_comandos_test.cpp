// The commands pressed on the panel's buttons through the real window, also
// from inside the yields of the long routines: the screen follows the pieces
// the lay-out and the solver move without the event loop, and the buttons
// come up on the screen when the routine ends. Which command ends which mode
// is the panels' rule, tested without a window.

#include "board/Render.h"
#include "juego_qt_comun.h"
#include "panels/Paneles.h"

using namespace PuzzGbl;

class ComandosQt : public JuegoQt {
  protected:
    // Sixteen pieces of 80 x 60, all away from home, apart from one another.
    void PreparaDesordenado() {
        Prepara(4, 0, 320, 240);
        for (int16_t k = 1; k <= NroPiezas; ++k) {
            PonPieza(k, 380 + (k - 1) % 4 * 100, 60 + (k - 1) / 4 * 80);
        }
        RepintaTablero();
        ASSERT_EQ(PiezasColocadas, 0);
    }

    // A click on the command's button of the always-visible panel.
    void Clic(int16_t b) {
        QTest::mouseClick(ventana->Pic_BotonSiempre[b], Qt::LeftButton, {}, QPoint(28, 28));
    }

    // Button b is up in the state and on the screen.
    void CompruebaArriba(int16_t b) {
        EXPECT_EQ(BotonPulsado[b], FALSO) << b;
        EXPECT_TRUE(SeVeSuSuperficie(ventana->Pic_BotonSiempre[b])) << b;
    }
};

// The lay-out's button pressed again after two pieces have arrived: the
// routine lets no further piece go and ends at once.
TEST_F(ComandosQt, ElSieteParaTrasLaPiezaEnLaMano) {
    const int j = 2;
    PreparaDesordenado();
    int cedidos = 0;
    alCederEventos = [&](int32_t n) {
        cedidos = n;
        if (n == j) {
            // The piece in hand has arrived: it is on the screen, and on
            // the composite again.
            std::string donde;
            EXPECT_EQ(PixelesDistintosEnPantalla(&donde), 0) << donde;
            Clic(7);
            EXPECT_EQ(ModoOrdenar, FALSO);
            CompruebaArriba(7);
        }
    };
    Clic(7);
    EXPECT_EQ(cedidos, j);
    EXPECT_EQ(PiezaLevantada, FALSO);
    CompruebaArriba(7);
    EXPECT_EQ(PixelesDistintosEnPantalla(), 0);
    // The board is playable again: a press picks the top piece.
    const Pieza &arriba = Piezas[OrdenPiezas[1]];
    Pulsa(arriba.X + 40, arriba.Y + 30);
    EXPECT_EQ(PiezaLevantada, VERDADERO);
    Suelta(arriba.X + 40, arriba.Y + 30);
}

// The solver from its button: each piece sounds when it has arrived, before
// any event is let through, and the screen has followed the move by itself.
// Where the pieces and the pile end is the board's rule.
TEST_F(ComandosQt, ResolverMuestraCadaPiezaAlLlegar) {
    PreparaDesordenado();
    PartidaValida = VERDADERO;
    Sonido = 1;
    int distintos = 0, llegadas = 0;
    alSonar = [&](int16_t clip) {
        llegadas += clip == 6 ? 1 : 0;
        distintos += PixelesDistintosEnPantalla();
    };
    Clic(9);
    EXPECT_EQ(llegadas, NroPiezas);
    EXPECT_EQ(distintos, 0);
    // The button up, and the screen shows the clean picture.
    CompruebaArriba(9);
    EXPECT_EQ(PixelesDistintosEnPantalla(), 0);
}
