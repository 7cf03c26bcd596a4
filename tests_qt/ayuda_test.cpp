// The help book and its window: every link of the book leads somewhere that
// exists, the window opens at the topic's anchor (the contents for an
// unknown number), and F1 on the main form asks for the number of the
// control under the mouse.
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
#include "plataforma_prueba.h"
#include "qt/VentanaAyuda.h"
#include "qt/VentanaTeselari.h"
#include "raster/Superficie.h"
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
    const QStringList textos =
        QString::fromUtf8(
            "Ayuda de la aplicación|Personalizar la aplicación|Mostrar modelo|Barajar piezas|"
            "Mostrar piezas ocultas|Mostrar piezas colocadas|Ordenar piezas|Tutor de juego|"
            "Resolver puzzle|Histórico de puzzles|Salir de la aplicación|"
            "Cargar imagen del Portapapeles|Personalizar botones >>|Siempre visible|Botón derecho|"
            "Información Botones|Factor de atracción|Velocidad de juego|Zoom de la imagen|"
            "Número de piezas|Forma de las piezas|Color del fondo|Imagen del puzzle|"
            "Círculos/Rect.|Rectáng./Rect.|Elipses/Rect.|Estrellas/Rect.|Puzzle Actual|"
            "Ha conseguido resolver el puzzle")
            .split(QLatin1Char('|'));
    for (const QString &texto : textos) {
        EXPECT_TRUE(libro.contains(QLatin1Char('"') + texto + QLatin1Char('"')))
            << texto.toStdString();
    }
}

class Ventana : public testing::Test {
  protected:
    void SetUp() override { PonServicio(&ServiciosPlataforma::MuestraAyuda, MuestraVentanaAyuda); }
    void TearDown() override {
        if (VentanaAyuda *v = VentanaAyudaAbierta()) {
            v->close();
        }
        PonServicio(&ServiciosPlataforma::MuestraAyuda, nullptr);
    }
    static VentanaAyuda &Abierta() {
        VentanaAyuda *v = VentanaAyudaAbierta();
        EXPECT_NE(v, nullptr);
        return *v;
    }
};

// Each topic opens at its anchor "t" + number, which its page has; 0 and
// an unknown number open the contents.
TEST_F(Ventana, AbreCadaTemaEnSuAncla) {
    for (int16_t tema : TEMAS) {
        MuestraAyuda(tema);
        const QUrl url = Abierta().Texto->source();
        EXPECT_TRUE(Abierta().isVisible());
        EXPECT_EQ(url.fragment(), QStringLiteral("t%1").arg(tema));
        EXPECT_TRUE(LeePagina(url.fileName()).anclas.contains(url.fragment())) << tema;
    }
    for (const int16_t tema : std::initializer_list<int16_t>{0, 1, 1243, -5}) {
        MuestraAyuda(tema);
        EXPECT_EQ(Abierta().Texto->source(),
                  QUrl(QStringLiteral("qrc:/teselari/ayuda/indice.html")))
            << tema;
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
    // Opened again, it is the same window, at the new topic; Escape closes it.
    MuestraAyuda(TemasAyuda::Historico);
    EXPECT_EQ(&Abierta(), &v);
    EXPECT_TRUE(v.isVisible());
    QTest::keyClick(v.Texto, Qt::Key_Escape);
    EXPECT_FALSE(v.isVisible());
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

// F1 asks for the number of the control under the mouse; a control inside
// the always-visible panel has the panel's.
TEST(TeclaF1, PideElTemaDelControlBajoElRaton) {
    RestauraValoresIniciales();
    FormTeselari &f = teselari;
    const auto pon = [](CuadroImagen &s, int x, int y, int ancho, int alto) {
        s.Move(x, y, ancho, alto);
        s.Visible = true;
    };
    pon(f.Pic_Trabajo, 0, 0, 1008, 752);
    pon(f.Pic_Muestra, 300, 500, 200, 150);
    pon(f.Pic_BotonesSiempre, 946, 0, 62, 700);
    pon(f.Pic_BotonSiempre[4], 3, 177, 56, 56);
    pon(f.Pic_BSInfo, 3, 674, 56, 23);
    pon(f.Pic_Cronome, 884, 0, 62, 39);
    auto ventana = std::make_unique<VentanaTeselari>();
    ventana->MuestraPantallaCompleta();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(ventana.get()));
    PonServicio(&ServiciosPlataforma::MuestraAyuda, AyudaDoble);
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
    PonServicio(&ServiciosPlataforma::MuestraAyuda, nullptr);
    ventana.reset();
    RestauraValoresIniciales();
}

} // namespace
