// The player's hand through the real window: the press that finds a piece
// through the gaps of the one above it, the drag as the screen shows it, the
// drop with its attraction and its view limits, and the finish with its
// message.
#include <sstream>

#include "board/Render.h"
#include "juego_qt_comun.h"

using namespace PuzzGbl;

namespace {

// Whether the piece at `posicion` of the pile has an opaque pixel at point
// (x, y) of the work area, by its own mask.
bool OpacaEn(int16_t posicion, int x, int y) {
    const Pieza &p = Piezas[OrdenPiezas[posicion]];
    const int lx = x - (p.X - MargenX), ly = y - (p.Y - MargenY);
    if (lx < 0 || ly < 0 || lx >= AnchoPiezaTotal || ly >= AltoPiezaTotal) {
        return false;
    }
    EnmascaraPieza(posicion);
    return (teselari.Pic_PiezaMascara.Point(lx, ly) & 0xFFFFFF) == 0;
}

// Whether the work area, within the puzzle, holds the pixels of `s`.
bool PuzzleComo(const Superficie &s) {
    for (int32_t y = 0; y < AltoPuzzle; ++y) {
        for (int32_t x = 0; x < AnchoPuzzle; ++x) {
            if ((teselari.Pic_Trabajo.Point(x, y) & 0xFFFFFF) != (s.Point(x, y) & 0xFFFFFF)) {
                return false;
            }
        }
    }
    return true;
}

} // namespace

TEST_F(JuegoQt, LaPulsacionEncuentraLaPiezaPorLosHuecosDeLaDeArriba) {
    Prepara(4, 1, 320, 240);
    // Two knobbed pieces far from the puzzle, the upper one half over the
    // lower one, so that the gaps of its box between the knobs lie over
    // the lower piece.
    const int16_t abajo = 6, arriba = 11;
    PonArriba(abajo, 500, 300);
    PonArriba(arriba, 540, 320);
    ASSERT_EQ(OrdenPiezas[1], arriba);
    ASSERT_EQ(OrdenPiezas[2], abajo);
    struct Caso {
        const char *nombre;
        bool opacaArriba, opacaAbajo;
        int16_t esperada; // 0: no piece
        int x = -1, y = -1;
    };
    Caso casos[] = {{"gap of the upper piece over the lower", false, true, abajo},
                    {"both opaque: the upper wins", true, true, arriba},
                    {"only the upper", true, false, arriba},
                    {"gap over nothing", false, false, 0}};
    // A point of each kind within the upper piece's box.
    const int x0 = 540 - MargenX, y0 = 320 - MargenY;
    for (int y = y0; y < y0 + AltoPiezaTotal; ++y) {
        for (int x = x0; x < x0 + AnchoPiezaTotal; ++x) {
            const bool a = OpacaEn(1, x, y), b = OpacaEn(2, x, y);
            for (Caso &c : casos) {
                if (c.x < 0 && c.opacaArriba == a && c.opacaAbajo == b) {
                    c.x = x;
                    c.y = y;
                }
            }
        }
    }
    for (const Caso &c : casos) {
        SCOPED_TRACE(c.nombre);
        ASSERT_GE(c.x, 0) << "no such point in the layout";
        PonArriba(abajo, 500, 300);
        PonArriba(arriba, 540, 320);
        Pulsa(c.x, c.y);
        if (c.esperada == 0) {
            EXPECT_EQ(PiezaLevantada, FALSO);
            EXPECT_EQ(OrdenPiezas[1], arriba);
        } else {
            EXPECT_EQ(PiezaLevantada, VERDADERO);
            EXPECT_EQ(OrdenPiezas[1], c.esperada);
            // The lifted piece is on top on the screen at once.
            EXPECT_TRUE(MismosPixeles(teselari.Pic_Trabajo, ImagenConLaPiezaEnLaMano()));
        }
        std::string donde;
        EXPECT_EQ(PixelesDistintosEnPantalla(&donde), 0) << donde;
        Suelta(c.x, c.y);
        EXPECT_EQ(PiezaLevantada, FALSO);
    }
}

struct Arrastre {
    int16_t tipo;
    int hv, vv; // scrolling of the view
};

void PrintTo(const Arrastre &a, std::ostream *os) {
    *os << "cut " << a.tipo << ", view at " << a.hv << "," << a.vv;
}

class ArrastreQt : public JuegoQt, public testing::WithParamInterface<Arrastre> {};

