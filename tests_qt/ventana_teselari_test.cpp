// The main form on the screen: the controls mirrored from the plain state,
// the scroll bars that move the work area, and the hourglass of the whole
// screen. The mouse on a scrolled work area is the drag of juego_raton_test;
// the panels over the work area are paneles_pantalla_test.
#include "juego_qt_comun.h"

using namespace PuzzGbl;

namespace {

class VentanaTest : public JuegoQt {
  protected:
    // A work area larger than the view: both bars have a range.
    void SetUp() override { Prepara(8, 0, 960, 720); }
};

QRect Lugar(const ControlConTamano &c) {
    return QRect(c.Left, c.Top, c.Width, c.Height);
}

} // namespace

TEST_F(VentanaTest, CubreLaPantallaSinMarcoComoLoDejaElEstado) {
    EXPECT_EQ(ventana->geometry(), QGuiApplication::primaryScreen()->geometry());
    EXPECT_TRUE(ventana->windowFlags() & Qt::FramelessWindowHint);
    const CuadroImagen &trabajo = teselari.Pic_Trabajo;
    EXPECT_EQ(ventana->Pic_Trabajo->geometry(),
              QRect(trabajo.Left, trabajo.Top, trabajo.Ancho(), trabajo.Alto()));
    for (const auto &[barra, estado] : {std::pair{ventana->BarraHor, &teselari.BarraHor},
                                        std::pair{ventana->BarraVer, &teselari.BarraVer}}) {
        EXPECT_EQ(barra->geometry(), Lugar(*estado));
        EXPECT_GT(barra->maximum(), 0);
        EXPECT_EQ(barra->maximum(), estado->Max());
        EXPECT_EQ(barra->pageStep(), estado->LargeChange);
    }
    EXPECT_EQ(ventana->Pic_Muestra->parentWidget(), ventana->Pic_Trabajo);
}

TEST_F(VentanaTest, LasBarrasMuevenElAreaDeTrabajo) {
    ventana->BarraHor->setValue(120);
    EXPECT_EQ(teselari.BarraHor.Value(), 120);
    EXPECT_EQ(teselari.Pic_Trabajo.Left, -120);
    EXPECT_EQ(ventana->Pic_Trabajo->pos(), QPoint(-120, 0));
    const int32_t maximo = teselari.BarraVer.Max();
    ventana->BarraVer->setValue(maximo + 1000); // kept within Max
    EXPECT_EQ(teselari.BarraVer.Value(), maximo);
    EXPECT_EQ(ventana->Pic_Trabajo->pos(), QPoint(-120, -maximo));
    // The logic scrolls too (the edge scrolling of a drag): the bars follow.
    ventana->Atiende([] { teselari.BarraHor.PonValue(7); });
    EXPECT_EQ(ventana->BarraHor->value(), 7);
    EXPECT_EQ(ventana->Pic_Trabajo->pos(), QPoint(-7, -maximo));
}

TEST_F(VentanaTest, ElRelojDeArenaCubreLaPantalla) {
    ventana->Atiende([] { teselari.MousePointer = 11; });
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    ventana->Atiende([] { teselari.MousePointer = 11; });
    ventana->Atiende([] { teselari.MousePointer = 0; });
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}
