// The main form on the screen: the controls mirrored from the plain state,
// the scroll bars that move the work area, and the hourglass of the whole
// screen. The mouse on a scrolled work area is the drag of juego_raton_test;
// the panels over the work area are paneles_pantalla_test.
#include <QApplication>
#include <QScrollBar>
#include <QTest>
#include <gtest/gtest.h>

#include "core/PuzzGbl.h"
#include "qt/VentanaTeselari.h"
#include "qt/VistaSuperficie.h"

using namespace PuzzGbl;

namespace {

class VentanaTest : public testing::Test {
  protected:
    void SetUp() override {
        RestauraValoresIniciales();
        FormTeselari &f = teselari;
        f.Pic_Trabajo.Move(0, 0, 1500, 1000);
        f.Pic_Trabajo.Visible = true;
        f.BarraHor.Left = 0;
        f.BarraHor.Top = 752;
        f.BarraHor.Width = 1008;
        f.BarraHor.LargeChange = 500;
        f.BarraHor.PonMax(1500 - 1008);
        f.BarraVer.Left = 1008;
        f.BarraVer.Top = 0;
        f.BarraVer.Height = 752;
        f.BarraVer.PonMax(1000 - 752);
        ventana = std::make_unique<VentanaTeselari>();
        ventana->MuestraPantallaCompleta();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(ventana.get()));
    }
    void TearDown() override {
        ventana.reset();
        RestauraValoresIniciales();
    }
    std::unique_ptr<VentanaTeselari> ventana;
};

} // namespace

TEST_F(VentanaTest, CubreLaPantallaSinMarco) {
    EXPECT_EQ(ventana->geometry(), QRect(0, 0, 1024, 768));
    EXPECT_TRUE(ventana->windowFlags() & Qt::FramelessWindowHint);
    EXPECT_EQ(ventana->Pic_Trabajo->geometry(), QRect(0, 0, 1500, 1000));
    EXPECT_EQ(ventana->BarraHor->geometry(), QRect(0, 752, 1008, 16));
    EXPECT_EQ(ventana->BarraHor->maximum(), 492);
    EXPECT_EQ(ventana->BarraHor->pageStep(), 500);
    EXPECT_EQ(ventana->BarraVer->maximum(), 248);
    EXPECT_EQ(ventana->Pic_Muestra->parentWidget(), ventana->Pic_Trabajo);
}

TEST_F(VentanaTest, LasBarrasMuevenElAreaDeTrabajo) {
    ventana->BarraHor->setValue(120);
    EXPECT_EQ(teselari.BarraHor.Value(), 120);
    EXPECT_EQ(teselari.Pic_Trabajo.Left, -120);
    EXPECT_EQ(ventana->Pic_Trabajo->pos(), QPoint(-120, 0));
    ventana->BarraVer->setValue(1000); // kept within Max
    EXPECT_EQ(teselari.BarraVer.Value(), 248);
    EXPECT_EQ(ventana->Pic_Trabajo->pos(), QPoint(-120, -248));
    // The logic scrolls too (the edge scrolling of a drag): the bars follow.
    ventana->Atiende([] { teselari.BarraHor.PonValue(7); });
    EXPECT_EQ(ventana->BarraHor->value(), 7);
    EXPECT_EQ(ventana->Pic_Trabajo->pos(), QPoint(-7, -248));
}

TEST_F(VentanaTest, ElRelojDeArenaCubreLaPantalla) {
    ventana->Atiende([] { teselari.MousePointer = 11; });
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    ventana->Atiende([] { teselari.MousePointer = 11; });
    ventana->Atiende([] { teselari.MousePointer = 0; });
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}
