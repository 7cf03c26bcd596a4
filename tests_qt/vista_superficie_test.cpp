// VistaSuperficie: the widget repaints at once what a drawing operation
// touched, and no more, grows with its surface, and turns mouse events into
// the game's button numbers (1 left, 2 right, 4 middle), key flags (1 shift,
// 2 control, 4 alt) and surface coordinates. That it shows the surface's own
// pixels where the state puts it is seen through the screen by the game's
// window tests.
#include <QEvent>
#include <QTest>
#include <gtest/gtest.h>
#include <tuple>
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

} // namespace

TEST(VistaSuperficie, RepintaEnElActoLoQueTocaUnDibujoYCreceConLaSuperficie) {
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
    // A surface the logic makes larger is seen whole.
    s.CambiaTamano(200, 100);
    s.CajaLlena(150, 50, 160, 60, 0x0000FF);
    EXPECT_EQ(vista.size(), QSize(200, 100));
}

TEST(VistaSuperficie, ElRatonLlegaConBotonesYCoordenadasDeLaSuperficie) {
    CuadroImagen s(200, 150);
    VistaSuperficie vista(s);
    vista.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&vista));
    // Each call as (kind, button, shift, x, y): p press, m move, s release.
    using L = std::tuple<char, int16_t, int16_t, float, float>;
    std::vector<L> llamadas;
    const auto apunta = [&](char tipo) {
        return [&llamadas, tipo](int16_t b, int16_t sh, float x, float y) {
            llamadas.emplace_back(tipo, b, sh, x, y);
        };
    };
    vista.AlPulsar = apunta('p');
    vista.AlMover = apunta('m');
    vista.AlSoltar = apunta('s');

    QTest::mousePress(&vista, Qt::LeftButton, Qt::ShiftModifier, QPoint(12, 34));
    QTest::mouseMove(&vista, QPoint(50, 60));
    QTest::mouseRelease(&vista, Qt::LeftButton, Qt::NoModifier, QPoint(51, 61));
    QTest::mousePress(&vista, Qt::RightButton, Qt::ControlModifier, QPoint(100, 101));
    QTest::mouseRelease(&vista, Qt::RightButton, Qt::NoModifier, QPoint(100, 101));
    QTest::mousePress(&vista, Qt::MiddleButton, Qt::AltModifier | Qt::ShiftModifier, QPoint(3, 4));
    QTest::mouseRelease(&vista, Qt::MiddleButton, Qt::NoModifier, QPoint(3, 4));

    // The held left button goes with the move.
    EXPECT_EQ(llamadas, (std::vector<L>{{'p', 1, 1, 12.0f, 34.0f},
                                        {'m', 1, 0, 50.0f, 60.0f},
                                        {'s', 1, 0, 51.0f, 61.0f},
                                        {'p', 2, 2, 100.0f, 101.0f},
                                        {'s', 2, 0, 100.0f, 101.0f},
                                        {'p', 4, 5, 3.0f, 4.0f},
                                        {'s', 4, 0, 3.0f, 4.0f}}));
}
