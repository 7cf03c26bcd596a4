// The player's hand through the real window: the drag as the screen shows
// it, on a scrolled view too, and the finish with its message. Which piece a
// press takes and where a drop leaves it are the board's rules, tested
// without a window.
#include "board/Render.h"
#include "juego_qt_comun.h"

using namespace PuzzGbl;

struct Arrastre {
    int16_t tipo;
    int hv, vv; // scrolling of the view
};

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
        std::string donde;
        EXPECT_EQ(PixelesDistintosEnPantalla(&donde), 0) << donde;
    }
    EXPECT_EQ(teselari.BarraHor.Value(), a.hv);
    EXPECT_EQ(teselari.BarraVer.Value(), a.vv);
    Suelta(mx, my);
    EXPECT_EQ(PiezaLevantada, FALSO);
    EXPECT_EQ(clips, (std::vector<int16_t>{5, 10}));
    EXPECT_EQ(distintosAlSonar, 0);
    EXPECT_EQ(PixelesDistintosEnPantalla(), 0);
}

INSTANTIATE_TEST_SUITE_P(Cortes, ArrastreQt,
                         testing::Values(Arrastre{1, 0, 0}, Arrastre{4, 152, 168}),
                         [](const testing::TestParamInfo<Arrastre> &i) {
                             const Arrastre &a = i.param;
                             return "tipo" + std::to_string(a.tipo) + "_" + std::to_string(a.hv) +
                                    "_" + std::to_string(a.vv);
                         });

TEST_F(JuegoQt, LaUltimaPiezaEnCasaMuestraElMensajeYLaSiguientePulsacionDevuelveLosContornos) {
    Prepara(4, 0, 320, 240);
    const int16_t k = 6;
    PonArriba(k, 600, 400);
    ASSERT_EQ(PiezasColocadas, NroPiezas - 1);
    // While the message stands the screen already shows the work area as it
    // is (the clean picture), without the event loop.
    int distintos = -1;
    alVerMensaje = [this, &distintos] { distintos = PixelesDistintosEnPantalla(); };
    Arrastra(k, Piezas[k].XCorrecta + 3, Piezas[k].YCorrecta - 2);
    ASSERT_EQ(mensajes.size(), 1u);
    EXPECT_EQ(mensajes[0].titulo, QStringLiteral("TESELARI"));
    EXPECT_EQ(mensajes[0].texto, QStringLiteral("Ha conseguido resolver el puzzle"));
    EXPECT_EQ(distintos, 0);
    EXPECT_EQ(PuzzleCompleto, VERDADERO);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);

    // A press beside the puzzle brings the outlines back, on the screen too.
    Pulsa(700, 500);
    Suelta(700, 500);
    EXPECT_EQ(PuzzleCompleto, FALSO);
    EXPECT_EQ(PixelesDistintosEnPantalla(), 0);
}
