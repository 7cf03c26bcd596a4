// A free piece let go beyond the edges of the view, through the real window:
// the mouse leaves the window while the button is held, and the piece comes
// back so that half of its cell stays in the view, and out of the
// always-visible panel. The edges are those of the widgets on the screen;
// the limits themselves are the board's rules, tested without a window.
#include "board/Render.h"
#include "juego_qt_comun.h"

using namespace PuzzGbl;

namespace {

struct Destino {
    const char *nombre;
    int hv, vv; // scrolling before the drag
    int x, y;   // the corner where the mouse leaves the piece, from the view's corner
    bool panel; // the panel brings it back, else the right and bottom edges
};

// Overshoots of 40 pixels and more: beyond what an edge scroll of the drag
// itself (a tenth of the bar's range) can take back.
const Destino DESTINOS[] = {
    {"besidethepanel", 0, 0, 946 - 60 + 40, 200, true},
    {"scrolledfardownandright", 100, 50, 1100, 900, false},
};

} // namespace

class LimitesQt : public JuegoQt, public testing::WithParamInterface<Destino> {};

TEST_P(LimitesQt, LaPiezaVuelveALaVista) {
    const Destino s = GetParam();
    Prepara(8, 1, 960, 720);
    // The table is laid out for the panel of a 1024 x 768 screen.
    ASSERT_EQ(ventana->Pic_BotonesSiempre->x(), 946);
    ventana->BarraHor->setValue(s.hv);
    ventana->BarraVer->setValue(s.vv);
    const int16_t k = 37;
    PonArriba(k, 400 + s.hv, 300 + s.vv);
    Arrastra(k, s.x + s.hv, s.y + s.vv);
    ASSERT_EQ(PiezaLevantada, FALSO);

    // Half the cell beyond the panel's left edge, or beyond the bars.
    const int mx = AnchoPieza / 2, my = AltoPieza / 2;
    if (s.panel) {
        EXPECT_EQ(Piezas[k].X, ventana->BarraHor->value() + ventana->Pic_BotonesSiempre->x() - mx);
        EXPECT_EQ(Piezas[k].Y, s.y + s.vv);
    } else {
        EXPECT_EQ(Piezas[k].X, ventana->BarraHor->value() + ventana->BarraVer->x() - mx);
        EXPECT_EQ(Piezas[k].Y, ventana->BarraVer->value() + ventana->BarraHor->y() - my);
    }
    // The screen shows the piece where it now is.
    std::string donde;
    EXPECT_EQ(PixelesDistintosEnPantalla(&donde), 0) << donde;
}

INSTANTIATE_TEST_SUITE_P(Bordes, LimitesQt, testing::ValuesIn(DESTINOS),
                         [](const testing::TestParamInfo<Destino> &i) {
                             return std::string(i.param.nombre);
                         });
