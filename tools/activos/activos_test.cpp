// The generated assets as the game reads them: the strip and its shadows,
// the chronometer face, the hand pointers, the sound clips and the sample
// pictures; and the generator draws the same assets as those committed.
#include <gtest/gtest.h>

#include <QFile>
#include <QImage>
#include <QtEndian>
#include <cmath>
#include <vector>

#include "Cronometro.h"
#include "Cursores.h"
#include "Iconos.h"
#include "Muestras.h"
#include "Sonidos.h"

namespace {

const QString Carpeta = QStringLiteral(TESELARI_CARPETA_ACTIVOS);

QImage Lee(const QString &ruta) {
    return QImage(Carpeta + "/" + ruta);
}

QByteArray LeeBytes(const QString &ruta) {
    QFile f(Carpeta + "/" + ruta);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

bool EsSombra(const QImage &img, int x, int y) {
    return (img.pixel(x, y) & 0xFFFFFF) == (ColorSombra & 0xFFFFFF);
}

// A pressed button as the game draws it: cleared to grey, the image two
// pixels further, then every seed filled over the shadow colour
// (4-connected, the surface's own colour).
QImage BotonPulsado(const QImage &tira, int boton) {
    QImage b(56, 56, QImage::Format_RGB32);
    b.fill(ColorPanel);
    for (int y = 0; y < LadoIcono; ++y) {
        for (int x = 0; x < LadoIcono; ++x) {
            b.setPixel(x + 5, y + 5, tira.pixel(XIcono(boton) + x, 1 + y));
        }
    }
    for (const QPoint &s : SemillasBoton(boton)) {
        std::vector<QPoint> pila{s};
        while (!pila.empty()) {
            const QPoint p = pila.back();
            pila.pop_back();
            if (!b.rect().contains(p) || !EsSombra(b, p.x(), p.y())) {
                continue;
            }
            b.setPixel(p, ColorPanel);
            pila.insert(pila.end(),
                        {p + QPoint(1, 0), p - QPoint(1, 0), p + QPoint(0, 1), p - QPoint(0, 1)});
        }
    }
    return b;
}

int CuentaSombra(const QImage &img, const QRect &r) {
    int n = 0;
    for (int y = r.top(); y <= r.bottom(); ++y) {
        for (int x = r.left(); x <= r.right(); ++x) {
            n += EsSombra(img, x, y) ? 1 : 0;
        }
    }
    return n;
}

} // namespace

// --- the strip ---

TEST(TiraBotones, CadaImagenTieneDibujoYSombraEnSuCuadro) {
    const QImage t = Lee("botones.png");
    ASSERT_EQ(t.size(), QSize(AnchoTira, AltoTira));
    EXPECT_LE(XIcono(NumeroIconos) + LadoIcono, AnchoTira);
    for (int i = 1; i <= NumeroIconos; ++i) {
        SCOPED_TRACE(i);
        const QRect cuadro(XIcono(i), 1, LadoIcono, LadoIcono);
        int distintos = 0;
        for (int y = cuadro.top(); y <= cuadro.bottom(); ++y) {
            for (int x = cuadro.left(); x <= cuadro.right(); ++x) {
                distintos += (t.pixel(x, y) | 0xFF000000) != ColorPanel ? 1 : 0;
            }
        }
        EXPECT_GT(distintos, 48 * 48 / 4) << "the image is drawn";
        EXPECT_GT(CuentaSombra(t, cuadro), 40) << "it has a shadow";
        // The column between two images and the top and bottom rows are grey.
        for (int y = 0; y < AltoTira; ++y) {
            EXPECT_EQ(t.pixel(XIcono(i) - 1, y) | 0xFF000000, ColorPanel);
        }
        EXPECT_EQ(t.pixel(XIcono(i) + 10, 0) | 0xFF000000, ColorPanel);
        EXPECT_EQ(t.pixel(XIcono(i) + 10, 49) | 0xFF000000, ColorPanel);
    }
}

// Each seed falls in its image's shadow, and the fill from the seeds, as
// the game draws a pressed button, leaves no shadow anywhere.
TEST(TiraBotones, CadaSemillaCaeEnLaSombraDeSuImagen) {
    const QImage t = Lee("botones.png");
    ASSERT_FALSE(t.isNull());
    for (int i = 1; i <= 11; ++i) {
        for (const QPoint &s : SemillasBoton(i)) {
            // Control coordinates of the pressed button: the image at (5, 5).
            const int x = XIcono(i) + s.x() - 5, y = 1 + s.y() - 5;
            EXPECT_TRUE(EsSombra(t, x, y)) << "button " << i << " seed " << s.x() << "," << s.y();
        }
        const QImage b = BotonPulsado(t, i);
        EXPECT_EQ(CuentaSombra(b, b.rect()), 0) << "button " << i;
    }
}

// --- the chronometer ---

// The border, the green and the red key, and the sunken field of the digits.
TEST(Cronometro, CaraGrisConTeclasYCampo) {
    const QImage c = Lee("cronometro.png");
    ASSERT_FALSE(c.isNull());
    EXPECT_EQ(c.size(), QSize(AnchoCronometro, AltoCronometro));
    const struct {
        int x, y;
        QRgb color;
    } puntos[] = {{0, 0, 0xFFFFFF},   {61, 38, 0x000000}, {15, 9, 0x008000}, {44, 9, 0xFF0000},
                  {30, 25, 0xC0C0C0}, {3, 25, 0x808080},  {57, 25, 0xFFFFFF}};
    for (const auto &p : puntos) {
        EXPECT_EQ(c.pixel(p.x, p.y) & 0xFFFFFF, p.color) << p.x << "," << p.y;
    }
}

// --- the pointers ---

TEST(Cursores, ManosConLaPuntaDelIndiceEnElPuntoActivo) {
    for (const char *nombre : {"manoblanca", "manoindice", "manoroja", "manoverde"}) {
        SCOPED_TRACE(nombre);
        const QImage c = Lee(QString("cursores/%1.png").arg(nombre));
        ASSERT_FALSE(c.isNull());
        EXPECT_EQ(c.size(), QSize(LadoCursor, LadoCursor));
        EXPECT_TRUE(c.hasAlphaChannel());
        EXPECT_EQ(qAlpha(c.pixel(PuntoActivoCursor)), 255);
        EXPECT_EQ(qAlpha(c.pixel(0, 0)), 0);
        // Nothing above the fingertip: it is the top of the hand there.
        EXPECT_EQ(qAlpha(c.pixel(12, 0)), 0);
        // The blue cuff at the wrist.
        const QRgb puno = c.pixel(18, 29);
        EXPECT_GT(qBlue(puno), 150);
        EXPECT_LT(qRed(puno), 60);
    }
    // Above the knuckles, right of the index finger: fingers in the open
    // hand only.
    const QImage abierta = Lee("cursores/manoblanca.png"), indice = Lee("cursores/manoindice.png");
    int enAbierta = 0, enIndice = 0;
    for (int y = 2; y < 9; ++y) {
        for (int x = 16; x < 30; ++x) {
            enAbierta += qAlpha(abierta.pixel(x, y)) > 0 ? 1 : 0;
            enIndice += qAlpha(indice.pixel(x, y)) > 0 ? 1 : 0;
        }
    }
    EXPECT_GT(enAbierta, 20);
    EXPECT_EQ(enIndice, 0);
}

// --- the sounds ---

TEST(Sonidos, CadaClipEsUnWaveConSuMedida) {
    for (int clip = 1; clip <= NumeroClips; ++clip) {
        SCOPED_TRACE(clip);
        const MedidaClip medida = MedidaDeClip(clip);
        const QByteArray w = LeeBytes(QString("sonidos/%1.wav").arg(clip));
        ASSERT_GE(w.size(), 44);
        const auto u16 = [&](int o) { return qFromLittleEndian<quint16>(w.constData() + o); };
        const auto u32 = [&](int o) { return qFromLittleEndian<quint32>(w.constData() + o); };
        EXPECT_EQ(w.left(4), "RIFF");
        EXPECT_EQ(u32(4), static_cast<quint32>(w.size() - 8));
        EXPECT_EQ(w.mid(8, 4), "WAVE");
        EXPECT_EQ(w.mid(12, 4), "fmt ");
        EXPECT_EQ(u32(16), 16u);
        EXPECT_EQ(u16(20), 1); // PCM
        EXPECT_EQ(u16(22), 1); // mono
        EXPECT_EQ(u32(24), static_cast<quint32>(medida.Frecuencia));
        EXPECT_EQ(u32(28), static_cast<quint32>(medida.Frecuencia));
        EXPECT_EQ(u16(32), 1);
        EXPECT_EQ(u16(34), 8);
        EXPECT_EQ(w.mid(36, 4), "data");
        const int n = static_cast<int>(u32(40));
        EXPECT_EQ(n, medida.Bytes);
        EXPECT_EQ(w.size(), 44 + n + n % 2);
        // No clipping, silence at both ends, and a real sound in between.
        int pico = 0;
        for (int i = 0; i < n; ++i) {
            const int v = static_cast<unsigned char>(w[44 + i]);
            EXPECT_GT(v, 0);
            EXPECT_LT(v, 255);
            pico = std::max(pico, std::abs(v - 128));
        }
        EXPECT_LE(std::abs(static_cast<unsigned char>(w[44]) - 128), 2);
        EXPECT_LE(std::abs(static_cast<unsigned char>(w[44 + n - 1]) - 128), 2);
        EXPECT_GT(pico, 30);
    }
    EXPECT_EQ(LeeBytes("sonidos/10.wav"), LeeBytes("sonidos/11.wav"));
    EXPECT_EQ(LeeBytes("sonidos/10.wav"), LeeBytes("sonidos/12.wav"));
    EXPECT_NE(LeeBytes("sonidos/1.wav"), LeeBytes("sonidos/2.wav"));
}

// --- the sample pictures ---

// The smallest colour variance over the cells of a 20 x 20 grid.
double VarianzaMinima(const QImage &img) {
    double minima = 1e18;
    const int cw = img.width() / 20, ch = img.height() / 20;
    for (int f = 0; f < 20; ++f) {
        for (int k = 0; k < 20; ++k) {
            double s[3] = {0, 0, 0}, s2[3] = {0, 0, 0};
            for (int y = f * ch; y < (f + 1) * ch; ++y) {
                for (int x = k * cw; x < (k + 1) * cw; ++x) {
                    const QRgb c = img.pixel(x, y);
                    const int v[3] = {qRed(c), qGreen(c), qBlue(c)};
                    for (int i = 0; i < 3; ++i) {
                        s[i] += v[i];
                        s2[i] += v[i] * v[i];
                    }
                }
            }
            const double n = cw * ch;
            double var = 0;
            for (int i = 0; i < 3; ++i) {
                var += s2[i] / n - (s[i] / n) * (s[i] / n);
            }
            minima = std::min(minima, var);
        }
    }
    return minima;
}

// The least variance a cell must have. The sample pictures measure from
// about 30 (a cell of hazy sky) to several hundred; a flat picture with the
// grain alone, once a JPEG, measures about half the bound.
constexpr double CotaDetalle = 25.0;

TEST(Muestras, CadaImagenSeLeeYTieneDetalleEnTodaParte) {
    ASSERT_FALSE(ListaMuestras().empty());
    for (const Muestra &m : ListaMuestras()) {
        SCOPED_TRACE(m.Nombre.toStdString());
        const QImage img = Lee("muestras/" + m.Nombre);
        ASSERT_FALSE(img.isNull());
        EXPECT_GE(img.width(), 640);
        EXPECT_LE(img.width(), 1024);
        EXPECT_GE(img.height(), 480);
        EXPECT_LE(img.height(), 768);
        EXPECT_GT(VarianzaMinima(img), CotaDetalle);
        if (m.Nombre.endsWith(".BMP")) {
            const QByteArray bmp = LeeBytes("muestras/" + m.Nombre);
            EXPECT_EQ(qFromLittleEndian<quint16>(bmp.constData() + 28), 24) << "bits per pixel";
        }
    }
}
