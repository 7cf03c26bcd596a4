// The customisation dialog on the screen: where its controls stand, lists
// that follow the form and feed their clicks back, the two ways out and the
// ones that are not, what's-this, the button page, and the framed surfaces.
#include <QApplication>
#include <QClipboard>
#include <QImage>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <unistd.h>
#include <vector>

#include "core/Plataforma.h"
#include "core/Programa.h"
#include "core/PuzzGbl.h"
#include "dialog/FormAbrirFic.h"
#include "dialog/GuardaBmp.h"
#include "plataforma_prueba.h"
#include "qt/Arranque.h"
#include "qt/CargaImagenQt.h"
#include "qt/ImagenQt.h"
#include "qt/RotuladorQt.h"
#include "qt/VentanaAbrirFic.h"
#include "qt/VistaSuperficie.h"
#include "services/Ayuda.h"

using namespace PuzzGbl;

namespace {

std::vector<std::string> mensajes;
std::vector<int16_t> temas;

bool AnotaMensaje(const std::string &titulo, const std::string &) {
    mensajes.push_back(titulo);
    return true;
}
void AnotaTema(int16_t tema) {
    temas.push_back(tema);
}

void EscribeBmp(const std::string &ruta, int ancho, int alto, Color color) {
    Superficie s(ancho, alto, color);
    ASSERT_TRUE(GuardaBmp(s, ruta));
}

class VentanaAbrirFicTest : public testing::Test {
  protected:
    void SetUp() override {
        carpeta = std::filesystem::temp_directory_path() /
                  ("teselari-abrirfic-" + std::to_string(::getpid()));
        std::filesystem::create_directories(carpeta);
        EscribeBmp(carpeta / "a.bmp", 640, 480, 0x2040C0);
        EscribeBmp(carpeta / "b.bmp", 800, 600, 0xC04020);
        // Small: the zoom brings it up to 165 with a message each time.
        EscribeBmp(carpeta / "c.bmp", 200, 150, 0x20C040);
        std::ofstream(carpeta / "nota.txt") << "no";

        RestauraValoresIniciales();
        AnchoPantalla = 1024;
        AltoPantalla = 768;
        VueltasPorSegundo = 0;
        LlenaTablas();
        mensajes.clear();
        temas.clear();
        ServiciosPlataforma s;
        s.Mensaje = AnotaMensaje;
        PonEscritorio(s);
        PonServicio(&ServiciosPlataforma::CargaImagen, CargaImagenQt);
        PonServicio(&ServiciosPlataforma::MuestraAyuda, AnotaTema);
        PonServicio(&ServiciosPlataforma::Dialogo, ServiciosDialogoQt());
        CargaRecurso(RutaTiraBotones(), teselari.Pic_BmpBoton);

        const std::string dir = carpeta.string();
        DirectorioTrabajo = dir;
        FicheroImagen = dir + "/a.bmp";
        NombreImagen = "a.bmp";
        CarpetaImagen = dir;
        UnidadImagen = "/";
        PiezasPorLado = 4;
        TipoPieza = 1;
        Zoom = 100;
        Sonido = 2;
        ImagenValida = VERDADERO;
        ASSERT_TRUE(CargaImagen(FicheroImagen, teselari.Pic_Origin).Leida());

        QGuiApplication::clipboard()->clear();
        Abre();
    }
    // The dialog opened on the state set up, as command 2 opens it.
    void Abre() {
        ventana.reset();
        form = std::make_unique<FormAbrirFic>();
        form->Form_Load();
        ventana = std::make_unique<VentanaAbrirFic>(*form);
        ventana->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(ventana.get()));
    }
    void TearDown() override {
        ventana.reset();
        form.reset();
        PonEscritorio({});
        PonServicio(&ServiciosPlataforma::MuestraAyuda, nullptr);
        PonServicio(&ServiciosPlataforma::CargaImagen, nullptr);
        std::filesystem::current_path(std::filesystem::temp_directory_path());
        std::filesystem::remove_all(carpeta);
        RestauraValoresIniciales();
    }

    QListWidget *Lista(const char *nombre) {
        return qobject_cast<QListWidget *>(ventana->Control(nombre));
    }
    // A press and release on entry i of a list, as the player clicks it.
    void PulsaEntrada(QListWidget *lista, int i) {
        const QPoint centro = lista->visualItemRect(lista->item(i)).center();
        QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, centro);
    }
    int Indice(const QListWidget *lista, const std::string &texto) {
        const auto encontrados = lista->findItems(QString::fromStdString(texto), Qt::MatchExactly);
        return encontrados.isEmpty() ? -1 : lista->row(encontrados.first());
    }

    std::filesystem::path carpeta;
    std::unique_ptr<FormAbrirFic> form;
    std::unique_ptr<VentanaAbrirFic> ventana;
};

