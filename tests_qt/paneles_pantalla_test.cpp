// The two button panels on the screen of the test executable (768 pixels
// high here, 600 in the second executable): the always-visible panel in one
// or two columns with its buttons and its count, and the pop-up panel of the
// right button, which stays on the screen clear of both scroll bars.
#include "juego_qt_comun.h"
#include "panels/Paneles.h"

using namespace PuzzGbl;

namespace {

struct Disposicion {
    int altoPantalla;
    int ancho, alto;                   // the always-visible panel
    int anchoCuenta;                   // Pic_BSInfo
    int anchoEmergente, altoEmergente; // the pop-up panel with all eleven
};

// Eleven buttons: 11 x 58 + 6 + 23 = 667 fits above the bar of a 768-pixel
// screen; on 600 pixels the panel takes two columns of 6 and 5.
const Disposicion DISPOSICIONES[] = {
    {768, 62, 667, 56, 61, 641},
    {600, 120, 377, 114, 119, 351},
};

const Disposicion *DisposicionDeLaPantalla() {
    const int alto = QGuiApplication::primaryScreen()->geometry().height();
    for (const Disposicion &d : DISPOSICIONES) {
        if (d.altoPantalla == alto) {
            return &d;
        }
    }
    return nullptr;
}

// The colour the screen shows at a window point.
uint32_t ColorEnPantalla(const VentanaTeselari &v, QPoint p) {
    return QGuiApplication::primaryScreen()
               ->grabWindow(v.winId(), p.x(), p.y(), 1, 1)
               .toImage()
               .pixel(0, 0) &
           0xFFFFFF;
}

} // namespace

class PanelesPantalla : public JuegoQt {
  protected:
    // Every shown button lies inside its panel, 56 x 56, clear of the
    // others and of the count; returns how many are shown.
    int CompruebaBotones(const std::array<VistaSuperficie *, 12> &botones, QWidget *panel) {
        std::vector<QRect> ocupado;
        if (panel == ventana->Pic_BotonesSiempre) {
            ocupado.push_back(ventana->Pic_BSInfo->geometry());
        }
        int n = 0;
        for (int i = 1; i <= 11; ++i) {
            if (botones[i]->isHidden()) {
                continue;
            }
            ++n;
            const QRect r = botones[i]->geometry();
            EXPECT_EQ(r.size(), QSize(56, 56)) << i;
            EXPECT_TRUE(panel->rect().contains(r)) << i;
            for (const QRect &o : ocupado) {
                EXPECT_FALSE(r.intersects(o)) << i;
            }
            ocupado.push_back(r);
        }
        return n;
    }
};

TEST_F(PanelesPantalla, ElPanelFijoSeDisponeSegunElAltoDeLaPantalla) {
    Prepara(4, 0, 320, 240);
    const Disposicion *d = DisposicionDeLaPantalla();
    ASSERT_NE(d, nullptr) << "no layout for this screen";
    const QRect pantalla = QGuiApplication::primaryScreen()->geometry();
    VistaSuperficie *panel = ventana->Pic_BotonesSiempre;
    // Against the right bar, at the top of the screen.
    EXPECT_EQ(panel->geometry(), QRect(ventana->BarraVer->x() - d->ancho, 0, d->ancho, d->alto));
    EXPECT_EQ(ventana->BarraVer->geometry().right(), pantalla.right());
    EXPECT_LE(panel->geometry().bottom(), ventana->BarraHor->y());
    EXPECT_TRUE(panel->isVisible());
    EXPECT_EQ(CompruebaBotones(ventana->Pic_BotonSiempre, panel), 11);
    // The count at the foot, across both columns when there are two.
    EXPECT_EQ(ventana->Pic_BSInfo->geometry(), QRect(3, d->alto - 3 - 23, d->anchoCuenta, 23));
    EXPECT_TRUE(ventana->Pic_BSInfo->isVisible());
    // The count is framed, sunken, and its text stands in the middle.
    const QImage cuenta = ventana->Pic_BSInfo->grab().toImage();
    EXPECT_EQ(cuenta.pixel(0, 0) & 0xFFFFFF, 0x808080u);
    EXPECT_EQ(cuenta.pixel(cuenta.width() - 1, cuenta.height() - 1) & 0xFFFFFF, 0xFFFFFFu);
    int izquierda = cuenta.width(), derecha = -1;
    for (int y = 0; y < cuenta.height(); ++y) {
        for (int x = 0; x < cuenta.width(); ++x) {
            if ((cuenta.pixel(x, y) & 0xFFFFFF) == 0x0000FF) {
                izquierda = std::min(izquierda, x);
                derecha = std::max(derecha, x);
            }
        }
    }
    ASSERT_GE(derecha, izquierda);
    EXPECT_LE(std::abs(izquierda - (cuenta.width() - 1 - derecha)), 2);
    // The frame as the screen shows it: light at the top left, dark at the
    // bottom right.
    EXPECT_EQ(ColorEnPantalla(*ventana, panel->geometry().topLeft()), 0xFFFFFFu);
    EXPECT_EQ(ColorEnPantalla(*ventana, panel->geometry().bottomRight()), 0x808080u);
    // And a button shows its picture from the strip.
    const QPoint b1 = ventana->Pic_BotonSiempre[1]->mapTo(ventana.get(), QPoint(20, 20));
    EXPECT_EQ(ColorEnPantalla(*ventana, b1), teselari.Pic_BotonSiempre[1].Fila(20)[20] & 0xFFFFFF);
}

