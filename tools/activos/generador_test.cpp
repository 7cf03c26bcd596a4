// A whole run of the generator must give back the assets committed, and each
// sample picture drawn now must look as the one committed: this guards the
// composition of the button images, the clips' sound, the text and the
// randomness and noise every picture is drawn from.
#include <gtest/gtest.h>

#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <sstream>

#include "Escritura.h"
#include "Iconos.h"
#include "Muestras.h"
#include "Sonidos.h"
#include "comun_test.h"

namespace {

const QString Carpeta = QStringLiteral(TESELARI_CARPETA_ACTIVOS);

QByteArray LeeBytes(const QString &ruta) {
    QFile f(ruta);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

} // namespace

// --- a whole run ---

TEST(Escritura, UnaPasadaDevuelveLosActivosGuardados) {
    AseguraAplicacion();
    QTemporaryDir tmp;
    ASSERT_TRUE(tmp.isValid());
    std::ostringstream informe;
    ASSERT_TRUE(EscribeActivos(tmp.path(), false, informe));
    EXPECT_EQ(informe.str().find("FAILED"), std::string::npos);
    for (const char *png : {"botones.png", "cronometro.png", "cursores/manoblanca.png",
                            "cursores/manoindice.png", "cursores/manoroja.png",
                            "cursores/manoverde.png", "libro/pagina.png", "libro/etiquetas.png"}) {
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