struct Lugar {
    const char *control;
    QRect enDialogo; // the place on the dialog, inside the frames of its parents
};

} // namespace

TEST_F(VentanaAbrirFicTest, SinMarcoCentradoYCadaControlEnSuSitio) {
    EXPECT_TRUE(ventana->windowFlags() & Qt::FramelessWindowHint);
    EXPECT_EQ(ventana->geometry(), QRect(192, 144, 640, 480));
    // A framed parent moves its children two pixels in.
    const Lugar lugares[] = {
        {"Pic_ImagenPuzz", {5, 6, 260, 468}},
        {"Drive1", {15, 35, 240, 21}},
        {"File1", {137, 60, 118, 110}},
        {"Dir1", {15, 60, 118, 111}},
        {"Bot_Portapapeles", {15, 186, 240, 22}},
        {"Pic_PorcZoom", {85, 433, 38, 23}},
        {"Lis_NroPiezas", {460, 64, 156, 121}},
        {"Pic_Cronometro", {449, 196, 178, 42}},
        {"Pic_Si", {558, 414, 56, 56}},
        {"Pic_No", {462, 414, 56, 56}},
        {"Bot_QueEs", {603, 7, 23, 23}},
        {"Pic_TipPuz(4)", {282 + 2 + 58, 6 + 2 + 75, 32, 32}},
    };
    for (const Lugar &l : lugares) {
        QWidget *w = ventana->Control(l.control);
        ASSERT_NE(w, nullptr) << l.control;
        const QRect real(w->mapTo(ventana.get(), QPoint(0, 0)), w->size());
        EXPECT_EQ(real, l.enDialogo) << l.control;
    }
    auto *boton = qobject_cast<QPushButton *>(ventana->Control("Bot_Portapapeles"));
    ASSERT_NE(boton, nullptr);
    EXPECT_EQ(boton->text(), QString("Cargar imagen del Portapapeles"));
}

TEST_F(VentanaAbrirFicTest, LaListaDeFicherosMuestraLasImagenesYLaElegida) {
    QListWidget *file1 = Lista("File1");
    ASSERT_NE(file1, nullptr);
    EXPECT_EQ(file1->count(), 3); // a, b and c; the text file is not a picture
    EXPECT_EQ(Indice(file1, "nota.txt"), -1);
    EXPECT_EQ(file1->currentRow(), form->File1.ListIndex());
    EXPECT_EQ(file1->currentItem()->text(), QString("a.bmp"));
    QListWidget *grids = Lista("Lis_NroPiezas");
    ASSERT_NE(grids, nullptr);
    EXPECT_EQ(grids->count(), form->Lis_NroPiezas.ListCount());
    EXPECT_GT(grids->count(), 0);
    EXPECT_EQ(grids->currentRow(), form->Lis_NroPiezas.ListIndex());
}

TEST_F(VentanaAbrirFicTest, UnClicEnUnFicheroLoEligeYOtroEnElMismoLoEvaluaDeNuevo) {
    QListWidget *file1 = Lista("File1");
    ASSERT_NE(file1, nullptr);
    PulsaEntrada(file1, Indice(file1, "b.bmp"));
    EXPECT_EQ(NombreImagen, "b.bmp");
    EXPECT_EQ(file1->currentItem()->text(), QString("b.bmp"));
    EXPECT_TRUE(mensajes.empty());
    // The small picture is brought up by the zoom, with its message; a
    // second click on the chosen entry evaluates it again, as on Windows.
    const int c = Indice(file1, "c.bmp");
    PulsaEntrada(file1, c);
    ASSERT_EQ(mensajes.size(), 1u);
    EXPECT_EQ(Zoom, 165);
    PulsaEntrada(file1, c);
    EXPECT_EQ(mensajes.size(), 2u);
    EXPECT_EQ(form->File1.ListIndex(), c);
}

