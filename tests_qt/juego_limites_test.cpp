// A free piece let go beyond the edges of the view, through the real window:
// the mouse leaves the window while the button is held, and the piece comes
// back so that at least half of its cell stays in the view, and out of the
// always-visible panel. The edges are those of the widgets on the screen.
#include "board/Render.h"
#include "juego_qt_comun.h"

using namespace PuzzGbl;

namespace {

// Where the edges of the view and of the panel stand, on the work area.
struct Vista {
    int izquierda, arriba, derecha, abajo; // the visible part of the work area
    int panelIzquierda, panelAbajo;
};

// Which limits a drop meets; the expected corner follows from the view.
enum Limite : unsigned {
    NINGUNO = 0,
    IZQUIERDA = 1,
    ARRIBA = 2,
    DERECHA = 4,
    ABAJO = 8,
    PANEL = 16,
};

struct Destino {
    const char *nombre;
    int hv, vv;       // scrolling before the drag
    int x, y;         // the corner where the mouse leaves the piece, from the view's corner
    unsigned limites; // which ones bring it back
};

void PrintTo(const Destino &d, std::ostream *os) {
    *os << d.nombre;
}

// Overshoots of 40 pixels and more: beyond what an edge scroll of the drag
// itself (a tenth of the bar's range) can take back.
const Destino DESTINOS[] = {
    {"beside the panel", 0, 0, 946 - 60 + 40, 200, PANEL},
    {"far up and left", 0, 0, -200, -200, IZQUIERDA | ARRIBA},
    {"scrolled, below", 100, 50, 300, 752 - 45 + 40, ABAJO},
    {"scrolled, far down and right", 100, 50, 1100, 900, DERECHA | ABAJO},
};

// Whether the work area shows the composite everywhere in the view.
bool IgualesEnLaVista(const Vista &v) {
    for (int y = v.arriba; y < v.abajo; ++y) {
        for (int x = v.izquierda; x < v.derecha; ++x) {
            if ((teselari.Pic_Trabajo.Point(x, y) & 0xFFFFFF) !=
                (teselari.Pic_Imagen.Point(x, y) & 0xFFFFFF)) {
                return false;
            }
        }
    }
    return true;
}

} // namespace

class LimitesQt : public JuegoQt, public testing::WithParamInterface<Destino> {
  protected:
    Vista LaVista() const {
        const int hv = ventana->BarraHor->value(), vv = ventana->BarraVer->value();
        return {hv,
                vv,
                hv + ventana->BarraVer->x(),
                vv + ventana->BarraHor->y(),
                hv + ventana->Pic_BotonesSiempre->x(),
                vv + ventana->Pic_BotonesSiempre->height()};
    }
};

TEST_P(LimitesQt, LaPiezaVuelveALaVista) {
    const Destino s = GetParam();
    Prepara(8, 1, 960, 720);
    ASSERT_EQ(AnchoPieza, 120);
    ASSERT_EQ(AltoPieza, 90);
    // The table is laid out for the panel of a 1024 x 768 screen.
    ASSERT_EQ(ventana->Pic_BotonesSiempre->x(), 946);
    ventana->BarraHor->setValue(s.hv);
    ventana->BarraVer->setValue(s.vv);
    const int16_t k = 37;
    PonArriba(k, 400 + s.hv, 300 + s.vv);
    Arrastra(k, s.x + s.hv, s.y + s.vv);
    ASSERT_EQ(PiezaLevantada, FALSO);
    ASSERT_FALSE(PiezaEnSuSitio(k));

    const Vista v = LaVista();
    const int mx = AnchoPieza / 2, my = AltoPieza / 2;
    int x = s.x + s.hv, y = s.y + s.vv;
    if (s.limites & PANEL) {
        x = v.panelIzquierda - mx;
    }
    if (s.limites & ARRIBA) {
        y = v.arriba - my;
    }
    if (s.limites & ABAJO) {
        y = v.abajo - my;
    }
    if (s.limites & IZQUIERDA) {
        x = v.izquierda - mx;
    }
    if (s.limites & DERECHA) {
        x = v.derecha - mx;
    }
    EXPECT_EQ(Piezas[k].X, x);
    EXPECT_EQ(Piezas[k].Y, y);
    // Whatever the limit, the centre of the cell is in the view, and not
    // under the panel unless the piece hangs below it.
    const int centroX = Piezas[k].X + mx, centroY = Piezas[k].Y + my;
    EXPECT_GE(centroX, v.izquierda);
    EXPECT_LE(centroX, v.derecha);
    EXPECT_GE(centroY, v.arriba);
    EXPECT_LE(centroY, v.abajo);
    if (Piezas[k].Y < v.panelAbajo - AltoPieza) {
        EXPECT_LE(centroX, v.panelIzquierda);
    }
    // The screen shows the piece where it now is. Beyond the view the work
    // area may keep what the piece left there: nothing repairs it.
    EXPECT_TRUE(IgualesEnLaVista(v));
    std::string donde;
    EXPECT_EQ(PixelesDistintosEnPantalla(&donde), 0) << donde;
}

INSTANTIATE_TEST_SUITE_P(Bordes, LimitesQt, testing::ValuesIn(DESTINOS),
                         [](const testing::TestParamInfo<Destino> &i) {
                             std::string n;
                             for (const char *c = i.param.nombre; *c != '\0'; ++c) {
                                 if (std::isalnum(static_cast<unsigned char>(*c))) {
                                     n += *c;
                                 }
                             }
                             return n;
                         });
