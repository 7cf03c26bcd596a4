// The strip of the customisation dialog: its size, what stands in each box
// that the dialog copies out, the grey around the arrow triangles that the
// steppers' hit test relies on, and that the generator draws the file
// committed.
#include <gtest/gtest.h>

#include <QImage>
#include <QSet>
#include <vector>

#include "Iconos.h"
#include "Varios.h"

namespace {

const QString Carpeta = QStringLiteral(TESELARI_CARPETA_ACTIVOS);

QImage Guardada() {
    return QImage(Carpeta + "/varios.png").convertToFormat(QImage::Format_RGB32);
}

bool Gris(const QImage &img, int x, int y) {
    return (img.pixel(x, y) & 0xFFFFFF) == (ColorPanel & 0xFFFFFF);
}

int Brillo(QRgb c) {
    return qRed(c) + qGreen(c) + qBlue(c);
}

// Every box the dialog copies from, in strip coordinates.
std::vector<QRect> Cajas() {
    std::vector<QRect> cajas;
    for (int i = 0; i < 6; ++i) {
        cajas.push_back(CeldaForma(i));
    }
    for (int x : {XSubeArriba, XBajaArriba, XSubePulsada, XBajaPulsada}) {
        cajas.emplace_back(x, 1, AnchoFlecha, AltoFlecha);
    }
    for (int x : {XTeclaArriba, XTeclaPulsada}) {
        cajas.emplace_back(x, 1, AnchoTecla, AltoTecla);
    }
    return cajas;
}

TEST(TiraVarios, MideLoQueElDialogoCopiaYEsLaGuardada) {
    const QImage t = Guardada();
    ASSERT_FALSE(t.isNull());
    EXPECT_EQ(t.size(), QSize(318, 24));
    EXPECT_EQ(GeneraTiraVarios(), t);
    EXPECT_EQ(GeneraTiraVarios(), GeneraTiraVarios());
    for (const QRect &c : Cajas()) {
        EXPECT_TRUE(t.rect().contains(c)) << c.x();
    }
}

// Outside the boxes there is only the panel grey.
TEST(TiraVarios, FueraDeLasCajasSoloGris) {
    const QImage t = GeneraTiraVarios();
    const std::vector<QRect> cajas = Cajas();
    int fuera = 0;
    for (int y = 0; y < t.height(); ++y) {
        for (int x = 0; x < t.width(); ++x) {
            bool dentro = false;
            for (const QRect &c : cajas) {
                dentro = dentro || c.contains(x, y);
            }
            if (!dentro) {
                ++fuera;
                EXPECT_TRUE(Gris(t, x, y)) << x << "," << y;
            }
        }
    }
    EXPECT_GT(fuera, 0);
}

struct CasoFlecha {
    int x;
    bool sube;
};

class Flechas : public ::testing::TestWithParam<CasoFlecha> {};

// The triangle: never grey inside, exactly grey in the corners around it,
// two pixels wide at its tip and the whole width at its base.
TEST_P(Flechas, TrianguloSobreElGrisDelPanel) {
    const CasoFlecha c = GetParam();
    const QImage t = GeneraTiraVarios();
    int dentro = 0;
    for (int y = 0; y < AltoFlecha; ++y) {
        int fila = 0;
        for (int x = 0; x < AnchoFlecha; ++x) {
            const bool en = DentroFlecha(c.sube, x, y);
            EXPECT_NE(Gris(t, c.x + x, 1 + y), en) << x << "," << y;
            fila += en ? 1 : 0;
        }
        const int punta = c.sube ? 0 : AltoFlecha - 1;
        const int base = AltoFlecha - 1 - punta;
        if (y == punta) {
            EXPECT_EQ(fila, 2);
        }
        if (y == base) {
            EXPECT_EQ(fila, AnchoFlecha);
        }
        dentro += fila;
    }
    EXPECT_GT(dentro, AnchoFlecha * AltoFlecha / 3);
    // The two corners beside the tip are grey.
    const int yp = c.sube ? 1 : AltoFlecha;
    EXPECT_TRUE(Gris(t, c.x, yp));
    EXPECT_TRUE(Gris(t, c.x + AnchoFlecha - 1, yp));
}

INSTANTIATE_TEST_SUITE_P(Varios, Flechas,
                         ::testing::Values(CasoFlecha{XSubeArriba, true},
                                           CasoFlecha{XBajaArriba, false},
                                           CasoFlecha{XSubePulsada, true},
                                           CasoFlecha{XBajaPulsada, false}));

// Raised and pressed differ, and the light falls the other way when pressed.
TEST(TiraVarios, PulsadoSeVeHundido) {
    const QImage t = GeneraTiraVarios();
    const struct {
        int arriba, pulsada, ancho, alto;
    } pares[] = {{XSubeArriba, XSubePulsada, AnchoFlecha, AltoFlecha},
                 {XBajaArriba, XBajaPulsada, AnchoFlecha, AltoFlecha},
                 {XTeclaArriba, XTeclaPulsada, AnchoTecla, AltoTecla}};
    for (const auto &p : pares) {
        EXPECT_NE(t.copy(p.arriba, 1, p.ancho, p.alto), t.copy(p.pulsada, 1, p.ancho, p.alto));
    }
    // The key: the top left edge lighter than the bottom right one when up.
    const auto luz = [&t](int x0) {
        return Brillo(t.pixel(x0, 1)) - Brillo(t.pixel(x0 + AnchoTecla - 1, AltoTecla));
    };
    EXPECT_GT(luz(XTeclaArriba), 0);
    EXPECT_LT(luz(XTeclaPulsada), 0);
}

bool Rojo(QRgb c) {
    return qRed(c) > 150 && qGreen(c) < 90 && qBlue(c) < 90;
}

// Each icon fills its cell; a figure stands at the centre of the field in
// icons 2 to 5 only; the piece of icon 1 leaves the corners of its cell to
// the box's yellow; the six are all different.
TEST(TiraVarios, IconosDeLasFormasEnSusCeldas) {
    const QImage t = GeneraTiraVarios();
    QSet<QByteArray> distintos;
    for (int i = 0; i < 6; ++i) {
        SCOPED_TRACE(i);
        const QRect c = CeldaForma(i);
        int rojos = 0;
        for (int y = c.top(); y <= c.bottom(); ++y) {
            for (int x = c.left(); x <= c.right(); ++x) {
                EXPECT_FALSE(Gris(t, x, y)) << x << "," << y;
                rojos += Rojo(t.pixel(x, y)) ? 1 : 0;
            }
        }
        const QPoint centro = c.center();
        EXPECT_EQ(Rojo(t.pixel(centro)), i >= 2);
        EXPECT_EQ(rojos > 0, i >= 2);
        const bool esquinaAmarilla = t.pixel(c.left() + 2, c.top() + 2) == 0xFFFFFF00;
        EXPECT_EQ(esquinaAmarilla, i == 1);
        const QImage icono = t.copy(c);
        distintos.insert(QByteArray(reinterpret_cast<const char *>(icono.constBits()),
                                    static_cast<int>(icono.sizeInBytes())));
    }
    EXPECT_EQ(distintos.size(), 6);
}

} // namespace