struct PulsacionDerecha {
    const char *nombre;
    int hv, vv;
    int dx, dy;     // window point from the corner of the view (negative: from the right or
                    // bottom edge)
    bool enElPunto; // the panel opens at the press itself
};

void PrintTo(const PulsacionDerecha &p, std::ostream *os) {
    *os << p.nombre;
}

class PanelEmergente : public PanelesPantalla,
                       public testing::WithParamInterface<PulsacionDerecha> {};

TEST_P(PanelEmergente, SeAbreJuntoAlRatonYQuedaEnLaPantalla) {
    const PulsacionDerecha p = GetParam();
    Prepara(8, 0, 960, 720);
    const Disposicion *d = DisposicionDeLaPantalla();
    ASSERT_NE(d, nullptr) << "no layout for this screen";
    BotonEnDerecho.fill(true);
    ventana->BarraHor->setValue(p.hv);
    ventana->BarraVer->setValue(p.vv);
    const QRect vista(0, 0, ventana->BarraVer->x(), ventana->BarraHor->y());
    const QPoint enVentana(p.dx >= 0 ? p.dx : vista.right() + 1 + p.dx,
                           p.dy >= 0 ? p.dy : vista.bottom() + 1 + p.dy);
    ASSERT_EQ(ventana->childAt(enVentana), ventana->Pic_Trabajo);
    const QPoint enTrabajo = ventana->Pic_Trabajo->mapFrom(ventana.get(), enVentana);
    Pulsa(enTrabajo.x(), enTrabajo.y(), Qt::RightButton);
    Suelta(enTrabajo.x(), enTrabajo.y(), Qt::RightButton);

    VistaSuperficie *emergente = ventana->Pic_BotonesDerecho;
    ASSERT_TRUE(emergente->isVisible());
    EXPECT_EQ(emergente->size(), QSize(d->anchoEmergente, d->altoEmergente));
    // Wholly on the screen, clear of both scroll bars.
    EXPECT_TRUE(vista.contains(emergente->geometry())) << p.nombre;
    if (p.enElPunto) {
        // The press in the work area's pixels, taken as the window's.
        EXPECT_EQ(emergente->pos(), enTrabajo);
    }
    EXPECT_EQ(CompruebaBotones(ventana->Pic_BotonDerecho, emergente), 11);
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
    testing::Values(PulsacionDerecha{"AbajoDerecha", 0, 0, -3, -3, false},
                    PulsacionDerecha{"Centro", 0, 0, 200, 40, true},
                    PulsacionDerecha{"DesplazadoAbajoDerecha", 152, 168, -3, -3, false}),
    [](const testing::TestParamInfo<PulsacionDerecha> &i) { return std::string(i.param.nombre); });
