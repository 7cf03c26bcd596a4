// The press on the board: picking a piece, the pop-up panel, the end of the
// coloured view and of a finished board, and presses that must be refused.
#include "board/Arrastre.h"
#include "board/Automaticos.h"
#include "board/Inspeccion.h"
#include "board/Raton.h"
#include "board/Render.h"
#include "core/Cronometro.h"
#include "panels/Comandos.h"
#include "tablero_comun.h"

using namespace PuzzGbl;

namespace {

// Whether the composite is the pile painted afresh from the positions.
bool ImagenAlDia() {
    const Superficie antes = teselari.Pic_Imagen;
    RepintaTablero();
    return MismosPixeles(antes, teselari.Pic_Imagen);
}

// Whether the puzzle's area of the board shows the surface given.
bool AreaComo(const Superficie &s) {
    for (int32_t y = 0; y < AltoPuzzle; ++y) {
        for (int32_t x = 0; x < AnchoPuzzle; ++x) {
            if (teselari.Pic_Trabajo.Point(x, y) != s.Point(x, y)) {
                return false;
            }
        }
    }
    return true;
}

} // namespace

class Pulsacion : public Tablero, public ::testing::WithParamInterface<int16_t> {};

TEST_P(Pulsacion, LaPiezaPulsadaSubeYSigueAlRatonHastaSoltarla) {
    PreparaTablero(4, GetParam(), 400, 300);
    // An inner cell, below several pieces in the pile; in a double game its
    // centre belongs to the figure.
    const int16_t k = TipoPieza < 2 ? 6 : 6 + 16;
    const int32_t x0 = Piezas[k].X + AnchoPieza / 2, y0 = Piezas[k].Y + AltoPieza / 2;
    if (TipoPieza >= 2) {
        ASSERT_EQ(teselari.Pic_Mascara.Point(x0, y0), COLOR_NEGRO);
    }
    ParaCronometro();
    Pic_Trabajo_MouseDown(1, 0, static_cast<float>(x0) + 0.4f, static_cast<float>(y0) - 0.4f);
    EXPECT_EQ(OrdenPiezas[1], k);
    EXPECT_EQ(PiezaLevantada, VERDADERO);
    EXPECT_EQ(escritorio.sonidos, std::vector<int16_t>{5});
    EXPECT_EQ(teselari.Pic_Trabajo.MousePointer, 15);
    EXPECT_EQ(CursorTrabajo, 0);
    EXPECT_EQ(RelojEnMarcha, VERDADERO);
    EXPECT_EQ(PulsacionX, x0);
    EXPECT_EQ(PulsacionY, y0);
    for (int32_t paso = 1; paso <= 4; ++paso) {
        Pic_Trabajo_MouseMove(1, 0, static_cast<float>(x0 + 120 * paso),
                              static_cast<float>(y0 + 70 * paso));
        EXPECT_TRUE(MismosPixeles(teselari.Pic_Trabajo, ImagenConLaPiezaEnLaMano())) << paso;
    }
    Pic_Trabajo_MouseUp(1, 0, static_cast<float>(x0 + 480), static_cast<float>(y0 + 280));
    EXPECT_EQ(Piezas[k].X, Piezas[k].XCorrecta + 480);
    EXPECT_EQ(Piezas[k].Y, Piezas[k].YCorrecta + 280);
    EXPECT_EQ(PiezasColocadas, NroPiezas - 1);
    EXPECT_TRUE(MismosPixeles(teselari.Pic_Trabajo, teselari.Pic_Imagen));
    EXPECT_TRUE(ImagenAlDia());
}

INSTANTIATE_TEST_SUITE_P(Cortes, Pulsacion, ::testing::Values(0, 1, 2, 5));

