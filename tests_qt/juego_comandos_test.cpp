// The commands pressed on the panel's buttons through the real window, also
// from inside the yields of the long routines: the screen follows the pieces
// the lay-out and the solver move without the event loop, and the buttons
// come up on the screen when the routine ends.

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

    // Whether button b shows pressed on the screen (1), up (0) or neither
    // (-1), against the two looks drawn afresh.
    int VistoPulsado(int16_t b) {
        Superficie arriba = teselari.Pic_BotonSiempre[b], abajo = arriba;
        arriba.AlCambiar = nullptr;
        abajo.AlCambiar = nullptr;
        const int16_t antes = BotonPulsado[b];
        BotonPulsado[b] = FALSO;
        DibuBot(b, arriba);
        BotonPulsado[b] = VERDADERO;
        DibuBot(b, abajo);
        BotonPulsado[b] = antes;
        EXPECT_FALSE(MismosPixeles(arriba, abajo));
        const QPoint p = ventana->Pic_BotonSiempre[b]->mapTo(ventana.get(), QPoint(0, 0));
        const QImage visto = QGuiApplication::primaryScreen()
                                 ->grabWindow(ventana->winId(), p.x(), p.y(), 56, 56)
                                 .toImage()
                                 .convertToFormat(QImage::Format_RGB32);
        auto igual = [&visto](const Superficie &s) {
            for (int y = 0; y < 56; ++y) {
                for (int x = 0; x < 56; ++x) {
                    if ((visto.pixel(x, y) & 0xFFFFFF) != (s.Fila(y)[x] & 0xFFFFFF)) {
                        return false;
                    }
                }
            }
            return true;
        };
        return igual(abajo) ? 1 : igual(arriba) ? 0 : -1;
    }
};

class OrdenParadoQt : public ComandosQt, public testing::WithParamInterface<int> {};

// The lay-out's button pressed again after j pieces have arrived: the
// routine lets no further piece go and ends at once.
TEST_P(OrdenParadoQt, ElSieteParaTrasLaPiezaEnLaMano) {
    const int j = GetParam();
    PreparaDesordenado();
    std::vector<Pieza> antes(Piezas.begin(), Piezas.end());
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
            EXPECT_EQ(VistoPulsado(7), 0);
        }
    };
    Clic(7);
    EXPECT_EQ(cedidos, j);
    int movidas = 0;
    for (int16_t k = 1; k <= NroPiezas; ++k) {
        movidas += Piezas[k].X != antes[k].X || Piezas[k].Y != antes[k].Y ? 1 : 0;
    }
    EXPECT_EQ(movidas, j);
    EXPECT_EQ(ModoOrdenar, FALSO);
    EXPECT_EQ(PiezaLevantada, FALSO);
    EXPECT_EQ(BotonPulsado[7], FALSO);
    EXPECT_EQ(VistoPulsado(7), 0);
    EXPECT_TRUE(MismosPixeles(teselari.Pic_Trabajo, teselari.Pic_Imagen));
    EXPECT_EQ(PixelesDistintosEnPantalla(), 0);
    // The board is playable again: a press picks the top piece.
    const Pieza &arriba = Piezas[OrdenPiezas[1]];
    Pulsa(arriba.X + 40, arriba.Y + 30);
    EXPECT_EQ(PiezaLevantada, VERDADERO);
    Suelta(arriba.X + 40, arriba.Y + 30);
}

INSTANTIATE_TEST_SUITE_P(Piezas, OrdenParadoQt, testing::Values(2));

class ResolverQt : public ComandosQt, public testing::WithParamInterface<int> {};

// The solver from its button, at rest (0) or pressed after j pieces of the
// lay-out: it places every piece and leaves the pile as it found it.
TEST_P(ResolverQt, ColocaTodoYDejaLaPilaComoEstaba) {
    const int j = GetParam();
    PreparaDesordenado();
    PartidaValida = VERDADERO;
    std::vector<int16_t> pila(OrdenPiezas.begin(), OrdenPiezas.end());
    if (j == 0) {
        // Each piece sounds when it has arrived, before any event is let
        // through: the screen has followed the move by itself.
        Sonido = 1;
        int distintos = 0, llegadas = 0;
        alSonar = [&](int16_t clip) {
            llegadas += clip == 6 ? 1 : 0;
            distintos += PixelesDistintosEnPantalla();
        };
        Clic(9);
        EXPECT_EQ(llegadas, NroPiezas);
        EXPECT_EQ(distintos, 0);
    } else {
        alCederEventos = [&](int32_t n) {
            if (n == j) {
                ASSERT_EQ(ModoOrdenar, VERDADERO);
                pila.assign(OrdenPiezas.begin(), OrdenPiezas.end());
                Clic(9);
            }
        };
        Clic(7);
    }
    EXPECT_EQ(PiezasColocadas, NroPiezas);
    for (int16_t k = 1; k <= NroPiezas; ++k) {
        EXPECT_TRUE(PiezaEnSuSitio(k)) << k;
    }
    EXPECT_EQ(std::vector<int16_t>(OrdenPiezas.begin(), OrdenPiezas.end()), pila);
    EXPECT_EQ(PuzzleCompleto, VERDADERO);
    EXPECT_EQ(PartidaValida, FALSO);
    EXPECT_EQ(ModoOrdenar, FALSO);
    EXPECT_EQ(ModoResolver, FALSO);
    EXPECT_EQ(VistoPulsado(7), 0);
    EXPECT_EQ(VistoPulsado(9), 0);
    // The solver finishes without a message, and the screen shows the clean
    // picture.
    EXPECT_TRUE(mensajes.empty());
    EXPECT_EQ(PixelesDistintosEnPantalla(), 0);
}

INSTANTIATE_TEST_SUITE_P(Desde, ResolverQt, testing::Values(0, 4));
