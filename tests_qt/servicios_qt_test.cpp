// The desktop's small services: pointers, text, pictures and sounds.
#include <QFile>
#include <gtest/gtest.h>

#include "plataforma_prueba.h"
#include "qt/CargaImagenQt.h"
#include "qt/Cursores.h"
#include "qt/ReproductorSonidos.h"
#include "qt/RotuladorQt.h"
#include "raster/Superficie.h"

TEST(Cursores, PunterosPorNumero) {
    EXPECT_EQ(CursorDePuntero(0, "").shape(), Qt::ArrowCursor);
    EXPECT_EQ(CursorDePuntero(11, "").shape(), Qt::WaitCursor);
    EXPECT_EQ(CursorDePuntero(12, "").shape(), Qt::ForbiddenCursor);
    EXPECT_EQ(CursorDePuntero(15, "").shape(), Qt::SizeAllCursor);
    EXPECT_EQ(CursorDePuntero(3, "").shape(), Qt::ArrowCursor);
}

TEST(Cursores, LasCuatroManosDeLosRecursos) {
    for (const char *mano : {"ManoBlanca", "MANOINDICE", "manoroja", "ManoVerde"}) {
        const QCursor c = CursorDePuntero(99, mano);
        EXPECT_EQ(c.shape(), Qt::BitmapCursor) << mano;
        EXPECT_EQ(c.hotSpot(), QPoint(12, 1)) << mano;
        EXPECT_EQ(c.pixmap().size(), QSize(32, 32)) << mano;
    }
    // A name that is no hand gives the arrow.
    EXPECT_EQ(CursorDePuntero(99, "MANOAZUL").shape(), Qt::ArrowCursor);
}

TEST(RotuladorQt, DibujaEnLaSuperficieSoloDondeVaElTexto) {
    RotuladorQt r;
    PonServicio(&ServiciosPlataforma::Texto, &r);
    Superficie s(120, 40, COLOR_BLANCO);
    s.ForeColor = 0xFF0000; // blue
    s.CurrentX = 10;
    s.CurrentY = 5;
    s.Print("25 / 400");
    const double ancho = r.Ancho(s.Letra, "25 / 400");
    EXPECT_DOUBLE_EQ(s.CurrentX, 10 + ancho);
    int azules = 0;
    for (int y = 0; y < 40; ++y) {
        for (int x = 0; x < 120; ++x) {
            const Color c = s.Point(x, y);
            if (c != COLOR_BLANCO) {
                ++azules;
                EXPECT_GE(x, 10);
                EXPECT_LT(x, 10 + ancho + 1);
                EXPECT_GE(y, 5);
                EXPECT_LT(y, 5 + r.Alto(s.Letra, "x"));
            }
        }
    }
    EXPECT_GT(azules, 20);
    PonServicio(&ServiciosPlataforma::Texto, nullptr);
}

TEST(ReproductorSonidos, UnClipNuevoCortaElAnteriorYNadaEspera) {
    ReproductorSonidos r;
    EXPECT_EQ(r.Ultimo(), 0);
    r.Reproduce(5);
    EXPECT_EQ(r.Ultimo(), 5);
    r.Reproduce(4);
    EXPECT_EQ(r.Ultimo(), 4);
    r.Reproduce(0);
    r.Reproduce(13);
    EXPECT_EQ(r.Ultimo(), 4);
    EXPECT_TRUE(QFile::exists(RutaSonido(12).mid(3)));
}
