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
#include "ventana_comun.h"

using namespace PuzzGbl;

namespace {

const QString CARPETA = QStringLiteral(":/teselari/ayuda/");

struct Pagina {
    QSet<QString> anclas;
    std::vector<QString> enlaces;
    QString texto;
};

// The anchors, the links and the text of a page, as the help window reads
// them.
Pagina LeePagina(const QString &nombre) {
    QFile f(CARPETA + nombre);
    Pagina p;
    if (!f.open(QIODevice::ReadOnly)) {
        return p;
    }
    QTextDocument doc;
    doc.setHtml(QString::fromUtf8(f.readAll()));
    p.texto = doc.toPlainText();
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

// Every link, and every topic the game knows, names a page of the book and,
// if it has one, an anchor of that page; and every page can be reached from
// the contents.
TEST(LibroAyuda, TodosLosEnlacesLlevanAAlgunSitio) {
    const QStringList paginas = Paginas();
    ASSERT_GE(paginas.size(), 9);
    for (int16_t tema = 0; tema < 2000; ++tema) {
        const QUrl url(QString::fromStdString(DestinoAyuda(tema)));
        EXPECT_TRUE(paginas.contains(url.path())) << tema;
        EXPECT_TRUE(!url.hasFragment() || LeePagina(url.path()).anclas.contains(url.fragment()))
            << tema;
    }
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

// The texts the forms show, quoted in the book as the forms write them: the
// buttons' names from the game's own table.
TEST(LibroAyuda, NombraLosBotonesComoElJuego) {
    QString libro;
    for (const QString &p : Paginas()) {
        libro += LeePagina(p).texto;
    }
    LlenaTablas();
    QStringList textos;
    for (int i = 1; i <= 11; ++i) {
        textos.append(QString::fromStdString(TextoBotones[i]).trimmed());
    }
    for (const char *t :
         {"Cargar imagen del Portapapeles", "Personalizar botones >>", "Siempre visible",
          "Botón derecho", "Información Botones", "Factor de atracción", "Velocidad de juego",
          "Zoom de la imagen", "Número de piezas", "Forma de las piezas", "Color del fondo",
          "Imagen del puzzle", "Círculos/Rect.", "Rectáng./Rect.", "Elipses/Rect.",
          "Estrellas/Rect.", "Puzzle Actual", "Ha conseguido resolver el puzzle"}) {
        textos.append(QString::fromUtf8(t));
    }
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

// A topic opens at its anchor, scrolled down to it; the contents, also for
// a number the book doesn't know, at the top.
TEST_F(Ventana, AbreElTemaEnSuAncla) {
    MuestraAyuda(TemasAyuda::LugarBotones);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&Abierta()));
    EXPECT_EQ(Abierta().Texto->source(),
              QUrl(QStringLiteral("qrc:/teselari/ayuda/personalizar.html#t1242")));
    EXPECT_GT(Abierta().Texto->verticalScrollBar()->value(), 0);
    for (const int16_t tema : std::initializer_list<int16_t>{0, 1243}) {
        MuestraAyuda(tema);
        EXPECT_EQ(Abierta().Texto->source(),
                  QUrl(QStringLiteral("qrc:/teselari/ayuda/indice.html")));
        EXPECT_EQ(Abierta().Texto->verticalScrollBar()->value(), 0);
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

// F1 asks for the number of the control under the mouse; a control inside
// the always-visible panel has the panel's.
TEST(TeclaF1, PideElTemaDelControlBajoElRaton) {
    ventana_prueba::PreparaEscritorio();
    FormTeselari &f = teselari;
    const auto pon = [](CuadroImagen &s, int x, int y, int ancho, int alto) {
        s.Move(x, y, ancho, alto);
        s.Visible = true;
    };
    pon(f.Pic_Trabajo, 0, 0, 1008, 752);
    pon(f.Pic_BotonesSiempre, 946, 0, 62, 700);
    pon(f.Pic_BotonSiempre[4], 3, 177, 56, 56);
    pon(f.Pic_BSInfo, 3, 674, 56, 23);
    pon(f.Pic_Cronome, 884, 0, 62, 39);
    auto ventana = std::make_unique<VentanaTeselari>();
    ventana->MuestraPantallaCompleta();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(ventana.get()));
    const std::pair<QPoint, int16_t> casos[] = {
        {{100, 100}, TemasAyuda::Tablero},        {{970, 30}, TemasAyuda::BotonesSiempre},
        {{975, 200}, TemasAyuda::BotonesSiempre}, {{975, 685}, TemasAyuda::PiezasColocadas},
        {{900, 20}, TemasAyuda::PanelCronometro},
    };
    for (const auto &[punto, tema] : casos) {
        QCursor::setPos(punto);
        QTest::keyClick(ventana.get(), Qt::Key_F1);
        EXPECT_EQ(ventana_prueba::temas.back(), tema) << punto.x() << "," << punto.y();
    }
    EXPECT_EQ(ventana_prueba::temas.size(), 5u);
    ventana.reset();
    ventana_prueba::RestauraEscritorio();
}

} // namespace
