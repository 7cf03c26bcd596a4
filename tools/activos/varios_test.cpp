// The strip of the customisation dialog: its size, what stands in each box
// that the dialog copies out, the grey around the arrow triangles that the
// steppers' hit test relies on, and that the generator draws the file
// committed (so the checks below read the committed file).
#include <gtest/gtest.h>

#include <QImage>
#include <QSet>

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

TEST(TiraVarios, MideLoQueElDialogoCopiaYEsLaGuardada) {
    const QImage t = Guardada();
    ASSERT_FALSE(t.isNull());
    EXPECT_EQ(t.size(), QSize(318, 24));
    EXPECT_EQ(GeneraTiraVarios(), t);
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
    const QImage t = Guardada();
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

// Each icon of the shapes fills its cell, and the six differ.
TEST(TiraVarios, IconosDeLasFormasEnSusCeldas) {
    const QImage t = Guardada();
    QSet<QByteArray> distintos;
    for (int i = 0; i < 6; ++i) {
        const QRect c = CeldaForma(i);
        for (int y = c.top(); y <= c.bottom(); ++y) {
            for (int x = c.left(); x <= c.right(); ++x) {
                EXPECT_FALSE(Gris(t, x, y)) << i << ": " << x << "," << y;
            }
        }
        const QImage icono = t.copy(c);
        distintos.insert(QByteArray(reinterpret_cast<const char *>(icono.constBits()),
                                    static_cast<int>(icono.sizeInBytes())));
    }
    EXPECT_EQ(distintos.size(), 6);
}

} // namespace
