// The picture loader on the committed sample files of every kind, and on a
// corpus of damaged ones made from them: each good file reads at the size
// it states with its four coloured quarters, each bad one ends as a plain
// white 320 x 240 or as a refusal for its size, never as stray pixels.
#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QtEndian>
#include <algorithm>
#include <cstring>
#include <functional>
#include <gtest/gtest.h>
#include <random>

#include "dialog/GuardaBmp.h"
#include "qt/CargaImagenQt.h"
#include "qt/Decodificadores.h"
#include "raster/Superficie.h"
#include "raster_referencia.h"

namespace {

QString RutaMuestra(const char *nombre) {
    return QStringLiteral(TESELARI_CARPETA_IMAGENES "/") + QString::fromLatin1(nombre);
}

QByteArray LeeMuestra(const char *nombre) {
    QFile f(RutaMuestra(nombre));
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

bool HayDecodificadorDe(const char *nombre) {
    const QByteArray n(nombre);
    return (!n.endsWith(".wmf") || HayDecodificadorWmf()) &&
           (!n.endsWith(".emf") || HayDecodificadorEmf());
}

bool ParecidoA(Color c, Color esperado, int tolerancia) {
    for (int desplazamiento : {0, 8, 16}) {
        const int a = static_cast<int>((c >> desplazamiento) & 0xFF);
        const int b = static_cast<int>((esperado >> desplazamiento) & 0xFF);
        if (std::abs(a - b) > tolerancia) {
            return false;
        }
    }
    return true;
}

// A file of those bytes in the folder; its path.
std::string Escribe(const QTemporaryDir &carpeta, const char *nombre, const QByteArray &bytes) {
    const QString ruta = carpeta.filePath(QString::fromLatin1(nombre));
    QFile f(ruta);
    EXPECT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(bytes);
    return ruta.toStdString();
}

template <typename Caso> std::string NombreDeCaso(const testing::TestParamInfo<Caso> &caso) {
    std::string n = caso.param.nombre;
    for (char &c : n) {
        c = std::isalnum(static_cast<unsigned char>(c)) ? c : '_';
    }
    return n;
}

bool TodoBlanco(const Superficie &s) {
    return referencia::Cuenta(s, COLOR_BLANCO) == s.Ancho() * s.Alto();
}

// The four quarters red, green, blue and white, at their centres and, with
// `bordes`, also at the corners and beside the middle.
void CompruebaCuartos(const Superficie &s, int tolerancia, bool bordes) {
    const int w = s.Ancho(), h = s.Alto();
    const struct {
        int x, y;
        Color color;
    } puntos[] = {{w / 4, h / 4, RGB(255, 0, 0)},
                  {3 * w / 4, h / 4, RGB(0, 255, 0)},
                  {w / 4, 3 * h / 4, RGB(0, 0, 255)},
                  {3 * w / 4, 3 * h / 4, COLOR_BLANCO},
                  {1, 1, RGB(255, 0, 0)},
                  {w - 2, h - 2, COLOR_BLANCO},
                  {w / 2 - 3, h / 2 + 2, RGB(0, 0, 255)},
                  {w / 2 + 2, h / 2 - 3, RGB(0, 255, 0)}};
    for (int i = 0; i < (bordes ? 8 : 4); ++i) {
        const auto &p = puntos[i];
        EXPECT_TRUE(ParecidoA(s.Point(p.x, p.y), p.color, tolerancia))
            << "at (" << p.x << ", " << p.y << "): " << std::hex << s.Point(p.x, p.y);
    }
}

template <typename T> QByteArray Pon(QByteArray b, qsizetype desde, T valor) {
    T v = valor;
    std::memcpy(b.data() + desde, &v, sizeof v);
    return b;
}

// A sample written under a name, perhaps changed on the way.
struct Muestra {
    const char *nombre, *muestra;
    int ancho, alto;
    int tolerancia; // per channel: the JPEG is lossy, the metafiles drawn
    QByteArray (*cambio)(QByteArray) = nullptr;
};

// Many writers leave a run-length bitmap's data length at 0.
QByteArray SinLargo(QByteArray b) {
    return Pon<uint32_t>(b, 34, 0);
}
// Bytes after a JPEG's end, as some cameras leave.
QByteArray ConCola(QByteArray b) {
    return b + QByteArray(100, '\0');
}

class MuestraBuena : public ::testing::TestWithParam<Muestra> {};

TEST_P(MuestraBuena, SeLeeConSuTamanoYSusCuatroCuartos) {
    const Muestra &m = GetParam();
    QTemporaryDir carpeta;
    const QByteArray bytes = LeeMuestra(m.muestra);
    Superficie s(5, 5, RGB(1, 2, 3));
    const CargaDeImagen carga =
        CargaImagenQt(Escribe(carpeta, m.nombre, m.cambio ? m.cambio(bytes) : bytes), s);
    if (!HayDecodificadorDe(m.muestra)) { // a build without the library: blank
        EXPECT_EQ(carga.Estado, EstadoCarga::EnBlanco);
        EXPECT_EQ(s.Ancho() * 1000 + s.Alto(), 320240);
        EXPECT_TRUE(TodoBlanco(s));
        return;
    }
    ASSERT_EQ(carga.Estado, EstadoCarga::Leida);
    EXPECT_EQ(carga.Ancho, m.ancho);
    EXPECT_EQ(carga.Alto, m.alto);
    ASSERT_EQ(s.Ancho(), m.ancho);
    ASSERT_EQ(s.Alto(), m.alto);
    CompruebaCuartos(s, m.tolerancia, true);
}

// The name doesn't choose the decoder: the content does.
INSTANTIATE_TEST_SUITE_P(
    Formatos, MuestraBuena,
    ::testing::Values(Muestra{"cuartos24.bmp", "cuartos24.bmp", 40, 30, 0},
                      Muestra{"cuartos8.bmp", "cuartos8.bmp", 48, 36, 0},
                      Muestra{"cuartos_rle8.bmp", "cuartos_rle8.bmp", 50, 34, 0},
                      Muestra{"cuartos_rle4.bmp", "cuartos_rle4.bmp", 46, 30, 0},
                      Muestra{"cuartos.rle", "cuartos.rle", 52, 40, 0},
                      Muestra{"cuartos.jpg", "cuartos.jpg", 64, 48, 40},
                      Muestra{"cuartos.wmf", "cuartos.wmf", 80, 60, 8},
                      Muestra{"poligonos.wmf", "poligonos.wmf", 88, 66, 8},
                      Muestra{"cuartos.emf", "cuartos.emf", 72, 54, 8},
                      Muestra{"bitmap.jpg", "cuartos24.bmp", 40, 30, 0},
                      Muestra{"foto.bmp", "cuartos.jpg", 64, 48, 40},
                      Muestra{"sin_extension", "cuartos_rle4.bmp", 46, 30, 0},
                      Muestra{"cola.jpg", "cuartos.jpg", 64, 48, 40, ConCola},
                      Muestra{"sin_largo_rle8.bmp", "cuartos_rle8.bmp", 50, 34, 0, SinLargo},
                      Muestra{"sin_largo_rle4.bmp", "cuartos_rle4.bmp", 46, 30, 0, SinLargo},
                      Muestra{"sin_largo.rle", "cuartos.rle", 52, 40, 0, SinLargo}),
    NombreDeCaso<Muestra>);

// --- The corpus of bad files ---

QByteArray Corta(const char *nombre, qsizetype bytes) {
    return LeeMuestra(nombre).left(bytes);
}

QByteArray Aleatorios(unsigned semilla, int bytes, const QByteArray &principio = {}) {
    std::mt19937 g(semilla);
    QByteArray b = principio;
    while (b.size() < bytes) {
        b.append(static_cast<char>(g() & 0xFF));
    }
    return b;
}

QByteArray PonAltaDe16(QByteArray b, qsizetype desde, uint16_t valor) {
    b[desde] = static_cast<char>(valor >> 8);
    b[desde + 1] = static_cast<char>(valor & 0xFF);
    return b;
}

// The JPEG with its frame header saying w x h.
QByteArray JpegDe(uint16_t ancho, uint16_t alto) {
    QByteArray b = LeeMuestra("cuartos.jpg");
    const qsizetype sof = b.indexOf("\xFF\xC0");
    return PonAltaDe16(PonAltaDe16(b, sof + 5, alto), sof + 7, ancho);
}

// The placeable metafile with a bounding box of w x h twips at 1440 a inch.
QByteArray WmfDe(int16_t ancho, int16_t alto, uint16_t porPulgada) {
    QByteArray b = LeeMuestra("cuartos.wmf");
    b = Pon<int16_t>(Pon<int16_t>(b, 10, ancho), 12, alto);
    b = Pon<uint16_t>(b, 14, porPulgada);
    uint16_t suma = 0;
    for (int i = 0; i < 10; ++i) {
        suma ^= qFromLittleEndian<uint16_t>(b.constData() + 2 * i);
    }
    return Pon<uint16_t>(b, 20, suma);
}

struct Danado {
    const char *nombre;
    std::function<QByteArray()> contenido;
    EstadoCarga estado; // EnBlanco, Desmesurada, or Leida for "either of both"
    int64_t ancho = 320, alto = 240;
};

const EstadoCarga CUALQUIERA = EstadoCarga::Leida;

const Danado CORPUS[] = {
    {"vacio.bmp", [] { return QByteArray(); }, EstadoCarga::EnBlanco},
    {"cabecera_a_medias.bmp", [] { return Corta("cuartos24.bmp", 20); }, EstadoCarga::EnBlanco},
    {"falta_un_byte.bmp", [] { return Corta("cuartos24.bmp", 3653); }, EstadoCarga::EnBlanco},
    {"paleta_sin_filas.bmp", [] { return Corta("cuartos8.bmp", 900); }, EstadoCarga::EnBlanco},
    {"rle8_cortado.bmp", [] { return Corta("cuartos_rle8.bmp", 150); }, EstadoCarga::EnBlanco},
    {"rle4_cortado.bmp", [] { return Corta("cuartos_rle4.bmp", 200); }, EstadoCarga::EnBlanco},
    {"cortado.rle", [] { return Corta("cuartos.rle", 80); }, EstadoCarga::EnBlanco},
    {"datos_fuera.bmp", [] { return Pon<uint32_t>(LeeMuestra("cuartos24.bmp"), 10, 1u << 30); },
     EstadoCarga::EnBlanco},
    {"cabecera_rara.bmp", [] { return Pon<uint32_t>(LeeMuestra("cuartos24.bmp"), 14, 99); },
     EstadoCarga::EnBlanco},
    {"ancho_cero.bmp", [] { return Pon<int32_t>(LeeMuestra("cuartos24.bmp"), 18, 0); },
     EstadoCarga::EnBlanco},
    {"enorme.bmp",
     [] { return Pon<int32_t>(Pon<int32_t>(LeeMuestra("cuartos24.bmp"), 18, 100000), 22, 100000); },
     EstadoCarga::Desmesurada, 100000, 100000},
    {"bomba.rle",
     [] { return Pon<int32_t>(Pon<int32_t>(LeeMuestra("cuartos.rle"), 18, 10000), 22, 16000); },
     EstadoCarga::Desmesurada, 10000, 16000},
    {"jpeg_sin_marco.jpg", [] { return Corta("cuartos.jpg", 30); }, EstadoCarga::EnBlanco},
    {"jpeg_sin_fin.jpg", [] { return Corta("cuartos.jpg", LeeMuestra("cuartos.jpg").size() - 2); },
     EstadoCarga::EnBlanco},
    {"bomba.jpg", [] { return JpegDe(9000, 16000); }, EstadoCarga::Desmesurada, 9000, 16000},
    {"wmf_cortado.wmf", [] { return Corta("cuartos.wmf", 100); }, EstadoCarga::EnBlanco},
    {"enorme.wmf", [] { return WmfDe(32000, 32000, 96); }, EstadoCarga::Desmesurada, 32000, 32000},
    {"wmf_basura.wmf", [] { return Aleatorios(7, 400, LeeMuestra("cuartos.wmf").left(40)); },
     CUALQUIERA},
    {"emf_cortado.emf", [] { return Corta("cuartos.emf", 200); }, EstadoCarga::EnBlanco},
    {"enorme.emf",
     [] { return Pon<int32_t>(Pon<int32_t>(LeeMuestra("cuartos.emf"), 16, 99999), 20, 99999); },
     EstadoCarga::Desmesurada, 100000, 100000},
    {"emf_registro_largo.emf", [] { return Pon<uint32_t>(LeeMuestra("cuartos.emf"), 92, 4000); },
     EstadoCarga::EnBlanco},
    {"aleatorio_con_marca.bmp", [] { return Aleatorios(2, 3000, "BM"); }, CUALQUIERA},
    {"aleatorio_con_marca.jpg", [] { return Aleatorios(3, 3000, "\xFF\xD8\xFF"); }, CUALQUIERA},
    {"aleatorio_con_marca.emf",
     [] { return Aleatorios(4, 3000, LeeMuestra("cuartos.emf").left(48)); }, CUALQUIERA},
    {"png_con_otro_nombre.bmp",
     [] {
         QFile f(QStringLiteral(":/teselari/botones.png"));
         return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
     },
     EstadoCarga::EnBlanco},
};

class Corpus : public ::testing::TestWithParam<Danado> {};

TEST_P(Corpus, AcabaEnBlancoOEnRechazoSinPixelesSueltos) {
    const Danado &d = GetParam();
    if (!HayDecodificadorDe(d.nombre)) {
        GTEST_SKIP() << "built without the decoder of " << d.nombre;
    }
    QTemporaryDir carpeta;
    Superficie s(7, 9, RGB(1, 2, 3));
    const CargaDeImagen carga = CargaImagenQt(Escribe(carpeta, d.nombre, d.contenido()), s);
    ASSERT_NE(carga.Estado, EstadoCarga::Leida) << d.nombre;
    ASSERT_NE(carga.Estado, EstadoCarga::Inexistente) << d.nombre;
    if (d.estado != CUALQUIERA) {
        EXPECT_EQ(carga.Estado, d.estado) << d.nombre;
        EXPECT_EQ(carga.Ancho, d.ancho) << d.nombre;
        EXPECT_EQ(carga.Alto, d.alto) << d.nombre;
    }
    if (carga.Estado == EstadoCarga::Desmesurada) {
        EXPECT_TRUE(TamanoDesmesurado(carga.Ancho, carga.Alto)) << d.nombre;
    }
    EXPECT_EQ(s.Ancho(), 320) << d.nombre;
    EXPECT_EQ(s.Alto(), 240) << d.nombre;
    EXPECT_TRUE(TodoBlanco(s)) << d.nombre;
}

INSTANTIATE_TEST_SUITE_P(Danados, Corpus, ::testing::ValuesIn(CORPUS), NombreDeCaso<Danado>);

// A run-length bitmap may skip pixels (a jump, a line ended early): here
// its stream ends at once, and the whole picture is left in its palette's
// first colour, never in stale bytes.
TEST(CargaImagenQt, LoQueUnBmpComprimidoSaltaQuedaDelPrimerColor) {
    QTemporaryDir carpeta;
    const QByteArray fin = Pon<uint16_t>(LeeMuestra("cuartos_rle8.bmp"), 70, 0x0100);
    for (int i = 0; i < 8; ++i) { // leave stale bytes where the reader allocates
        QImage sucia(50, 34, QImage::Format_Indexed8);
        sucia.fill(0x77);
    }
    Superficie s;
    ASSERT_TRUE(CargaImagenQt(Escribe(carpeta, "fin.bmp", fin), s).Leida());
    ASSERT_EQ(s.Ancho() * 1000 + s.Alto(), 50034);
    EXPECT_EQ(std::count(s.Pixeles().begin(), s.Pixeles().end(), APixel(RGB(255, 0, 0))), 50 * 34);
}

TEST(CargaImagenQt, LoQueNoEsUnFicheroNoExiste) {
    QTemporaryDir carpeta;
    ASSERT_TRUE(QDir(carpeta.path()).mkdir(QStringLiteral("carpeta.bmp")));
    for (const char *nombre : {"falta.bmp", "carpeta.bmp"}) {
        Superficie s(10, 10, RGB(1, 2, 3));
        const CargaDeImagen carga =
            CargaImagenQt(carpeta.filePath(QString::fromLatin1(nombre)).toStdString(), s);
        EXPECT_EQ(carga.Estado, EstadoCarga::Inexistente) << nombre;
        EXPECT_EQ(s.Ancho() * 1000 + s.Alto(), 320240) << nombre;
        EXPECT_TRUE(TodoBlanco(s)) << nombre;
    }
}

// A picture of more pixels than are decoded whole, made here in four
// quarters: it reads, states its own size, and comes reduced to what the
// largest zoom needs, its quarters in their places.
TEST(ImagenGrande, SeLeeReducidaYDiceSuTamano) {
    const struct {
        const char *nombre;
        int ancho, alto;
    } casos[] = {{"grande.jpg", 10000, 7000}, {"grande.bmp", 9000, 9000}};
    for (const auto &c : casos) {
        QTemporaryDir carpeta;
        const QString ruta = carpeta.filePath(QString::fromLatin1(c.nombre));
        {
            QImage cuartos(c.ancho, c.alto, QImage::Format_Indexed8);
            cuartos.setColorTable(
                {qRgb(255, 0, 0), qRgb(0, 255, 0), qRgb(0, 0, 255), qRgb(255, 255, 255)});
            for (int y = 0; y < c.alto; ++y) {
                uchar *fila = cuartos.scanLine(y);
                const uchar arriba = y < c.alto / 2 ? 0 : 2;
                std::memset(fila, arriba, static_cast<size_t>(c.ancho / 2));
                std::memset(fila + c.ancho / 2, arriba + 1,
                            static_cast<size_t>(c.ancho - c.ancho / 2));
            }
            ASSERT_TRUE(cuartos.save(ruta, nullptr, 90)) << c.nombre;
        }
        Superficie s;
        const CargaDeImagen carga = CargaImagenQt(ruta.toStdString(), s);
        ASSERT_EQ(carga.Estado, EstadoCarga::Leida) << c.nombre;
        EXPECT_EQ(carga.Ancho, c.ancho);
        EXPECT_EQ(carga.Alto, c.alto);
        // Enough for the largest zoom: 1024 x 768 at most, either way.
        EXPECT_TRUE(s.Ancho() >= 1024 || s.Alto() >= 768) << c.nombre;
        EXPECT_LE(s.Ancho(), 1025);
        EXPECT_LE(s.Alto(), 769);
        CompruebaCuartos(s, 40, false);
    }
}

// The game's own writer (the clipboard's picture): rows of any width, padded
// to four bytes, read back as they were.
TEST(GuardaBmp, FilasDeCualquierAnchoVuelvenIguales) {
    QTemporaryDir carpeta;
    const std::string ruta = carpeta.filePath(QStringLiteral("g.bmp")).toStdString();
    for (int32_t w : {1, 2, 3, 4, 5, 17}) {
        Superficie s(w, 3, RGB(11, 21, 31)), leida;
        s.PSet(w - 1, 2, RGB(201, 101, 51));
        ASSERT_TRUE(GuardaBmp(s, ruta));
        ASSERT_TRUE(CargaImagenQt(ruta, leida).Leida()) << w;
        EXPECT_EQ(leida.Pixeles(), s.Pixeles()) << w;
    }
    EXPECT_FALSE(
        GuardaBmp(Superficie(4, 4), carpeta.filePath(QStringLiteral("no/x.bmp")).toStdString()));
}

TEST(TamanoDesmesurado, ElZoomMinimo) {
    const struct {
        int64_t ancho, alto;
        bool desmesurado;
    } casos[] = {
        {20499, 240, false},   {20500, 240, true},  // 5 % of the width: 1024 and 1025
        {320, 15379, false},   {320, 15380, true},  // 5 % of the height: 768 and 769
        {20499, 15379, false},                      // 315 M pixels: a zoom of 5 % serves
        {0, 100000, false},    {-5, 100000, false}, // no size at all
        {1, 1, false},         {4294967295, 4294967295, true},
    };
    for (const auto &c : casos) {
        EXPECT_EQ(TamanoDesmesurado(c.ancho, c.alto), c.desmesurado) << c.ancho << " x " << c.alto;
    }
}

} // namespace
