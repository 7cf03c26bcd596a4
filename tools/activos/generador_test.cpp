// The generator's parts: the composition of the button images, the clips'
// sound, the text, and a whole run that must give back the assets committed
// (which also guards the randomness and noise every picture is drawn from).
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>
#include <cmath>
#include <sstream>
#include <vector>

#include "ComparaImagenes.h"
#include "Escritura.h"
#include "Iconos.h"
#include "Letras.h"
#include "Muestras.h"
#include "Sonidos.h"

namespace {

const QString Carpeta = QStringLiteral(TESELARI_CARPETA_ACTIVOS);

QByteArray LeeBytes(const QString &ruta) {
    QFile f(ruta);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

// Text is drawn from the font files, but an application without a display
// keeps Qt's font machinery quiet.
void AseguraAplicacion() {
    static int argc = 1;
    static char nombre[] = "teselari_activos_tests";
    static char *argv[] = {nombre, nullptr};
    if (QGuiApplication::instance() == nullptr) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        static QGuiApplication app(argc, argv);
    }
}

} // namespace

// --- composing a button image ---

namespace {

QImage Cuadrado(int x0, int y0, int lado, QRgb color) {
    QImage c(LadoIcono, LadoIcono, QImage::Format_ARGB32);
    c.fill(Qt::transparent);
    for (int y = y0; y < y0 + lado; ++y) {
        for (int x = x0; x < x0 + lado; ++x) {
            c.setPixel(x, y, color);
        }
    }
    return c;
}

} // namespace

TEST(ComponeIcono, LaCapaDeArribaEchaSombraSobreLaDeAbajo) {
    const QImage abajo = Cuadrado(2, 2, 40, 0xFFFFFF00);
    const QImage arriba = Cuadrado(10, 10, 10, 0xFFFF0000);
    const QImage img = ComponeIcono({abajo, arriba}, {});
    EXPECT_EQ(img.pixel(15, 15), 0xFFFF0000);
    EXPECT_EQ(img.pixel(22, 22), ColorSombra) << "on the yellow layer";
    EXPECT_EQ(img.pixel(30, 30), 0xFFFFFF00);
    EXPECT_EQ(img.pixel(44, 44), ColorSombra) << "the lower layer's own shadow";
    EXPECT_EQ(img.pixel(1, 1), ColorPanel);
}

TEST(ComponeIcono, NadaMasTomaElColorExactoDeLaSombra) {
    // A layer drawn in the shadow's very colour, and a faint edge over a
    // shadow: neither may pass for shadow nor stain it.
    QImage capa = Cuadrado(5, 5, 10, ColorSombra);
    capa.setPixel(16, 16, qRgba(255, 255, 255, 60));
    const QImage img = ComponeIcono({capa}, {});
    EXPECT_NE(img.pixel(8, 8), ColorSombra);
    EXPECT_EQ(img.pixel(16, 16), ColorSombra);
    EXPECT_EQ(img.pixel(17, 17), ColorSombra);
}

// --- the clips ---

TEST(Sonidos, ElRechazoEsGraveYElGolpeEsBreve) {
    // The refusal: a low tone, by its zero crossings.
    const std::vector<double> r = SintetizaClip(9);
    int cruces = 0;
    for (size_t i = 1; i < r.size(); ++i) {
        cruces += (r[i - 1] < 0) != (r[i] < 0) ? 1 : 0;
    }
    const double hz = cruces / 2.0 / (static_cast<double>(r.size()) / 8000.0);
    EXPECT_GT(hz, 80);
    EXPECT_LT(hz, 400);
    // The piece placed: its energy lies at the start.
    const std::vector<double> g = SintetizaClip(6);
    double primera = 0, total = 0;
    for (size_t i = 0; i < g.size(); ++i) {
        total += g[i] * g[i];
        primera += i < g.size() / 3 ? g[i] * g[i] : 0;
    }
    EXPECT_GT(primera / total, 0.85);
}

// --- a whole run ---