TEST_F(Tablero, UnaPulsacionSinPiezaNoCambiaNada) {
    PreparaTablero(4, 0, 320, 240);
    ParaCronometro();
    const std::vector<int16_t> orden = OrdenPiezas;
    teselari.Pic_Trabajo.MousePointer = 0;
    Pic_Trabajo_MouseDown(1, 0, 700, 500);
    EXPECT_EQ(OrdenPiezas, orden);
    EXPECT_EQ(PiezaLevantada, FALSO);
    EXPECT_TRUE(escritorio.sonidos.empty());
    EXPECT_EQ(teselari.Pic_Trabajo.MousePointer, 0);
    EXPECT_EQ(RelojEnMarcha, FALSO);
}

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
    // A left press on no piece closes it too.
    panel.Visible = true;
    Pic_Trabajo_MouseDown(1, 0, 700, 500);
    EXPECT_FALSE(panel.Visible);
}

TEST_F(Tablero, CerrarElPanelAlCogerUnaPiezaDejaLaPiezaALaVista) {
    PreparaTablero(4, 1, 400, 300);
    teselari.Pic_BotonesDerecho.Visible = true;
    const int32_t x = Piezas[7].X + AnchoPieza / 2, y = Piezas[7].Y + AltoPieza / 2;
    Pic_Trabajo_MouseDown(1, 0, static_cast<float>(x), static_cast<float>(y));
    EXPECT_FALSE(teselari.Pic_BotonesDerecho.Visible);
    EXPECT_EQ(OrdenPiezas[1], 7);
    EXPECT_TRUE(MismosPixeles(teselari.Pic_Trabajo, ImagenConLaPiezaEnLaMano()));
}

TEST_F(Tablero, LaPulsacionTerminaLaVistaDeColoresYLuegoCoge) {
    PreparaTablero(4, 1, 400, 300);
    PonPieza(3, 600, 400);
    RepintaTablero();
    const Superficie normal = teselari.Pic_Imagen;
    ModoColocadas = VERDADERO;
    MostrarPiezasBienoMal();
    Pic_Trabajo_MouseDown(1, 0, 650, 430);
    EXPECT_EQ(ModoColocadas, FALSO);
    EXPECT_EQ(OrdenPiezas[1], 3);
    EXPECT_EQ(PiezaLevantada, VERDADERO);
    Pic_Trabajo_MouseUp(1, 0, 650, 430);
    EXPECT_TRUE(MismosPixeles(teselari.Pic_Imagen, normal));
}

TEST_F(Tablero, TrasElFinalLaPulsacionDevuelveLosContornos) {
    PreparaTablero(3, 0, 300, 300);
    PonPieza(4, 600, 400);
    RepintaTablero();
    // The last piece home: the end of the game, its message over the clean
    // picture.
    Pic_Trabajo_MouseDown(1, 0, 610, 410);
    const auto xc = static_cast<float>(610 - 600 + Piezas[4].XCorrecta + 4);
    const auto yc = static_cast<float>(410 - 400 + Piezas[4].YCorrecta - 3);
    Pic_Trabajo_MouseMove(1, 0, xc, yc);
    Pic_Trabajo_MouseUp(1, 0, xc, yc);
    ASSERT_EQ(escritorio.mensajes.size(), 1u);
    EXPECT_EQ(escritorio.mensajes[0].texto, "Ha conseguido resolver el puzzle");
    EXPECT_EQ(PuzzleCompleto, VERDADERO);
    EXPECT_TRUE(AreaComo(teselari.Pic_Origin));
    EXPECT_EQ(RelojEnMarcha, FALSO);
    // A press beside the puzzle: the cut lines are back, the clock stays.
    Pic_Trabajo_MouseDown(1, 0, 700, 500);
    EXPECT_EQ(PuzzleCompleto, FALSO);
    EXPECT_TRUE(AreaComo(teselari.Pic_Bitmap));
    EXPECT_EQ(RelojEnMarcha, FALSO);
    // Play goes on: a pick sets the clock running again.
    Pic_Trabajo_MouseDown(1, 0, 50, 50);
    EXPECT_EQ(PiezaLevantada, VERDADERO);
    EXPECT_EQ(RelojEnMarcha, VERDADERO);
}

