// The drop: attraction to the piece's place, the view limits of a free piece,
// releases that drop nothing, and the end of the game.
#include "board/Arrastre.h"
#include "board/Raton.h"
#include "board/Render.h"
#include "core/Cronometro.h"
#include "tablero_comun.h"

using namespace PuzzGbl;

namespace {

// Piece k, lying at (x, y), is gripped at its corner there and released at
// once.
void SueltaAlli(int16_t k, int32_t x, int32_t y) {
    PonPieza(k, x, y);
    RepintaTablero();
    PiezaPrioritaria(PosicionDe(k));
    LevantaPieza(x, y);
    escritorio.sonidos.clear();
    Pic_Trabajo_MouseUp(1, 0, static_cast<float>(x), static_cast<float>(y));
}

struct Alcance {
    int16_t factor;
    int32_t x, y; // the largest offset still attracted, -1 for none
};

// For a cell of 80 x 60.
const Alcance ALCANCES[] = {{0, -1, -1},  {5, 3, 3},    {25, 19, 15},
                            {50, 39, 29}, {75, 59, 45}, {100, 79, 59}};

} // namespace

class Atraccion : public Tablero, public ::testing::WithParamInterface<Alcance> {};

TEST_P(Atraccion, LaPiezaVaASuSitioDentroDelAlcance) {
    const Alcance a = GetParam();
    PreparaTablero(4, 0, 320, 240);
    FactorPegado = a.factor;
    const int16_t k = 11;
    ASSERT_EQ(Piezas[k].XCorrecta, 80);
    ASSERT_EQ(Piezas[k].YCorrecta, 60);
    // The nearest offsets out of reach (the exact place always counts).
    const int32_t fx = std::max(a.x + 1, 1), fy = std::max(a.y + 1, 1);
    struct Desvio {
        int32_t dx, dy;
        bool atraida;
    };
    const Desvio desvios[] = {
        {0, 0, true},        {a.x, 0, a.x >= 0},   {-a.x, 0, a.x >= 0},   {0, a.y, a.y >= 0},
        {0, -a.y, a.y >= 0}, {a.x, a.y, a.x >= 0}, {-a.x, a.y, a.x >= 0}, {fx, 0, false},
        {-fx, 0, false},     {0, fy, false},       {0, -fy, false},       {fx, fy, false},
    };
    for (const Desvio &d : desvios) {
        SueltaAlli(k, 80 + d.dx, 60 + d.dy);
        const bool enCasa = PiezaEnSuSitio(k);
        EXPECT_EQ(enCasa, d.atraida) << d.dx << ", " << d.dy;
        if (!enCasa) {
            EXPECT_EQ(Piezas[k].X, 80 + d.dx);
            EXPECT_EQ(Piezas[k].Y, 60 + d.dy);
        }
        EXPECT_EQ(escritorio.sonidos, std::vector<int16_t>{static_cast<int16_t>(enCasa ? 6 : 10)});
    }
}

INSTANTIATE_TEST_SUITE_P(Factores, Atraccion, ::testing::ValuesIn(ALCANCES),
                         [](const auto &i) { return "f" + std::to_string(i.param.factor); });

TEST_F(Tablero, LosLimitesDeLaVistaRetienenLaPiezaLibreYNoLaAtraida) {
    PreparaTablero(8, 0, 640, 480); // cells of 80 x 60, piece 64 at (0, 0)
    FormTeselari &f = teselari;
    f.Pic_BotonesSiempre.Move(900, 0, 62, 300);
    f.BarraHor.Top = 700;
    f.BarraVer.Left = 1000;
    f.BarraHor.PonMax(300);
    f.BarraVer.PonMax(300);
    struct Caso {
        const char *que;
        int32_t hv, vv, x, y, xFinal, yFinal;
    };
    const Caso casos[] = {
        {"beside the panel", 0, 0, 870, 200, 860, 200},
        {"hanging below the panel", 0, 0, 870, 240, 870, 240},
        {"a pixel less below the panel", 0, 0, 870, 239, 860, 239},
        {"on the panel's limit", 0, 0, 860, 100, 860, 100},
        {"above the view", 0, 0, 400, -31, 400, -30},
        {"below the view", 0, 0, 400, 671, 400, 670},
        {"left of the view", 0, 0, -41, 300, -40, 300},
        {"right of the view", 0, 0, 961, 500, 960, 500},
        {"far up and right: panel, then top", 0, 0, 2000, -100, 860, -30},
        {"scrolled, above", 100, 50, 70, 10, 70, 20},
        {"scrolled, left", 100, 50, 50, 300, 60, 300},
        {"scrolled, beside the panel", 100, 50, 975, 280, 960, 280},
        {"scrolled, below", 100, 50, 400, 721, 400, 720},
    };
    for (const Caso &c : casos) {
        f.BarraHor.PonValue(c.hv);
        f.BarraVer.PonValue(c.vv);
        SueltaAlli(64, c.x, c.y);
        EXPECT_EQ(Piezas[64].X, c.xFinal) << c.que;
        EXPECT_EQ(Piezas[64].Y, c.yFinal) << c.que;
    }
    // The attraction does not look at the view: home (0, 0) far out of it.
    SueltaAlli(64, 30, -20);
    EXPECT_TRUE(PiezaEnSuSitio(64));
}

