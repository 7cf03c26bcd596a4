// The help book and its window: every topic has its anchor, every link of
// the book leads somewhere that exists, the window opens at the topic's
// anchor (the contents for an unknown number), and F1 on the main form asks
// for the number of the control under the mouse.
#include <QCursor>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QPushButton>
#include <QScrollBar>
#include <QSet>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextDocument>
#include <gtest/gtest.h>
#include <vector>

#include "core/PuzzGbl.h"
#include "platform/qt/VentanaAyuda.h"
#include "platform/qt/VentanaTeselari.h"
#include "platform/qt/VistaSuperficie.h"
#include "services/Ayuda.h"

using namespace PuzzGbl;

namespace {

const QString CARPETA = QStringLiteral(":/teselari/ayuda/");

// Every topic number the game's forms pass on, written out here again.
const std::vector<int16_t> TEMAS = {1120, 1210, 1230, 1231, 1232, 1233, 1234, 1235, 1236, 1237,
                                    1238, 1239, 1240, 1241, 1242, 1250, 1280, 1290, 1602, 1603};

struct Pagina {
    QSet<QString> anclas;
    std::vector<QString> enlaces;
};

// The anchors and the links of a page, as the help window reads them.
Pagina LeePagina(const QString &nombre) {
    QFile f(CARPETA + nombre);
    Pagina p;
    if (!f.open(QIODevice::ReadOnly)) {
        return p;
    }
    QTextDocument doc;
    doc.setHtml(QString::fromUtf8(f.readAll()));
    for (QTextBlock b = doc.begin(); b.isValid(); b = b.next()) {
        for (auto it = b.begin(); !it.atEnd(); ++it) {
            const QTextCharFormat formato = it.fragment().charFormat();
            for (const QString &a : formato.anchorNames()) {
                p.anclas.insert(a);
            }
            if (!formato.anchorHref().isEmpty()) {
                p.enlaces.push_back(formato.anchorHref());
            }
        }
    }
    return p;
}

QStringList Paginas() {
    return QDir(CARPETA).entryList({QStringLiteral("*.html")}, QDir::Files);
}

TEST(LibroAyuda, CadaTemaTieneSuAnclaEnSuPagina) {
    for (int16_t tema : TEMAS) {
        const QUrl url = DireccionTema(tema);
        const Pagina p = LeePagina(url.fileName());
        EXPECT_EQ(url.fragment(), QStringLiteral("t%1").arg(tema));
        EXPECT_TRUE(p.anclas.contains(url.fragment()))
            << tema << " " << url.toString().toStdString();
    }
}

// Every link names a page of the book and, if it has one, an anchor of that
// page; and every page can be reached from the contents.
TEST(LibroAyuda, TodosLosEnlacesLlevanAAlgunSitio) {
    const QStringList paginas = Paginas();
    ASSERT_GE(paginas.size(), 9);
    QSet<QString> alcanzadas{QStringLiteral("indice.html")};
    std::vector<QString> pendientes{QStringLiteral("indice.html")};
    while (!pendientes.empty()) {
        const QString origen = pendientes.back();
        pendientes.pop_back();
        for (const QString &enlace : LeePagina(origen).enlaces) {
            const QUrl url = QUrl(CARPETA + origen).resolved(QUrl(enlace));
            const QString destino = url.fileName();
            EXPECT_TRUE(paginas.contains(destino))
                << origen.toStdString() << " -> " << enlace.toStdString();
            if (url.hasFragment()) {
                EXPECT_TRUE(LeePagina(destino).anclas.contains(url.fragment()))
                    << origen.toStdString() << " -> " << enlace.toStdString();
            }
            if (paginas.contains(destino) && !alcanzadas.contains(destino)) {
                alcanzadas.insert(destino);
                pendientes.push_back(destino);
            }
        }
    }
    for (const QString &p : paginas) {
        EXPECT_TRUE(alcanzadas.contains(p)) << p.toStdString();
    }
}

// The texts the forms show, quoted in the book as the forms write them.
TEST(LibroAyuda, NombraLosBotonesComoElJuego) {
    QString libro;
    for (const QString &p : Paginas()) {
        QTextDocument doc;
        QFile f(CARPETA + p);
        ASSERT_TRUE(f.open(QIODevice::ReadOnly));
        doc.setHtml(QString::fromUtf8(f.readAll()));
        libro += doc.toPlainText();
    }
    for (const char *texto : {"Ayuda de la aplicación",
                              "Personalizar la aplicación",
                              "Mostrar modelo",
                              "Barajar piezas",
                              "Mostrar piezas ocultas",
                              "Mostrar piezas colocadas",
                              "Ordenar piezas",
                              "Tutor de juego",
                              "Resolver puzzle",
                              "Histórico de puzzles",
                              "Salir de la aplicación",
                              "Cargar imagen del Portapapeles",
                              "Personalizar botones >>",
                              "Siempre visible",
                              "Botón derecho",
                              "Información Botones",
                              "Factor de atracción",
                              "Velocidad de juego",
                              "Zoom de la imagen",
                              "Número de piezas",
                              "Forma de las piezas",
                              "Color del fondo",
                              "Imagen del puzzle",
                              "Estrellas/Rect.",
                              "Círculos/Rect.",
                              "Rectáng./Rect.",
                              "Elipses/Rect.",
                              "Puzzle Actual",
                              "Ha conseguido resolver el puzzle"}) {
        EXPECT_TRUE(libro.contains(QStringLiteral("\"%1\"").arg(QString::fromUtf8(texto))))
            << texto;
    }
}

class Ventana : public testing::Test {
  protected:
    void SetUp() override { PonMostradorAyuda(MuestraVentanaAyuda); }
    void TearDown() override {
        if (VentanaAyuda *v = VentanaAyudaAbierta()) {
            v->close();
        }
        PonMostradorAyuda(nullptr);
    }
    static VentanaAyuda &Abierta() {
        VentanaAyuda *v = VentanaAyudaAbierta();
        EXPECT_NE(v, nullptr);
        return *v;
    }
};

TEST_F(Ventana, AbreCadaTemaEnSuAncla) {
    for (int16_t tema : TEMAS) {
        MuestraAyuda(tema);
        VentanaAyuda &v = Abierta();
        EXPECT_TRUE(v.isVisible());
        EXPECT_EQ(v.Texto->source().fragment(), QStringLiteral("t%1").arg(tema)) << tema;
        EXPECT_FALSE(v.Texto->toPlainText().isEmpty()) << tema;
    }
}

// An anchor far down its page scrolls the page; the contents stand at the top.
TEST_F(Ventana, BajaHastaElAncla) {
    MuestraAyuda(TemasAyuda::LugarBotones);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&Abierta()));
    EXPECT_GT(Abierta().Texto->verticalScrollBar()->value(), 0);
    MuestraAyuda(TemasAyuda::Contenido);
    EXPECT_EQ(Abierta().Texto->verticalScrollBar()->value(), 0);
}

