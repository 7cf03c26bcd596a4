// The splash's pictures and the game's icon: the sizes the splash copies,
// the black row that ends each picture and band, ink in every band, an icon
// that stands on transparency, and a run of the generator that gives back
// the files committed.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <sstream>

#include "CaretaArte.h"
#include "IconoJuego.h"
#include "comun_test.h"

namespace {

const QString Carpeta = QStringLiteral(TESELARI_CARPETA_ACTIVOS);

struct Banda {
    const char *fichero;
    int ancho, alto; // of the whole picture
    int arriba, filas;
};

// The logo, the icon and the three bands of the text.
const Banda Bandas[] = {{"careta/logo.png", 96, 44, 0, 44},
                        {"careta/icono.png", 32, 32, 0, 32},
                        {"careta/texto.png", 241, 87, 0, 49},
                        {"careta/texto.png", 241, 87, 49, 23},
                        {"careta/texto.png", 241, 87, 72, 15}};

TEST(ArteCareta, CadaBandaTieneTintaYAcabaEnUnaFilaNegra) {
    for (const Banda &b : Bandas) {
        SCOPED_TRACE(std::string(b.fichero) + " " + std::to_string(b.arriba));
        const QImage img = QImage(Carpeta + "/" + b.fichero).convertToFormat(QImage::Format_RGB32);
        ASSERT_EQ(img.size(), QSize(b.ancho, b.alto));
        const int ultima = b.arriba + b.filas - 1;
        int tinta = 0;
        for (int x = 0; x < img.width(); ++x) {
            EXPECT_EQ(img.pixel(x, ultima) & 0xFFFFFF, 0u) << x;
            for (int y = b.arriba; y < ultima; ++y) {
                tinta += (img.pixel(x, y) & 0xFFFFFF) != 0 ? 1 : 0;
            }
        }
        EXPECT_GT(tinta, img.width() * (b.filas - 1) / 8);
    }
}

TEST(ArteCareta, ElIconoSeAlzaSobreTransparenciaATodosLosTamanos) {
    for (int lado : LadosIcono()) {
        SCOPED_TRACE(lado);
        const QImage img = GeneraIcono(lado);
        ASSERT_EQ(img.size(), QSize(lado, lado));
        for (const QPoint &esquina :
             {QPoint(0, 0), QPoint(lado - 1, 0), QPoint(0, lado - 1), QPoint(lado - 1, lado - 1)}) {
            EXPECT_EQ(qAlpha(img.pixel(esquina)), 0);
        }
        EXPECT_TRUE(
            CasiIguales(img, QImage(Carpeta + QString("/iconos/teselari-%1.png").arg(lado))));
    }
}

TEST(ArteCareta, UnaPasadaDevuelveLosFicherosGuardados) {
    AseguraAplicacion();
    QTemporaryDir tmp;
    ASSERT_TRUE(tmp.isValid());
    std::ostringstream informe;
    ASSERT_TRUE(EscribeCaretaEIconos(QDir(tmp.path()), informe));
    for (const char *png : {"careta/logo.png", "careta/icono.png", "careta/texto.png"}) {
        EXPECT_TRUE(CasiIguales(QImage(tmp.path() + "/" + png), QImage(Carpeta + "/" + png)))
            << png;
    }
    QFile nuevo(tmp.path() + "/iconos/teselari.svg"), guardado(Carpeta + "/iconos/teselari.svg");
    ASSERT_TRUE(nuevo.open(QIODevice::ReadOnly) && guardado.open(QIODevice::ReadOnly));
    EXPECT_EQ(nuevo.readAll(), guardado.readAll());
}

} // namespace
