// The customisation dialog on the screen: where its controls stand, lists
// that follow the form and feed their clicks back, the two ways out and the
// ones that are not, what's-this, the button page, and the framed surfaces.
#include <QApplication>
#include <QClipboard>
#include <QImage>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <unistd.h>

#include "core/Programa.h"
#include "dialog/FormAbrirFic.h"
#include "dialog/GuardaBmp.h"
#include "qt/ImagenQt.h"
#include "qt/RotuladorQt.h"
#include "qt/VentanaAbrirFic.h"
#include "qt/VistaSuperficie.h"
#include "services/Ayuda.h"
#include "ventana_comun.h"

using namespace PuzzGbl;
using ventana_prueba::temas;

namespace {

class VentanaAbrirFicTest : public ventana_prueba::VentanaAbierta<FormAbrirFic, VentanaAbrirFic> {
  protected:
    void SetUp() override {
        carpeta = std::filesystem::temp_directory_path() /
                  ("teselari-abrirfic-" + std::to_string(::getpid()));
        std::filesystem::create_directories(carpeta);
        const std::pair<const char *, int> bmps[] = {
            {"a.bmp", 640}, {"b.bmp", 800}, {"c.bmp", 200}};
        for (const auto &[nombre, ancho] : bmps) { // c is small: the zoom brings it up to 165
            ASSERT_TRUE(GuardaBmp(Superficie(ancho, ancho * 3 / 4, 0x2040C0), carpeta / nombre));
        }
        std::ofstream(carpeta / "nota.txt") << "no";

        ventana_prueba::PreparaEscritorio();
        AnchoPantalla = 1024;
        AltoPantalla = 768;
        VueltasPorSegundo = 0;
        LlenaTablas();
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
    void TearDown() override {
        VentanaAbierta::TearDown();
        std::filesystem::current_path(std::filesystem::temp_directory_path());
        std::filesystem::remove_all(carpeta);
    }

    QListWidget *Lista(const char *nombre) {
        return qobject_cast<QListWidget *>(ventana->Control(nombre));
    }
    // A press and release on the entry of that text, as the player clicks it.
    void PulsaEntrada(QListWidget *lista, const char *texto) {
        const auto item = lista->findItems(QString::fromLatin1(texto), Qt::MatchExactly).value(0);
        ASSERT_NE(item, nullptr) << texto;
        const QPoint centro = lista->visualItemRect(item).center();
        QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, centro);
    }

    std::filesystem::path carpeta;
};

} // namespace

TEST_F(VentanaAbrirFicTest, SinMarcoCentradoYCadaControlEnSuSitio) {
    EXPECT_TRUE(ventana->windowFlags() & Qt::FramelessWindowHint);
    EXPECT_EQ(ventana->geometry(), QRect(192, 144, 640, 480));
    // Places on the dialog: a framed parent moves its children two pixels in.
    const std::pair<const char *, QRect> lugares[] = {
        {"Pic_ImagenPuzz", {5, 6, 260, 468}},
        {"Drive1", {15, 35, 240, 21}},
        {"File1", {137, 60, 118, 110}},
        {"Dir1", {15, 60, 118, 111}},
        {"Lis_NroPiezas", {460, 64, 156, 121}},
        {"Pic_Si", {558, 414, 56, 56}},
        {"Bot_QueEs", {603, 7, 23, 23}},
        {"Pic_TipPuz(4)", {282 + 2 + 58, 6 + 2 + 75, 32, 32}},
    };
    for (const auto &[nombre, lugar] : lugares) {
        QWidget *w = ventana->Control(nombre);
        ASSERT_NE(w, nullptr) << nombre;
        EXPECT_EQ(QRect(w->mapTo(ventana.get(), QPoint(0, 0)), w->size()), lugar) << nombre;
    }
    auto *boton = qobject_cast<QPushButton *>(ventana->Control("Bot_Portapapeles"));
    EXPECT_EQ(boton->text(), QString("Cargar imagen del Portapapeles"));
}