TEST_F(Ventana, UnNumeroDesconocidoAbreElContenido) {
    for (int16_t tema : {0, 1, 1119, 1243, 2000, -5}) {
        MuestraAyuda(1231); // somewhere else first
        MuestraAyuda(tema);
        EXPECT_EQ(Abierta().Texto->source(),
                  QUrl(QStringLiteral("qrc:/teselari/ayuda/indice.html")))
            << tema;
    }
}

TEST_F(Ventana, AtrasAdelanteContenidoYCerrar) {
    MuestraAyuda(TemasAyuda::ImagenPuzzle);
    MuestraAyuda(TemasAyuda::PanelCronometro);
    VentanaAyuda &v = Abierta();
    EXPECT_TRUE(v.Bot_Atras->isEnabled());
    EXPECT_FALSE(v.Bot_Adelante->isEnabled());
    v.Bot_Atras->click();
    EXPECT_EQ(v.Texto->source(), DireccionTema(TemasAyuda::ImagenPuzzle));
    EXPECT_TRUE(v.Bot_Adelante->isEnabled());
    v.Bot_Adelante->click();
    EXPECT_EQ(v.Texto->source(), DireccionTema(TemasAyuda::PanelCronometro));
    v.Bot_Contenido->click();
    EXPECT_EQ(v.Texto->source(), DireccionTema(0));
    v.Bot_Cerrar->click();
    EXPECT_FALSE(v.isVisible());
    // Opened again, it is the same window, at the new topic.
    MuestraAyuda(TemasAyuda::Historico);
    EXPECT_EQ(&Abierta(), &v);
    EXPECT_TRUE(v.isVisible());
}