TEST_F(VentanaAbrirFicTest, SoloSusDosControlesLoCierran) {
    QTest::keyClick(ventana.get(), Qt::Key_Escape);
    ventana->reject();
    ventana->close();
    EXPECT_TRUE(ventana->isVisible());
    EXPECT_FALSE(form->Descargado());
    VistaSuperficie *si = ventana->VistaDe(form->Pic_Si);
    ASSERT_NE(si, nullptr);
    QTest::mousePress(si, Qt::LeftButton, {}, QPoint(20, 20));
    EXPECT_TRUE(form->Descargado());
    EXPECT_FALSE(ventana->isVisible());
}

TEST_F(VentanaAbrirFicTest, QueEsDaElTemaDelControlEnVezDeActuar) {
    auto *queEs = qobject_cast<QPushButton *>(ventana->Control("Bot_QueEs"));
    ASSERT_NE(queEs, nullptr);
    QTest::mouseClick(queEs, Qt::LeftButton);
    ASSERT_TRUE(form->ModoQueEs);
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WhatsThisCursor);
    QListWidget *file1 = Lista("File1");
    const int antes = form->File1.ListIndex();
    PulsaEntrada(file1, Indice(file1, "b.bmp"));
    EXPECT_EQ(temas, std::vector<int16_t>{1231});
    EXPECT_EQ(form->File1.ListIndex(), antes);
    EXPECT_EQ(NombreImagen, "a.bmp");
    EXPECT_FALSE(form->ModoQueEs);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    // A press on the closing control in that mode asks for its topic only.
    QTest::mouseClick(queEs, Qt::LeftButton);
    QTest::mousePress(ventana->VistaDe(form->Pic_Si), Qt::LeftButton, {}, QPoint(20, 20));
    EXPECT_EQ(temas.back(), TemasAyuda::Personalizar);
    EXPECT_FALSE(form->Descargado());
}

TEST_F(VentanaAbrirFicTest, LaPaginaDeBotonesCubreElDialogoYSusOpcionesSiguenAlFormulario) {
    auto *botones = qobject_cast<QPushButton *>(ventana->Control("Bot_Botones"));
    ASSERT_NE(botones, nullptr);
    QTest::mouseClick(botones, Qt::LeftButton);
    VistaSuperficie *pagina = ventana->VistaDe(form->Pic_LugarBotones);
    ASSERT_NE(pagina, nullptr);
    EXPECT_TRUE(pagina->isVisible());
    QWidget *encima = ventana->childAt(320, 240);
    EXPECT_TRUE(encima == pagina || pagina->isAncestorOf(encima));
    auto *siempre = qobject_cast<QRadioButton *>(ventana->Control("Opt_Siempre(3)"));
    auto *derecho = qobject_cast<QRadioButton *>(ventana->Control("Opt_Derecho(3)"));
    ASSERT_NE(siempre, nullptr);
    ASSERT_NE(derecho, nullptr);
    EXPECT_EQ(siempre->isChecked(), form->Opt_Siempre[3].Value);
    QTest::mouseClick(derecho, Qt::LeftButton, {}, QPoint(5, derecho->height() / 2));
    EXPECT_TRUE(form->Opt_Derecho[3].Value);
    EXPECT_TRUE(derecho->isChecked());
    EXPECT_FALSE(siempre->isChecked());
}

TEST_F(VentanaAbrirFicTest, UnaSuperficieConMarcoLoDibujaHundidoYSusPixelesDentro) {
    VistaSuperficie *modelo = ventana->VistaDe(form->Pic_Modelo);
    ASSERT_NE(modelo, nullptr);
    ASSERT_EQ(modelo->Borde(), 2);
    const QImage imagen = modelo->grab().toImage();
    const int w = imagen.width(), h = imagen.height();
    EXPECT_EQ(QSize(w, h), QSize(240, 180));
    EXPECT_EQ(imagen.pixel(0, 0) & 0xFFFFFF, 0x808080u);
    EXPECT_EQ(imagen.pixel(1, 1) & 0xFFFFFF, 0x000000u);
    EXPECT_EQ(imagen.pixel(w - 1, h - 1) & 0xFFFFFF, 0xFFFFFFu);
    EXPECT_EQ(imagen.pixel(w - 2, h / 2) & 0xFFFFFF, 0xC0C0C0u);
    for (const QPoint p : {QPoint(0, 0), QPoint(100, 80), QPoint(w - 5, h - 5)}) {
        const Color c = form->Pic_Modelo.Point(p.x(), p.y());
        const QRgb esperado = qRgb(c & 0xFF, (c >> 8) & 0xFF, (c >> 16) & 0xFF);
        EXPECT_EQ(imagen.pixel(p + QPoint(2, 2)), esperado) << p.x() << "," << p.y();
    }
}

