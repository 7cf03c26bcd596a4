// The message dialog: its size, its layout and its buttons' images for one
// and nine lines, its drawn border, and its answers to keys and clicks.
#include <QApplication>
#include <QLabel>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include "core/Plataforma.h"
#include "core/PuzzGbl.h"
#include "plataforma_prueba.h"
#include "qt/FormMensajes.h"
#include "qt/VistaSuperficie.h"
#include "services/Mensajes.h"
#include "services/Sonidos.h"

using namespace PuzzGbl;

namespace {

int16_t ultimoClip = 0;
void ApuntaClip(int16_t clip) {
    ultimoClip = clip;
}

class FormMensajesTest : public testing::Test {
  protected:
    void SetUp() override {
        RestauraValoresIniciales();
        ServiciosPlataforma s;
        s.Mensaje = MuestraFormMensajes;
        s.Sonido = ApuntaClip;
        PonEscritorio(s);
        ultimoClip = 0;
        Sonido = 1;
        // A strip whose image i is filled with the colour i.
        for (int i = 1; i <= 13; ++i) {
            teselari.Pic_BmpBoton.CajaLlena((i - 1) * 49 + 1, 1, (i - 1) * 49 + 48, 48,
                                            static_cast<Color>(i * 0x10));
        }
    }
    void TearDown() override { PonEscritorio(ServiciosPlataforma{}); }

    // Shows a message with one or two buttons, does `accion` on it as soon
    // as it is open, and gives the answer once it has closed.
    static int16_t Responde(int16_t botones, std::function<void(FormMensajes *)> accion) {
        QTimer::singleShot(0, [accion] {
            auto *f = qobject_cast<FormMensajes *>(QApplication::activeModalWidget());
            ASSERT_NE(f, nullptr);
            accion(f);
        });
        MuestraMensaje("SALIR DE TESELARI", "¿Desea abandonar el programa?", 1, botones);
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
        return RespuestaMensaje;
    }
};

} // namespace

TEST_F(FormMensajesTest, UnaLineaYDosBotones) {
    MensajeLineas = 1;
    MensajeBotones = 2;
    FormMensajes f("SALIR DE TESELARI", "¿Desea abandonar el programa?");
    EXPECT_EQ(f.size(), QSize(400, 151));
    EXPECT_EQ(f.pos(), QPoint((1024 - 400) / 2, (768 - 151) / 2));
    EXPECT_EQ(f.Tex_Titulo->geometry(), QRect(20, 15, 365, 22));
    EXPECT_EQ(f.Tex_Mensaje->geometry(), QRect(20, 50, 365, 19));
    ASSERT_NE(f.Pic_Si, nullptr);
    ASSERT_NE(f.Pic_No, nullptr);
    EXPECT_EQ(f.Pic_Salir, nullptr);
    EXPECT_EQ(f.Pic_Si->geometry(), QRect(100, 79, 56, 56));
    EXPECT_EQ(f.Pic_No->geometry(), QRect(250, 79, 56, 56));
    // Accept and reject are the strip's images 13 and 12, at (5, 5).
    EXPECT_EQ(f.Pic_Si->Control().Point(5, 5), 13u * 0x10);
    EXPECT_EQ(f.Pic_Si->Control().Point(4, 4), 0xC0C0C0u);
    EXPECT_EQ(f.Pic_No->Control().Point(20, 20), 12u * 0x10);
    EXPECT_EQ(f.Tex_Titulo->text(), QStringLiteral("SALIR DE TESELARI"));
    EXPECT_EQ(f.Tex_Mensaje->text(), QStringLiteral("¿Desea abandonar el programa?"));
    EXPECT_TRUE(f.Tex_Titulo->font().bold());
    EXPECT_EQ(f.Tex_Titulo->palette().color(QPalette::WindowText), QColor(0, 0, 0x80));
}