// From a modal form the window becomes the form's own, so that the form
// doesn't block it; it goes with the form, and the next call makes another.
TEST_F(Ventana, DesdeUnFormularioModalEsDelFormulario) {
    auto *dialogo = new QDialog;
    dialogo->setWindowModality(Qt::ApplicationModal);
    dialogo->show();
    MuestraAyuda(TemasAyuda::Zoom);
    EXPECT_EQ(Abierta().parentWidget(), dialogo);
    EXPECT_TRUE(Abierta().isWindow());
    EXPECT_EQ(Abierta().Texto->source(), DireccionTema(TemasAyuda::Zoom));
    delete dialogo;
    EXPECT_EQ(VentanaAyudaAbierta(), nullptr);
    MuestraAyuda(TemasAyuda::Tablero);
    EXPECT_EQ(Abierta().parentWidget(), nullptr);
    EXPECT_EQ(Abierta().Texto->source(), DireccionTema(TemasAyuda::Tablero));
}

std::vector<int16_t> pedidos;
void AyudaDoble(int16_t tema) {
    pedidos.push_back(tema);
}

class TeclaF1 : public testing::Test {
  protected:
    void SetUp() override {
        RestauraValoresIniciales();
        FormTeselari &f = teselari;
        f.Pic_Trabajo.Move(0, 0, 1008, 752);
        f.Pic_Trabajo.Visible = true;
        f.Pic_BotonesSiempre.Move(946, 0, 62, 700);
        f.Pic_BotonesSiempre.Visible = true;
        f.Pic_BotonSiempre[4].Move(3, 177, 56, 56);
        f.Pic_BotonSiempre[4].Visible = true;
        f.Pic_BSInfo.Move(3, 674, 56, 23);
        f.Pic_BSInfo.Visible = true;
        f.Pic_Cronome.Move(884, 0, 62, 39);
        f.Pic_Cronome.Visible = true;
        f.Pic_Muestra.Move(300, 500, 200, 150);
        f.Pic_Muestra.Visible = true;
        ventana = std::make_unique<VentanaTeselari>();
        ventana->MuestraPantallaCompleta();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(ventana.get()));
        pedidos.clear();
        PonMostradorAyuda(AyudaDoble);
    }
    void TearDown() override {
        PonMostradorAyuda(nullptr);
        ventana.reset();
        RestauraValoresIniciales();
    }
    std::unique_ptr<VentanaTeselari> ventana;
};

// F1 asks for the number of the control under the mouse; a control inside
// the always-visible panel has the panel's.
TEST_F(TeclaF1, PideElTemaDelControlBajoElRaton) {
    const struct {
        QPoint punto;
        int16_t tema;
    } casos[] = {
        {{100, 100}, 1120}, // the board
        {{400, 550}, 1120}, // the model, on the board
        {{970, 30}, 1210},  // the panel between its buttons
        {{975, 200}, 1210}, // button 4
        {{975, 685}, 1290}, // the count of placed pieces
        {{900, 20}, 1280},  // the chronometer
    };
    for (const auto &c : casos) {
        pedidos.clear();
        QCursor::setPos(c.punto);
        QTest::keyClick(ventana.get(), Qt::Key_F1);
        ASSERT_EQ(pedidos.size(), 1u);
        EXPECT_EQ(pedidos[0], c.tema) << c.punto.x() << "," << c.punto.y();
    }
}

// Other keys still reach the form's own handler, and F1 doesn't.
TEST_F(TeclaF1, LasDemasTeclasSiguenSuCamino) {
    std::vector<int> teclas;
    ventana->AlPulsarTecla = [&teclas](int t) { teclas.push_back(t); };
    QTest::keyClick(ventana.get(), Qt::Key_A);
    QTest::keyClick(ventana.get(), Qt::Key_F1);
    EXPECT_EQ(teclas, std::vector<int>{Qt::Key_A});
    EXPECT_EQ(pedidos.size(), 1u);
}

} // namespace