TEST(Escritura, UnaPasadaDevuelveLosActivosGuardados) {
    AseguraAplicacion();
    QTemporaryDir tmp;
    ASSERT_TRUE(tmp.isValid());
    std::ostringstream informe;
    ASSERT_TRUE(EscribeActivos(tmp.path(), false, informe));
    EXPECT_EQ(informe.str().find("FAILED"), std::string::npos);
    for (const char *png :
         {"botones.png", "cronometro.png", "cursores/manoblanca.png", "cursores/manoindice.png",
          "cursores/manoroja.png", "cursores/manoverde.png"}) {
        SCOPED_TRACE(png);
        const QImage nueva(tmp.path() + "/" + png);
        const QImage guardada(Carpeta + "/" + png);
        ASSERT_FALSE(nueva.isNull());
        EXPECT_TRUE(CasiIguales(nueva, guardada));
    }
    for (int clip = 1; clip <= NumeroClips; ++clip) {
        const QString f = QString("/sonidos/%1.wav").arg(clip);
        EXPECT_EQ(LeeBytes(tmp.path() + f), LeeBytes(Carpeta + f)) << clip;
    }
    EXPECT_FALSE(QFile::exists(tmp.path() + "/muestras/CASA.JPG"));
}

// Each sample picture as drawn now against the file committed, decoded: no
// encoder runs here, so the check holds whatever the image library's
// version. Drawn after another asset, so that nothing carried over from
// earlier drawing may change it. One test each, to run side by side.
class MuestraGuardada : public testing::TestWithParam<size_t> {};

TEST_P(MuestraGuardada, SaleComoLaGuardada) {
    AseguraAplicacion();
    const Muestra &m = ListaMuestras()[GetParam()];
    GeneraTiraBotones();
    const QImage guardada(Carpeta + "/muestras/" + m.Nombre);
    ASSERT_FALSE(guardada.isNull());
    const QImage nueva = m.Genera();
    if (m.Nombre.endsWith(".BMP")) {
        EXPECT_TRUE(CasiIguales(nueva, guardada));
    } else {
        EXPECT_TRUE(ParecidasPorBloques(nueva, guardada, 8));
    }
}

INSTANTIATE_TEST_SUITE_P(
    Escritura, MuestraGuardada, testing::Range<size_t>(0, 9),
    [](const testing::TestParamInfo<size_t> &i) {
        return ListaMuestras()[i.param].Nombre.section('.', 0, 0).toStdString();
    });

// --- text, pointers, chronometer and the two dialog images ---

TEST(Letras, ElTextoTieneFormaYCreceConSusLetras) {
    AseguraAplicacion();
    const QPainterPath uno = TextoEnCamino("1", {0, 100}, 100, Letra::SansNegrita);
    const QPainterPath once = TextoEnCamino("11", {0, 100}, 100, Letra::SansNegrita);
    ASSERT_FALSE(uno.isEmpty());
    EXPECT_GT(once.boundingRect().width(), uno.boundingRect().width() * 1.8);
    EXPECT_LE(uno.boundingRect().bottom(), 101.0) << "it stands on its baseline";
    EXPECT_GT(uno.boundingRect().height(), 60.0);
    EXPECT_EQ(TextoEnCamino("", {0, 0}, 20, Letra::Sans).elementCount(), 0);
    // Centred: the ink lies inside the box, on both sides of its middle.
    QImage img(80, 40, QImage::Format_RGB32);
    img.fill(Qt::white);
    QPainter p(&img);
    PintaTextoCentrado(p, QRectF(20, 10, 40, 20), "12", 16, Letra::SerifNegrita, Qt::black);
    p.end();
    int izquierda = 0, derecha = 0, fuera = 0;
    for (int y = 0; y < 40; ++y) {
        for (int x = 0; x < 80; ++x) {
            if (qRed(img.pixel(x, y)) < 128) {
                const bool dentro = x >= 20 && x < 60 && y >= 10 && y < 30;
                fuera += dentro ? 0 : 1;
                (x < 40 ? izquierda : derecha) += 1;
            }
        }
    }
    EXPECT_EQ(fuera, 0);
    EXPECT_GT(izquierda, 10);
    EXPECT_GT(derecha, 10);
}