TEST_F(FormMensajesTest, NueveLineasOUnaYUnBoton) {
    MensajeLineas = 9;
    MensajeBotones = 1;
    FormMensajes f("Imagen no válida", "a\r\nb\r\nc");
    EXPECT_EQ(f.size(), QSize(400, 279));
    EXPECT_EQ(f.Tex_Mensaje->height(), 147);
    EXPECT_EQ(f.Tex_Mensaje->text(), QStringLiteral("a\nb\nc"));
    ASSERT_NE(f.Pic_Salir, nullptr);
    EXPECT_EQ(f.Pic_Si, nullptr);
    EXPECT_EQ(f.Pic_Salir->geometry(), QRect(329, 50 + 16 * 9 + 15, 56, 56));
    EXPECT_EQ(f.Pic_Salir->Control().Point(30, 30), 11u * 0x10); // the strip's image 11
    // Below a single line the button stands at 50 + 16 + 15.
    MensajeLineas = 1;
    FormMensajes una("TESELARI", "Ha conseguido resolver el puzzle");
    EXPECT_EQ(una.Pic_Salir->geometry(), QRect(329, 81, 56, 56));
}

TEST_F(FormMensajesTest, BordeEnRelieveYMarcosHundidos) {
    MensajeLineas = 1;
    MensajeBotones = 1;
    FormMensajes f("T", "x");
    const Superficie &s = f.Fondo();
    // Two white pixels at the top and left edges, two grey at the others, the
    // face inside; the title's frame grey above and left, white right and
    // below; the text's frame, 19 high for one line.
    const Color B = COLOR_BLANCO, G = 0x808080, C = 0xC0C0C0;
    const struct {
        int x, y;
        Color color;
    } puntos[] = {{200, 0, B},   {200, 1, B},  {0, 70, B},   {1, 70, B},   {200, 150, G},
                  {200, 149, G}, {399, 70, G}, {398, 70, G}, {200, 2, C},  {100, 14, G},
                  {14, 20, G},   {385, 20, B}, {100, 37, B}, {100, 49, G}, {100, 69, B}};
    for (const auto &p : puntos) {
        EXPECT_EQ(s.Point(p.x, p.y), p.color) << p.x << "," << p.y;
    }
}

TEST_F(FormMensajesTest, CualquierTeclaAceptaYCadaBotonDaSuRespuesta) {
    for (Qt::Key tecla : {Qt::Key_Escape, Qt::Key_N}) {
        RespuestaMensaje = FALSO;
        EXPECT_EQ(Responde(2, [tecla](FormMensajes *f) { QTest::keyClick(f, tecla); }), VERDADERO);
        EXPECT_EQ(ultimoClip, 4);
    }
    EXPECT_EQ(Responde(2, [](FormMensajes *f) { QTest::mouseClick(f->Pic_No, Qt::LeftButton); }),
              FALSO);
    EXPECT_EQ(Responde(2, [](FormMensajes *f) { QTest::mouseClick(f->Pic_Si, Qt::LeftButton); }),
              VERDADERO);
    // One button: a key closes it without a sound and leaves the answer.
    ultimoClip = 0;
    EXPECT_EQ(Responde(1, [](FormMensajes *f) { QTest::keyClick(f, Qt::Key_Space); }), VERDADERO);
    EXPECT_EQ(ultimoClip, 0);
    Responde(1, [](FormMensajes *f) { QTest::mouseClick(f->Pic_Salir, Qt::LeftButton); });
    EXPECT_EQ(ultimoClip, 4);
    EXPECT_EQ(teselari.MousePointer, PUNTERO_NORMAL);
}

TEST_F(FormMensajesTest, PistasYManoSobreLosBotones) {
    MensajeLineas = 1;
    MensajeBotones = 2;
    Pistas = 1;
    FormMensajes con("T", "x");
    EXPECT_EQ(con.Pic_Si->toolTip(), QStringLiteral("Aceptar"));
    EXPECT_EQ(con.Pic_No->toolTip(), QStringLiteral("Rechazar"));
    Pistas = 2;
    FormMensajes sin("T", "x");
    EXPECT_TRUE(sin.Pic_Si->toolTip().isEmpty());
    sin.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&sin));
    QTest::mouseMove(sin.Pic_Si, QPoint(20, 20));
    EXPECT_EQ(sin.Pic_Si->Control().MousePointer, PUNTERO_PROPIO);
    EXPECT_EQ(sin.Pic_Si->Control().MouseIcon, "MANOINDICE");
    EXPECT_EQ(sin.Pic_Si->cursor().shape(), Qt::BitmapCursor);
}
