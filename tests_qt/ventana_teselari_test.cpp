// The main form on the screen: the controls mirrored from the plain state,
// the scroll bars that move the work area, the mouse on the work area in
// surface coordinates, and the hourglass of the whole screen.
#include <QApplication>
#include <QScrollBar>
#include <QTest>
#include <QWindow>
#include <algorithm>
#include <gtest/gtest.h>
#include <vector>

#include "core/PuzzGbl.h"
#include "qt/VentanaTeselari.h"
#include "qt/VistaSuperficie.h"

using namespace PuzzGbl;

namespace {

struct Llamada {
    int16_t boton;
    float x, y;
};

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

TEST_F(VentanaTest, ElRatonSobreElAreaDesplazadaDaCoordenadasDeLaSuperficie) {
    std::vector<Llamada> pulsa, mueve, suelta;
    ventana->Pic_Trabajo->AlPulsar = [&](int16_t b, int16_t, float x, float y) {
        pulsa.push_back({b, x, y});
    };
    ventana->Pic_Trabajo->AlMover = [&](int16_t b, int16_t, float x, float y) {
        mueve.push_back({b, x, y});
    };
    ventana->Pic_Trabajo->AlSoltar = [&](int16_t b, int16_t, float x, float y) {
        suelta.push_back({b, x, y});
    };
    ventana->BarraHor->setValue(100);
    ventana->BarraVer->setValue(30);
    // Through the window, as the screen delivers them: window point
    // (50, 60) is surface point (150, 90).
    QWindow *w = ventana->windowHandle();
    QTest::mousePress(w, Qt::LeftButton, {}, QPoint(50, 60));
    QTest::mouseMove(w, QPoint(70, 80));
    QTest::mouseRelease(w, Qt::LeftButton, {}, QPoint(70, 80));
    QTest::mousePress(w, Qt::RightButton, {}, QPoint(300, 400));
    QTest::mouseRelease(w, Qt::RightButton, {}, QPoint(300, 400));
    ASSERT_EQ(pulsa.size(), 2u);
    EXPECT_EQ(pulsa[0].boton, 1);
    EXPECT_FLOAT_EQ(pulsa[0].x, 150.0f);
    EXPECT_FLOAT_EQ(pulsa[0].y, 90.0f);
    EXPECT_EQ(pulsa[1].boton, 2);
    EXPECT_FLOAT_EQ(pulsa[1].x, 400.0f);
    EXPECT_FLOAT_EQ(pulsa[1].y, 430.0f);
    // The move with the left button held.
    const auto arrastre = std::find_if(mueve.begin(), mueve.end(), [](const Llamada &m) {
        return m.x == 170.0f && m.y == 110.0f;
    });
    ASSERT_NE(arrastre, mueve.end());
    EXPECT_EQ(arrastre->boton, 1);
    ASSERT_EQ(suelta.size(), 2u);
    EXPECT_FLOAT_EQ(suelta[0].x, 170.0f);
}

TEST_F(VentanaTest, LosPanelesEstanSobreElAreaDeTrabajo) {
    FormTeselari &f = teselari;
    f.Pic_BotonesSiempre.Move(946, 0, 62, 300);
    f.Pic_BotonesSiempre.Visible = true;
    f.Pic_BotonSiempre[1].Move(3, 3, 56, 56);
    f.Pic_BotonSiempre[1].Visible = true;
    f.Pic_BSInfo.Move(3, 270);
    ventana->Sincroniza();
    EXPECT_EQ(ventana->childAt(947, 100), ventana->Pic_BotonesSiempre);
    EXPECT_EQ(ventana->childAt(960, 20), ventana->Pic_BotonSiempre[1]);
    EXPECT_EQ(ventana->childAt(100, 100), ventana->Pic_Trabajo);
    EXPECT_EQ(ventana->childAt(500, 760), ventana->BarraHor);
    EXPECT_EQ(ventana->Pic_BotonSiempre[1]->geometry(), QRect(3, 3, 56, 56));
    // A button's pointer and tooltip follow the state.
    f.Pic_BotonSiempre[1].MousePointer = 12;
    f.Pic_BotonSiempre[1].ToolTipText = "Ayuda de la aplicación";
    ventana->Sincroniza();
    EXPECT_EQ(ventana->Pic_BotonSiempre[1]->cursor().shape(), Qt::ForbiddenCursor);
    EXPECT_EQ(ventana->Pic_BotonSiempre[1]->toolTip(), QStringLiteral("Ayuda de la aplicación"));
}

TEST_F(VentanaTest, ElRelojDeArenaCubreLaPantalla) {
    ventana->Atiende([] { teselari.MousePointer = 11; });
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    ventana->Atiende([] { teselari.MousePointer = 11; });
    ventana->Atiende([] { teselari.MousePointer = 0; });
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}