// Releases that drop nothing: with no piece in the hand, during another drop
// (the release of a press refused then), while the solver works.
TEST_F(Tablero, SueltasQueNoDejanNada) {
    struct Caso {
        const char *que;
        bool levantada;
        int16_t *bandera;
        int16_t levantadaDespues, soltandoseDespues, cursor;
    };
    const Caso casos[] = {
        {"no piece in the hand", false, nullptr, FALSO, FALSO, 1},
        {"during another drop", true, &PiezaSoltandose, VERDADERO, VERDADERO, 0},
        {"while solving", true, &ModoResolver, FALSO, FALSO, 0},
    };
    for (const Caso &c : casos) {
        PreparaTablero(4, 0, 320, 240);
        PonPieza(1, 500, 400);
        RepintaTablero();
        if (c.levantada) {
            LevantaPieza(510, 410);
        }
        if (c.bandera != nullptr) {
            *c.bandera = VERDADERO;
        }
        const std::vector<Pieza> piezas = Piezas;
        const Superficie imagen = teselari.Pic_Imagen;
        CursorTrabajo = 0;
        Pic_Trabajo_MouseUp(1, 0, 10, 10);
        EXPECT_EQ(Piezas, piezas) << c.que;
        EXPECT_TRUE(MismosPixeles(teselari.Pic_Imagen, imagen)) << c.que;
        EXPECT_TRUE(escritorio.sonidos.empty()) << c.que;
        EXPECT_EQ(PiezaLevantada, c.levantadaDespues) << c.que;
        EXPECT_EQ(PiezaSoltandose, c.soltandoseDespues) << c.que;
        EXPECT_EQ(CursorTrabajo, c.cursor) << c.que; // brought up to date when free
    }
}

// The sound of a pick lets a move through, which the piece follows; the sound
// of a drop lets a move, a press and its release through, which do nothing.
TEST_F(Tablero, DuranteLaSueltaElRatonNoToca) {
    PreparaTablero(4, 0, 320, 240);
    PonPieza(2, 600, 400);
    RepintaTablero();
    escritorio.alDejarPasarEventos = [](int32_t) { Pic_Trabajo_MouseMove(1, 0, 620, 415); };
    Pic_Trabajo_MouseDown(1, 0, 610, 410);
    EXPECT_EQ(Piezas[2].X, 610);
    escritorio.alDejarPasarEventos = [](int32_t) {
        EXPECT_EQ(PiezaSoltandose, VERDADERO);
        Pic_Trabajo_MouseMove(1, 0, 900, 100);
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
    EXPECT_TRUE(TableroAlDia());
}

class Final : public Tablero, public ::testing::WithParamInterface<int16_t> {};

TEST_P(Final, LaUltimaPiezaTerminaLaPartida) {
    PreparaTablero(3, GetParam(), 310, 300); // a column beyond the puzzle
    const int16_t k = 2;
    ArrancaCronometro();
    PartidaValida = VERDADERO;
    // Away from home, the game is not finished.
    SueltaAlli(k, 600, 400);
    EXPECT_TRUE(escritorio.mensajes.empty());
    EXPECT_EQ(PuzzleCompleto, FALSO);
    EXPECT_EQ(RelojEnMarcha, VERDADERO);

    bool vistoLimpio = false;
    escritorio.alMostrarMensaje = [&vistoLimpio] {
        // The message stands over the clean picture, with the clock stopped
        // and the drop still under way.
        EXPECT_EQ(PuzzleCompleto, VERDADERO);
        EXPECT_EQ(RelojEnMarcha, FALSO);
        EXPECT_EQ(PiezaSoltandose, VERDADERO);
        vistoLimpio = AreaComo(teselari.Pic_Origin);
    };
    SueltaAlli(k, Piezas[k].XCorrecta + 2, Piezas[k].YCorrecta + 3);
    ASSERT_EQ(escritorio.mensajes.size(), 1u);
    const Escritorio::Mensaje &m = escritorio.mensajes[0];
    EXPECT_EQ(m.titulo, "TESELARI");
    EXPECT_EQ(m.texto, "Ha conseguido resolver el puzzle");
    EXPECT_TRUE(vistoLimpio);
    EXPECT_EQ(PuzzleCompleto, VERDADERO);
    EXPECT_EQ(RelojEnMarcha, FALSO);
    EXPECT_EQ(teselari.Pic_BotonDerecho[9].MousePointer, PUNTERO_PROHIBIDO); // nothing to solve
    // A press beside the puzzle brings the cut lines back and leaves the clock
    // stopped; play goes on, and a pick sets it going again.
    Pic_Trabajo_MouseDown(1, 0, 700, 500);
    EXPECT_EQ(PuzzleCompleto, FALSO);
    EXPECT_TRUE(AreaComo(teselari.Pic_Bitmap));
    EXPECT_EQ(teselari.Pic_Trabajo.Point(AnchoPuzzle, 0), static_cast<Color>(ColorContraste));
    EXPECT_EQ(RelojEnMarcha, FALSO);
    Pic_Trabajo_MouseDown(1, 0, 50, 50);
    EXPECT_EQ(PiezaLevantada, VERDADERO);
    EXPECT_EQ(RelojEnMarcha, VERDADERO);
}

INSTANTIATE_TEST_SUITE_P(Cortes, Final, ::testing::Values(0, 1, 3));