TEST_F(Tablero, DuranteLaSueltaOtraPulsacionSeRechaza) {
    PreparaTablero(4, 0, 320, 240);
    PonPieza(2, 600, 400);
    RepintaTablero();
    // The sound of the pick lets a move through: the piece follows it.
    escritorio.alDejarPasarEventos = [](int32_t) { Pic_Trabajo_MouseMove(1, 0, 620, 415); };
    Pic_Trabajo_MouseDown(1, 0, 610, 410);
    EXPECT_EQ(Piezas[2].X, 610);
    // The sound of the drop lets a press and its release through.
    escritorio.alDejarPasarEventos = [](int32_t) {
        EXPECT_EQ(PiezaSoltandose, VERDADERO);
        Pic_Trabajo_MouseDown(1, 0, 10, 10);
        EXPECT_EQ(OrdenPiezas[1], 2);
        Pic_Trabajo_MouseUp(1, 0, 10, 10);
    };
    Pic_Trabajo_MouseMove(1, 0, 710, 450);
    Pic_Trabajo_MouseUp(1, 0, 710, 450);
    EXPECT_EQ(Piezas[2].X, 700);
    EXPECT_EQ(Piezas[2].Y, 440);
    EXPECT_EQ(OrdenPiezas[1], 2);
    EXPECT_EQ(PiezaLevantada, FALSO);
    EXPECT_EQ(PiezaSoltandose, FALSO);
    EXPECT_TRUE(ImagenAlDia());
}

TEST_F(Tablero, MientrasResuelveLaPulsacionNoCogeYElBotonLoPara) {
    PreparaTablero(4, 0, 320, 240);
    for (int16_t k = 1; k <= NroPiezas; ++k) {
        PonPieza(k, 400 + k * 20, 300 + k * 10);
    }
    RepintaTablero();
    const std::vector<int16_t> orden = OrdenPiezas;
    escritorio.alDejarPasarEventos = [](int32_t n) {
        Pic_Trabajo_MouseDown(1, 0, 430, 320);
        Pic_Trabajo_MouseMove(1, 0, 900, 100);
        if (n == 6) {
            PulsaBoton(9); // the second press of the button
        }
    };
    PulsaBoton(9);
    // Three pieces arrived (a sound and a round's yield each), then it stopped.
    int32_t colocadas = 0;
    for (int16_t k = 1; k <= NroPiezas; ++k) {
        colocadas += PiezaEnSuSitio(k);
    }
    EXPECT_EQ(colocadas, 3);
    EXPECT_EQ(ModoResolver, FALSO);
    EXPECT_EQ(BotonPulsado[9], FALSO);
    EXPECT_EQ(PuzzleCompleto, FALSO);
    EXPECT_EQ(PiezaLevantada, FALSO);
    EXPECT_TRUE(ImagenAlDia());
}

TEST_F(Tablero, ResolverDuranteOrdenarTerminaPrimeroElOrden) {
    PreparaTablero(4, 0, 320, 240);
    for (int16_t k = 1; k <= NroPiezas; ++k) {
        PonPieza(k, Piezas[k].XCorrecta - 2, Piezas[k].YCorrecta - 1);
    }
    RepintaTablero();
    const std::vector<int16_t> orden = OrdenPiezas;
    escritorio.alDejarPasarEventos = [](int32_t n) {
        if (n == 2) {
            PulsaBoton(9);
        }
    };
    PulsaBoton(7);
    for (int16_t k = 1; k <= NroPiezas; ++k) {
        EXPECT_TRUE(PiezaEnSuSitio(k)) << k;
    }
    EXPECT_EQ(ModoOrdenar, FALSO);
    EXPECT_EQ(ModoResolver, FALSO);
    EXPECT_EQ(BotonPulsado[7], FALSO);
    EXPECT_EQ(BotonPulsado[9], FALSO);
    EXPECT_EQ(PuzzleCompleto, VERDADERO);
    EXPECT_EQ(PiezaLevantada, FALSO);
}
