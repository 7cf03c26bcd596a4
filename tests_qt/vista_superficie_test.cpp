// VistaSuperficie: the widget shows the surface's own pixels, repaints at
// once what a drawing operation touched, and turns mouse events into the
// game's button numbers (1 left, 2 right, 4 middle), key flags (1 shift, 2
// control, 4 alt) and surface coordinates.
#include <QEvent>
#include <QImage>
#include <QTest>
#include <gtest/gtest.h>
#include <vector>

#include "qt/VistaSuperficie.h"

namespace {

// Counts the paint events a widget receives and keeps their rectangles.
class ContadorPintadas : public QObject {
  public:
    std::vector<QRect> zonas;

  protected:
    bool eventFilter(QObject *, QEvent *e) override {
        if (e->type() == QEvent::Paint) {
            zonas.push_back(static_cast<QPaintEvent *>(e)->rect());
        }
        return false;
    }
};

struct Llamada {
    int16_t boton, shift;
    float x, y;
};

CuadroImagen Dibujada(int w, int h) {
    CuadroImagen s(w, h, 0x336699);
    s.Line(0, 0, w, h, 0x0000FF);
    s.CajaLlena(5, 5, 15, 12, 0x00FF00);
    s.PSet(w - 1, h - 1, 0xABCDEF);
    return s;
}

} // namespace

TEST(VistaSuperficie, MuestraExactamenteLosPixelesDeLaSuperficie) {
    CuadroImagen s = Dibujada(37, 23);
    VistaSuperficie vista(s);
    EXPECT_EQ(vista.size(), QSize(37, 23));
    const QImage imagen = vista.grab().toImage().convertToFormat(QImage::Format_RGB32);
    ASSERT_EQ(imagen.size(), QSize(37, 23));
    for (int y = 0; y < 23; ++y) {
        for (int x = 0; x < 37; ++x) {
            ASSERT_EQ(imagen.pixel(x, y), s.Fila(y)[x]) << x << "," << y;
        }
    }
}

TEST(VistaSuperficie, ReflejaLugarTamanoVisibilidadYPista) {
    QWidget padre;
    padre.resize(300, 200);
    CuadroImagen s(20, 10);
    s.Left = 7;
    s.Top = -3;
    VistaSuperficie vista(s, &padre);
    EXPECT_EQ(vista.geometry(), QRect(7, -3, 20, 10));
    s.Move(40, 50, 64, 32);
    s.Visible = false;
    s.ToolTipText = "Ayuda";
    vista.Sincroniza();
    EXPECT_EQ(vista.geometry(), QRect(40, 50, 64, 32));
    EXPECT_TRUE(vista.isHidden());
    EXPECT_EQ(vista.toolTip(), QStringLiteral("Ayuda"));
    s.Visible = true;
    vista.Sincroniza();
    EXPECT_FALSE(vista.isHidden());
}

TEST(VistaSuperficie, RepintaEnElActoLoQueTocaUnDibujo) {
    CuadroImagen s(100, 80, 0xFFFFFF);
    VistaSuperficie vista(s);
    vista.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&vista));
    ContadorPintadas contador;
    vista.installEventFilter(&contador);
    // No event loop runs between the drawing and the check.
    s.CajaLlena(10, 20, 30, 25, 0x0000FF);
    ASSERT_EQ(contador.zonas.size(), 1u);
    EXPECT_TRUE(contador.zonas[0].contains(QRect(10, 20, 21, 6)));
    EXPECT_FALSE(contador.zonas[0].contains(QPoint(40, 40)));
    s.PSet(90, 70, 0x00FF00);
    ASSERT_EQ(contador.zonas.size(), 2u);
    EXPECT_EQ(contador.zonas[1], QRect(90, 70, 1, 1));
    // A hidden view paints nothing.
    vista.hide();
    s.PSet(1, 1, 0x00FF00);
    EXPECT_EQ(contador.zonas.size(), 2u);
}

TEST(VistaSuperficie, UnaSuperficieAgrandadaPorLaLogicaSeVeEntera) {
    QWidget padre;
    padre.resize(400, 300);
    CuadroImagen s(10, 10);
    VistaSuperficie vista(s, &padre);
    padre.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&padre));
    s.CambiaTamano(200, 100);
    s.CajaLlena(150, 50, 160, 60, 0x0000FF);
    EXPECT_EQ(vista.size(), QSize(200, 100));
}

TEST(VistaSuperficie, ElRatonLlegaConBotonesYCoordenadasDeLaSuperficie) {
    CuadroImagen s(200, 150);
    VistaSuperficie vista(s);
    vista.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&vista));
    std::vector<Llamada> pulsa, mueve, suelta;
    vista.AlPulsar = [&](int16_t b, int16_t sh, float x, float y) {
        pulsa.push_back({b, sh, x, y});
    };
    vista.AlMover = [&](int16_t b, int16_t sh, float x, float y) {
        mueve.push_back({b, sh, x, y});
    };
    vista.AlSoltar = [&](int16_t b, int16_t sh, float x, float y) {
        suelta.push_back({b, sh, x, y});
    };

    QTest::mousePress(&vista, Qt::LeftButton, Qt::ShiftModifier, QPoint(12, 34));
    QTest::mouseMove(&vista, QPoint(50, 60));
    QTest::mouseRelease(&vista, Qt::LeftButton, Qt::NoModifier, QPoint(51, 61));
    QTest::mousePress(&vista, Qt::RightButton, Qt::ControlModifier, QPoint(100, 101));
    QTest::mouseRelease(&vista, Qt::RightButton, Qt::NoModifier, QPoint(100, 101));
    QTest::mousePress(&vista, Qt::MiddleButton, Qt::AltModifier | Qt::ShiftModifier, QPoint(3, 4));
    QTest::mouseRelease(&vista, Qt::MiddleButton, Qt::NoModifier, QPoint(3, 4));

    ASSERT_EQ(pulsa.size(), 3u);
    EXPECT_EQ(pulsa[0].boton, 1);
    EXPECT_EQ(pulsa[0].shift, 1);
    EXPECT_FLOAT_EQ(pulsa[0].x, 12.0f);
    EXPECT_FLOAT_EQ(pulsa[0].y, 34.0f);
    EXPECT_EQ(pulsa[1].boton, 2);
    EXPECT_EQ(pulsa[1].shift, 2);
    EXPECT_EQ(pulsa[2].boton, 4);
    EXPECT_EQ(pulsa[2].shift, 5);
    ASSERT_FALSE(mueve.empty());
    EXPECT_EQ(mueve.back().boton, 1); // the left button is held
    EXPECT_FLOAT_EQ(mueve.back().x, 50.0f);
    EXPECT_FLOAT_EQ(mueve.back().y, 60.0f);
    ASSERT_EQ(suelta.size(), 3u);
    EXPECT_EQ(suelta[0].boton, 1);
    EXPECT_FLOAT_EQ(suelta[0].x, 51.0f);
    EXPECT_EQ(suelta[1].boton, 2);
}