// The list shows the form's files and choice, and a click on the chosen
// entry reaches the form too: it evaluates the file again, as on Windows.
TEST_F(VentanaAbrirFicTest, UnClicEnUnFicheroLoEligeYOtroEnElMismoLoEvaluaDeNuevo) {
    QListWidget *file1 = Lista("File1");
    EXPECT_EQ(file1->count(), form->File1.ListCount());
    EXPECT_EQ(file1->currentItem()->text(), QString("a.bmp"));
    PulsaEntrada(file1, "b.bmp");
    EXPECT_EQ(NombreImagen, "b.bmp");
    EXPECT_EQ(file1->currentItem()->text(), QString("b.bmp"));
    EXPECT_TRUE(escritorio.mensajes.empty());
    PulsaEntrada(file1, "c.bmp");
    ASSERT_EQ(escritorio.mensajes.size(), 1u);
    PulsaEntrada(file1, "c.bmp");
    EXPECT_EQ(escritorio.mensajes.size(), 2u);
}

TEST_F(VentanaAbrirFicTest, SoloSusDosControlesLoCierran) {
    QTest::keyClick(ventana.get(), Qt::Key_Escape);
    ventana->reject();
    ventana->close();
    EXPECT_TRUE(ventana->isVisible());
    EXPECT_FALSE(form->Descargado());
    QTest::mousePress(ventana->VistaDe(form->Pic_Si), Qt::LeftButton, {}, QPoint(20, 20));
    EXPECT_TRUE(form->Descargado());
    EXPECT_FALSE(ventana->isVisible());
}

// In what's-this mode a press gives the topic of the control, or the
// dialog's for one without its own, and does nothing else.
TEST_F(VentanaAbrirFicTest, QueEsDaElTemaDelControlEnVezDeActuar) {
    auto *queEs = qobject_cast<QPushButton *>(ventana->Control("Bot_QueEs"));
    QTest::mouseClick(queEs, Qt::LeftButton);
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WhatsThisCursor);
    PulsaEntrada(Lista("File1"), "b.bmp");
    EXPECT_EQ(temas, std::vector<int16_t>{TemasAyuda::ImagenPuzzle});
    EXPECT_EQ(NombreImagen, "a.bmp");
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    QTest::mouseClick(queEs, Qt::LeftButton);
    QTest::mousePress(ventana->VistaDe(form->Pic_Si), Qt::LeftButton, {}, QPoint(20, 20));
    EXPECT_EQ(temas.back(), TemasAyuda::Personalizar);
    EXPECT_FALSE(form->Descargado());
}

TEST_F(VentanaAbrirFicTest, LaPaginaDeBotonesCubreElDialogoYSusOpcionesSiguenAlFormulario) {
    QTest::mouseClick(qobject_cast<QPushButton *>(ventana->Control("Bot_Botones")), Qt::LeftButton);
    VistaSuperficie *pagina = ventana->VistaDe(form->Pic_LugarBotones);
    QWidget *encima = ventana->childAt(320, 240);
    EXPECT_TRUE(encima == pagina || pagina->isAncestorOf(encima));
    auto *siempre = qobject_cast<QRadioButton *>(ventana->Control("Opt_Siempre(3)"));
    auto *derecho = qobject_cast<QRadioButton *>(ventana->Control("Opt_Derecho(3)"));
    QTest::mouseClick(derecho, Qt::LeftButton, {}, QPoint(5, derecho->height() / 2));
    EXPECT_TRUE(form->Opt_Derecho[3].Value);
    EXPECT_TRUE(derecho->isChecked());
    EXPECT_FALSE(siempre->isChecked());
}

