// What the load takes from the resources: the strip of button images and
// the face of the chronometer, pixel for pixel.
#include <QImage>
#include <gtest/gtest.h>

#include "core/PuzzGbl.h"
#include "qt/Arranque.h"
#include "qt/ImagenQt.h"

using namespace PuzzGbl;

namespace {

// Every pixel of the picture at the surface's top left corner.
void CompruebaIgual(const QImage &imagen, const Superficie &s) {
    ASSERT_FALSE(imagen.isNull());
    const QImage vista(reinterpret_cast<const uchar *>(s.Fila(0)), s.Ancho(), s.Alto(),
                       QImage::Format_RGB32);
    EXPECT_EQ(vista.copy(imagen.rect()), imagen.convertToFormat(QImage::Format_RGB32));
}

} // namespace

TEST(Arranque, LaTiraDeBotonesYLaCaraDelCronometroVienenDeLosRecursos) {
    RestauraValoresIniciales();
    ASSERT_TRUE(CargaRecurso(RutaTiraBotones(), teselari.Pic_BmpBoton));
    EXPECT_EQ(teselari.Pic_BmpBoton.Ancho(), 638);
    CompruebaIgual(QImage(RutaTiraBotones()), teselari.Pic_BmpBoton);
    ASSERT_TRUE(CargaRecurso(RutaCaraCronometro(), teselari.Pic_Cronome));
    CompruebaIgual(QImage(RutaCaraCronometro()), teselari.Pic_Cronome);
    RestauraValoresIniciales();
}

TEST(Arranque, UnRecursoQueFaltaDejaLaSuperficieComoEstaba) {
    Superficie s(10, 10, 0xC0C0C0);
    EXPECT_FALSE(CargaRecurso(QStringLiteral(":/teselari/no-existe.png"), s));
    EXPECT_EQ(s.Point(5, 5), 0xC0C0C0u);
}