TEST_P(ArrastreQt, LaPantallaEsLaImagenConLaPiezaEnSuSitio) {
    const Arrastre a = GetParam();
    Prepara(8, a.tipo, 960, 720);
    ventana->BarraHor->setValue(a.hv);
    ventana->BarraVer->setValue(a.vv);
    ASSERT_EQ(teselari.BarraHor.Value(), a.hv);
    // In a double game the inner piece, whose figure holds the cell's centre.
    const int16_t k = static_cast<int16_t>(a.tipo >= 2 ? 20 + 64 : 20);
    const int32_t x0 = 400 + a.hv, y0 = 300 + a.vv;
    PonArriba(k, x0, y0);
    const int gx = AnchoPieza / 2, gy = AltoPieza / 2;
    // The pick and the drop sound before any event is let through: the
    // screen has been brought up to date without the event loop.
    Sonido = 1;
    std::vector<int16_t> clips;
    int distintosAlSonar = 0;
    alSonar = [&](int16_t clip) {
        clips.push_back(clip);
        distintosAlSonar += PixelesDistintosEnPantalla();
    };
    Pulsa(x0 + gx, y0 + gy);
    ASSERT_EQ(PiezaLevantada, VERDADERO);
    ASSERT_EQ(OrdenPiezas[1], k);
    // Long and short steps, over the placed pieces and back, a pixel at a
    // time and diagonally: each is seen at once, with nothing left behind.
    const int pasos[][2] = {{1, 0}, {0, 1},   {-1, -1}, {37, -23}, {-150, -170},
                            {3, 2}, {200, 5}, {-7, 90}, {0, 0},    {-300, 10}};
    int mx = x0 + gx, my = y0 + gy;
    for (const auto &p : pasos) {
        mx += p[0];
        my += p[1];
        Mueve(mx, my);
        SCOPED_TRACE(testing::Message() << "mouse at " << mx << "," << my);
        EXPECT_EQ(Piezas[k].X, mx - gx);
        EXPECT_EQ(Piezas[k].Y, my - gy);
        EXPECT_TRUE(MismosPixeles(teselari.Pic_Trabajo, ImagenConLaPiezaEnLaMano()));
        std::string donde;
        EXPECT_EQ(PixelesDistintosEnPantalla(&donde), 0) << donde;
    }
    EXPECT_EQ(teselari.BarraHor.Value(), a.hv);
    EXPECT_EQ(teselari.BarraVer.Value(), a.vv);
    Suelta(mx, my);
    EXPECT_EQ(PiezaLevantada, FALSO);
    EXPECT_EQ(clips, (std::vector<int16_t>{5, 10}));
    EXPECT_EQ(distintosAlSonar, 0);
    EXPECT_TRUE(MismosPixeles(teselari.Pic_Trabajo, teselari.Pic_Imagen));
    EXPECT_EQ(PixelesDistintosEnPantalla(), 0);
}

INSTANTIATE_TEST_SUITE_P(Cortes, ArrastreQt,
                         testing::Values(Arrastre{0, 0, 0}, Arrastre{1, 0, 0}, Arrastre{3, 0, 0},
                                         Arrastre{1, 100, 50}, Arrastre{4, 152, 168}),
                         [](const testing::TestParamInfo<Arrastre> &i) {
                             std::ostringstream n;
                             n << "tipo" << i.param.tipo << "_" << i.param.hv << "_" << i.param.vv;
                             return n.str();
                         });

struct AlcanceQt {
    int16_t factor;
    int dx, dy; // the largest offset still attracted, -1 for none
};

void PrintTo(const AlcanceQt &a, std::ostream *os) {
    *os << "factor " << a.factor << ", reach " << a.dx << "," << a.dy;
}

class AtraccionQt : public JuegoQt, public testing::WithParamInterface<AlcanceQt> {};

// For a cell of 80 x 60: offsets just within and just beyond the reach, on
// each axis and both ways, carried by the mouse from far away.
TEST_P(AtraccionQt, LaSueltaCercaDeCasaLlevaLaPiezaASuSitio) {
    const AlcanceQt a = GetParam();
    Prepara(4, 0, 320, 240);
    ASSERT_EQ(AnchoPieza, 80);
    ASSERT_EQ(AltoPieza, 60);
    FactorPegado = a.factor;
    const int16_t k = 11;
    const int32_t cx = Piezas[k].XCorrecta, cy = Piezas[k].YCorrecta;
    const int fx = std::max(a.dx + 1, 1), fy = std::max(a.dy + 1, 1);
    // Another piece away from home: no drop finishes the game.
    PonArriba(1, 700, 100);
    struct Desvio {
        int dx, dy;
        bool atraida;
    };
    const Desvio desvios[] = {
        {a.dx, 0, a.dx >= 0},  {-a.dx, 0, a.dx >= 0},    {0, a.dy, a.dy >= 0},
        {0, -a.dy, a.dy >= 0}, {a.dx, -a.dy, a.dx >= 0}, {fx, 0, false},
        {-fx, 0, false},       {0, fy, false},           {0, -fy, false},
        {-fx, fy, false},
    };
    for (const Desvio &d : desvios) {
        SCOPED_TRACE(testing::Message() << "offset " << d.dx << "," << d.dy);
        PonArriba(k, 560, 420);
        Arrastra(k, cx + d.dx, cy + d.dy);
        EXPECT_EQ(PiezaEnSuSitio(k), d.atraida);
        if (!d.atraida) {
            EXPECT_EQ(Piezas[k].X, cx + d.dx);
            EXPECT_EQ(Piezas[k].Y, cy + d.dy);
        }
        EXPECT_EQ(PiezaLevantada, FALSO);
        EXPECT_EQ(PiezasColocadas, NroPiezas - (d.atraida ? 1 : 2));
        std::string donde;
        EXPECT_EQ(PixelesDistintosEnPantalla(&donde), 0) << donde;
    }
    // The exact place counts at every factor.
    PonArriba(k, 560, 420);
    Arrastra(k, cx, cy);
    EXPECT_TRUE(PiezaEnSuSitio(k));
    EXPECT_TRUE(mensajes.empty());
}

