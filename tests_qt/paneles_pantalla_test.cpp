// The two button panels on the screen of the test executable (768 pixels
// high here, 600 in the second executable): the always-visible panel with its
// buttons and its count where the state lays them out, and the pop-up panel
// of the right button, which stays on the screen clear of both scroll bars.
// How many columns and where each button goes are the panels' rules, tested
// without a window; the sunken frame is the surface view's.
#include "juego_qt_comun.h"
#include "panels/Paneles.h"

using namespace PuzzGbl;

namespace {

// Where the state puts a control, in its parent.
QRect Lugar(const CuadroImagen &c) {
    return QRect(c.Left, c.Top, c.Ancho(), c.Alto());
}

} // namespace

class PanelesPantalla : public JuegoQt {
  protected:
    // How many of the eleven buttons show wholly inside the panel.
    static int BotonesDentro(const std::array<VistaSuperficie *, 12> &botones, QWidget *panel) {
        int n = 0;
        for (int i = 1; i <= 11; ++i) {
            n += botones[i]->isVisible() && panel->rect().contains(botones[i]->geometry()) ? 1 : 0;
        }
        return n;
    }
};

struct PulsacionDerecha {
    const char *nombre;
    int hv, vv;
    int dx, dy;     // window point from the corner of the view (negative: from the right or
                    // bottom edge)
    bool enElPunto; // the panel opens at the press itself
};

class PanelEmergente : public PanelesPantalla,
                       public testing::WithParamInterface<PulsacionDerecha> {};

TEST_P(PanelEmergente, SeAbreJuntoAlRatonYQuedaEnLaPantalla) {
    const PulsacionDerecha p = GetParam();
    Prepara(8, 0, 960, 720);
    BotonEnDerecho.fill(true);
    ventana->BarraHor->setValue(p.hv);
    ventana->BarraVer->setValue(p.vv);
    const QRect vista(0, 0, ventana->BarraVer->x(), ventana->BarraHor->y());
    const QPoint enVentana(p.dx >= 0 ? p.dx : vista.right() + 1 + p.dx,
                           p.dy >= 0 ? p.dy : vista.bottom() + 1 + p.dy);
    ASSERT_EQ(ventana->childAt(enVentana), ventana->Pic_Trabajo);
    const QPoint enTrabajo = ventana->Pic_Trabajo->mapFrom(ventana.get(), enVentana);
    // The always-visible panel and its count where the state lays them out.
    VistaSuperficie *fijo = ventana->Pic_BotonesSiempre;
    EXPECT_EQ(fijo->geometry(), Lugar(teselari.Pic_BotonesSiempre));
    EXPECT_EQ(BotonesDentro(ventana->Pic_BotonSiempre, fijo), 11);
    EXPECT_EQ(ventana->Pic_BSInfo->geometry(), Lugar(teselari.Pic_BSInfo));
    EXPECT_TRUE(ventana->Pic_BSInfo->isVisible());
    EXPECT_TRUE(SeVeSuSuperficie(ventana->Pic_BotonSiempre[1]));
    Pulsa(enTrabajo.x(), enTrabajo.y(), Qt::RightButton);
    Suelta(enTrabajo.x(), enTrabajo.y(), Qt::RightButton);

    VistaSuperficie *emergente = ventana->Pic_BotonesDerecho;
    ASSERT_TRUE(emergente->isVisible());
    EXPECT_EQ(emergente->geometry(), Lugar(teselari.Pic_BotonesDerecho));
    // Wholly on the screen, clear of both scroll bars.
    EXPECT_TRUE(vista.contains(emergente->geometry())) << p.nombre;
    if (p.enElPunto) {
        // The press in the work area's pixels, taken as the window's.
        EXPECT_EQ(emergente->pos(), enTrabajo);
    }
    EXPECT_EQ(BotonesDentro(ventana->Pic_BotonDerecho, emergente), 11);
    // On top of everything where it stands.
    const QPoint centro = emergente->geometry().center();
    QWidget *arriba = ventana->childAt(centro);
    EXPECT_TRUE(arriba == emergente || emergente->isAncestorOf(arriba));

    // A command from it hides it, and the board shows again where it stood
    // before the command runs: by the click's sound, which comes first,
    // without the event loop.
    Sonido = 1;
    int distintosAlSonar = -1;
    alSonar = [&](int16_t clip) {
        if (clip == 1) {
            distintosAlSonar = PixelesDistintosEnPantalla();
        }
    };
    QTest::mouseClick(ventana->Pic_BotonDerecho[8], Qt::LeftButton, {}, QPoint(28, 28));
    EXPECT_EQ(distintosAlSonar, 0);
    EXPECT_FALSE(emergente->isVisible());
    std::string donde;
    EXPECT_EQ(PixelesDistintosEnPantalla(&donde), 0) << donde;
}

INSTANTIATE_TEST_SUITE_P(
    Esquinas, PanelEmergente,
    testing::Values(PulsacionDerecha{"Centro", 0, 0, 200, 40, true},
                    PulsacionDerecha{"DesplazadoAbajoDerecha", 152, 168, -3, -3, false}),
    [](const testing::TestParamInfo<PulsacionDerecha> &i) { return std::string(i.param.nombre); });