TEST_F(VentanaAbrirFicTest, UnaSuperficieConMarcoLoDibujaHundido) {
    VistaSuperficie *modelo = ventana->VistaDe(form->Pic_Modelo);
    ASSERT_EQ(modelo->Borde(), 2);
    const QImage imagen = modelo->grab().toImage();
    const int w = imagen.width(), h = imagen.height();
    EXPECT_EQ(QSize(w, h), QSize(240, 180));
    EXPECT_EQ(imagen.pixel(0, 0) & 0xFFFFFF, 0x808080u);
    EXPECT_EQ(imagen.pixel(1, 1) & 0xFFFFFF, 0x000000u);
    EXPECT_EQ(imagen.pixel(w - 1, h - 1) & 0xFFFFFF, 0xFFFFFFu);
    EXPECT_EQ(imagen.pixel(w - 2, h / 2) & 0xFFFFFF, 0xC0C0C0u);
}

TEST_F(VentanaAbrirFicTest, LaImagenDelPortapapelesSeGuardaEnLaCarpetaYQuedaElegida) {
    auto *boton = qobject_cast<QPushButton *>(ventana->Control("Bot_Portapapeles"));
    EXPECT_FALSE(boton->isEnabled()); // nothing on the clipboard at the opening
    QImage copiada(400, 300, QImage::Format_RGB32);
    copiada.fill(QColor(10, 200, 30));
    QGuiApplication::clipboard()->setImage(copiada);
    Abre();
    boton = qobject_cast<QPushButton *>(ventana->Control("Bot_Portapapeles"));
    ASSERT_TRUE(boton->isEnabled());
    QTest::mouseClick(boton, Qt::LeftButton);

    // Written into the folder shown, listed and chosen.
    EXPECT_EQ(NombreImagen, "teseport.bmp");
    EXPECT_EQ(Lista("File1")->currentItem()->text(), QString("teseport.bmp"));
    Superficie leida;
    ASSERT_TRUE(CargaImagen((carpeta / "teseport.bmp").string(), leida).Leida());
    EXPECT_EQ(leida.Pixeles(), teselari.Pic_Origin.Pixeles());
}

// Every caption fits its control at the size the form gives it: none has to
// be set smaller.
TEST_F(VentanaAbrirFicTest, CadaRotuloCabeASuTamano) {
    const FormAbrirFic &f = *form;
    std::vector<std::pair<std::string, double>> rotulos = {
        {"Bot_Portapapeles", f.Bot_Portapapeles.Letra.Tamano},
        {"Bot_Prueba", f.Bot_Prueba.Letra.Tamano},
        {"Bot_Botones", f.Bot_Botones.Letra.Tamano},
        {"Bot_QueEs", f.Bot_QueEs.Letra.Tamano}};
    for (size_t i = 1; i < f.Lab_Botones.size(); ++i) {
        const std::string n = "(" + std::to_string(i) + ")";
        rotulos.emplace_back("Lab_Botones" + n, f.Lab_Botones[i].Letra.Tamano);
        rotulos.emplace_back("Opt_Siempre" + n, Fuente{}.Tamano);
        rotulos.emplace_back("Opt_Derecho" + n, Fuente{}.Tamano);
    }
    for (const auto &[nombre, puntos] : rotulos) {
        EXPECT_EQ(ventana->Control(nombre)->font().pixelSize(), PixelesDePuntos(puntos)) << nombre;
    }
}

// The lists take the player's keys and double clicks from the widgets, and
// the left button only: a key moves the choice as a click does, a double
// click opens a folder.
TEST_F(VentanaAbrirFicTest, LasTeclasEligenComoUnClicYElDobleClicAbreLaCarpeta) {
    QListWidget *file1 = Lista("File1");
    const QRect c = file1->visualItemRect(file1->item(2));
    QTest::mouseClick(file1->viewport(), Qt::RightButton, {}, c.center());
    file1->setFocus();
    QTest::keyClick(file1, Qt::Key_Down);
    EXPECT_TRUE(QTest::qWaitFor([] { return NombreImagen == "b.bmp"; }, 2000));
    EXPECT_TRUE(escritorio.mensajes.empty());

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