TEST_F(VentanaAbrirFicTest, LaImagenDelPortapapelesSeGuardaEnLaCarpetaYQuedaElegida) {
    auto *boton = qobject_cast<QPushButton *>(ventana->Control("Bot_Portapapeles"));
    ASSERT_NE(boton, nullptr);
    EXPECT_FALSE(boton->isEnabled()); // nothing on the clipboard at the opening
    QImage copiada(400, 300, QImage::Format_RGB32);
    copiada.fill(QColor(10, 200, 30));
    copiada.setPixelColor(0, 0, QColor(250, 0, 0));
    QGuiApplication::clipboard()->setImage(copiada);
    Abre();
    boton = qobject_cast<QPushButton *>(ventana->Control("Bot_Portapapeles"));
    ASSERT_TRUE(boton->isEnabled());
    QTest::mouseClick(boton, Qt::LeftButton);

    // Written into the folder shown, listed and chosen, and read back as
    // the very picture that was copied.
    EXPECT_EQ(NombreImagen, "teseport.bmp");
    EXPECT_EQ(Lista("File1")->currentItem()->text(), QString("teseport.bmp"));
    Superficie leida;
    ASSERT_TRUE(CargaImagen((carpeta / "teseport.bmp").string(), leida).Leida());
    EXPECT_EQ(leida.Ancho(), 400);
    EXPECT_EQ(leida.Alto(), 300);
    EXPECT_EQ(leida.Point(0, 0), static_cast<Color>(0x0000FA));
    EXPECT_EQ(leida.Point(399, 299), static_cast<Color>(0x1EC80A));
}

// Every caption fits its control at the size the form gives it: none has to
// be set smaller.
TEST_F(VentanaAbrirFicTest, CadaRotuloCabeASuTamano) {
    FormAbrirFic &f = *form;
    std::vector<std::pair<std::string, double>> rotulos;
    for (auto [nombre, boton] :
         {std::pair{"Bot_Portapapeles", &f.Bot_Portapapeles},
          std::pair{"Bot_Prueba", &f.Bot_Prueba}, std::pair{"Bot_Botones", &f.Bot_Botones},
          std::pair{"Bot_QueEs", &f.Bot_QueEs}}) {
        rotulos.emplace_back(nombre, boton->Letra.Tamano);
    }
    for (size_t i = 1; i < f.Lab_Botones.size(); ++i) {
        const std::string n = "(" + std::to_string(i) + ")";
        rotulos.emplace_back("Lab_Botones" + n, f.Lab_Botones[i].Letra.Tamano);
        rotulos.emplace_back("Opt_Siempre" + n, Fuente{}.Tamano);
        rotulos.emplace_back("Opt_Derecho" + n, Fuente{}.Tamano);
    }
    for (const auto &[nombre, puntos] : rotulos) {
        QWidget *w = ventana->Control(nombre);
        ASSERT_NE(w, nullptr) << nombre;
        EXPECT_EQ(w->font().pixelSize(), PixelesDePuntos(puntos)) << nombre;
    }
}

// The lists take the player's keys and double clicks from the widgets, and
// the left button only: a key moves the choice as a click does, a double
// click opens a folder.
TEST_F(VentanaAbrirFicTest, LasTeclasEligenComoUnClicYElDobleClicAbreLaCarpeta) {
    QListWidget *file1 = Lista("File1");
    const QRect c = file1->visualItemRect(file1->item(Indice(file1, "c.bmp")));
    QTest::mouseClick(file1->viewport(), Qt::RightButton, {}, c.center());
    file1->setFocus();
    QTest::keyClick(file1, Qt::Key_Down);
    EXPECT_TRUE(QTest::qWaitFor([] { return NombreImagen == "b.bmp"; }, 2000));
    EXPECT_TRUE(mensajes.empty());

    std::filesystem::create_directory(carpeta / "sub");
    Abre();
    QListWidget *dir1 = Lista("Dir1");
    const QPoint sub = dir1->visualItemRect(dir1->item(dir1->count() - 1)).center();
    QTest::mouseClick(dir1->viewport(), Qt::LeftButton, {}, sub);
    EXPECT_EQ(form->Dir1.Path(), carpeta.string());
    QTest::mouseDClick(dir1->viewport(), Qt::LeftButton, {}, sub);
    EXPECT_EQ(form->Dir1.Path(), (carpeta / "sub").string());
    EXPECT_EQ(Lista("File1")->count(), 0);
}
