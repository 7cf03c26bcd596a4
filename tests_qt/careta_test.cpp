// The splash on the screen: a black window over the whole screen with the
// panel in its middle, the viewport showing the form's frames where the
// panel's layout puts it, and a key that ends it.
#include <QApplication>
#include <QGuiApplication>
#include <QImage>
#include <QScreen>
#include <QTest>
#include <gtest/gtest.h>

#include "core/Plataforma.h"
#include "core/PuzzGbl.h"
#include "plataforma_prueba.h"
#include "qt/VentanaCareta.h"
#include "qt/VistaSuperficie.h"

using namespace PuzzGbl;

namespace {

VentanaCareta *enCurso = nullptr;
int32_t fotogramas = 0;
QImage vista;
std::vector<uint32_t> viewport;

// At the 40th frame: what the screen shows and what the form holds, then a
// key.
void CedeEnCareta() {
    QCoreApplication::processEvents();
    if (++fotogramas == 40) {
        vista = QGuiApplication::primaryScreen()
                    ->grabWindow(enCurso->winId())
                    .toImage()
                    .convertToFormat(QImage::Format_RGB32);
        viewport = enCurso->Form().Pic_Careta.Pixeles();
        QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_A);
    }
}

TEST(VentanaCareta, NegraSobreLaPantallaConElPanelEnMedioYUnaTeclaLaTermina) {
    RestauraValoresIniciales();
    Velocidad = 100;
    ServiciosPlataforma s;
    s.Eventos = CedeEnCareta;
    PonEscritorio(s);
    VentanaCareta careta;
    enCurso = &careta;
    MuestraCareta(careta);
    enCurso = nullptr;
    PonEscritorio({});

    EXPECT_EQ(fotogramas, 40);
    EXPECT_TRUE(careta.Form().Cerrada());
    const QRect pantalla = QGuiApplication::primaryScreen()->geometry();
    EXPECT_EQ(careta.geometry(), pantalla);
    ASSERT_EQ(vista.size(), pantalla.size());
    // The panel centred, its border light; black all round it.
    const QPoint panel((pantalla.width() - 323) / 2, (pantalla.height() - 209) / 2);
    EXPECT_EQ(careta.Pic_Todos->geometry(), QRect(panel, QSize(323, 209)));
    EXPECT_EQ(vista.pixel(panel) & 0xFFFFFF, 0xC0C0C0u);
    EXPECT_EQ(vista.pixel(panel + QPoint(322, 208)) & 0xFFFFFF, 0xC0C0C0u);
    for (const QPoint &p : {QPoint(0, 0), panel - QPoint(1, 1), QPoint(pantalla.width() - 1, 5)}) {
        EXPECT_EQ(vista.pixel(p) & 0xFFFFFF, 0u) << p.x() << "," << p.y();
    }
    // The viewport on the screen is the form's, pixel for pixel, and it has
    // something drawn in it by now.
    const QPoint origen = panel + QPoint(16, 30);
    int distintos = 0, tinta = 0;
    for (int y = 0; y < 150; ++y) {
        for (int x = 0; x < 287; ++x) {
            const uint32_t debido = viewport[static_cast<size_t>(y) * 287 + x] & 0xFFFFFF;
            distintos += (vista.pixel(origen + QPoint(x, y)) & 0xFFFFFF) != debido ? 1 : 0;
            tinta += debido != 0 ? 1 : 0;
        }
    }
    EXPECT_EQ(distintos, 0);
    EXPECT_GT(tinta, 500);
    RestauraValoresIniciales();
}

} // namespace