INSTANTIATE_TEST_SUITE_P(Factores, AtraccionQt,
                         testing::Values(AlcanceQt{0, -1, -1}, AlcanceQt{5, 3, 3},
                                         AlcanceQt{25, 19, 15}, AlcanceQt{50, 39, 29},
                                         AlcanceQt{75, 59, 45}, AlcanceQt{100, 79, 59}),
                         [](const testing::TestParamInfo<AlcanceQt> &i) {
                             std::ostringstream n;
                             n << 'f' << i.param.factor;
                             return n.str();
                         });

TEST_F(JuegoQt, LaUltimaPiezaEnCasaMuestraElMensajeYLaSiguientePulsacionDevuelveLosContornos) {
    Prepara(4, 0, 320, 240);
    const int16_t k = 6;
    PonArriba(k, 600, 400);
    ASSERT_EQ(PiezasColocadas, NroPiezas - 1);
    // While the message stands the screen already shows the clean picture.
    bool limpio = false;
    alVerMensaje = [this, &limpio] {
        limpio = PuzzleComo(teselari.Pic_Origin) && PixelesDistintosEnPantalla() == 0;
    };
    Arrastra(k, Piezas[k].XCorrecta + 3, Piezas[k].YCorrecta - 2);
    ASSERT_EQ(mensajes.size(), 1u);
    EXPECT_EQ(mensajes[0].titulo, QStringLiteral("TESELARI"));
    EXPECT_EQ(mensajes[0].texto, QStringLiteral("Ha conseguido resolver el puzzle"));
    EXPECT_TRUE(limpio);
    EXPECT_EQ(PuzzleCompleto, VERDADERO);
    EXPECT_EQ(PiezasColocadas, NroPiezas);
    EXPECT_EQ(PiezaLevantada, FALSO);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);

    // A press beside the puzzle brings the outlines back on the screen.
    ASSERT_FALSE(PuzzleComo(teselari.Pic_Bitmap));
    Pulsa(700, 500);
    Suelta(700, 500);
    EXPECT_EQ(PuzzleCompleto, FALSO);
    EXPECT_TRUE(PuzzleComo(teselari.Pic_Bitmap));
    EXPECT_EQ(PixelesDistintosEnPantalla(), 0);
    // And play goes on: a placed piece can be picked up again, and carried
    // away from its place.
    Pulsa(Piezas[k].X + 40, Piezas[k].Y + 30);
    EXPECT_EQ(PiezaLevantada, VERDADERO);
    EXPECT_EQ(OrdenPiezas[1], k);
    Mueve(640, 430);
    Suelta(640, 430);
    EXPECT_EQ(PiezasColocadas, NroPiezas - 1);
    EXPECT_EQ(mensajes.size(), 1u);
}

class ParejaQt : public JuegoQt, public testing::WithParamInterface<int16_t> {};

// The two pieces of a pair at home, the outer one on top: a press inside
// the figure goes through the outer piece's hole to the inner one, a press
// near the cell's corner takes the outer one.
TEST_P(ParejaQt, LaFiguraSeCogeAtravesDelHuecoDeLaOtra) {
    Prepara(4, GetParam(), 320, 240);
    const int16_t fuera = 6, dentro = 6 + 16;
    PonArriba(1, 600, 400); // one piece away: no press here finishes the game
    const int32_t cx = Piezas[fuera].XCorrecta, cy = Piezas[fuera].YCorrecta;
    ASSERT_EQ(Piezas[dentro].XCorrecta, cx);
    struct Caso {
        int x, y;
        int16_t esperada;
    };
    const Caso casos[] = {{cx + AnchoPieza / 2, cy + AltoPieza / 2, dentro},
                          {cx + 3, cy + 3, fuera},
                          {cx + AnchoPieza - 4, cy + AltoPieza - 4, fuera}};
    for (const Caso &c : casos) {
        SCOPED_TRACE(testing::Message() << "press at " << c.x << "," << c.y);
        PiezaPrioritaria(PosicionDe(dentro));
        PiezaPrioritaria(PosicionDe(fuera));
        RepintaTablero();
        Pulsa(c.x, c.y);
        EXPECT_EQ(PiezaLevantada, VERDADERO);
        EXPECT_EQ(OrdenPiezas[1], c.esperada);
        EXPECT_TRUE(MismosPixeles(teselari.Pic_Trabajo, ImagenConLaPiezaEnLaMano()));
        Suelta(c.x, c.y);
        EXPECT_TRUE(PiezaEnSuSitio(c.esperada));
        EXPECT_EQ(PixelesDistintosEnPantalla(), 0);
    }
    EXPECT_TRUE(mensajes.empty());
}

INSTANTIATE_TEST_SUITE_P(Figuras, ParejaQt, testing::Values(2, 3, 4, 5));
