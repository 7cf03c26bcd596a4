// The board: the deal, the count of placed pieces and the frame under a
// lifted piece.
#include <algorithm>
#include <numeric>

#include "board/Arrastre.h"
#include "board/Barajar.h"
#include "board/Render.h"
#include "cutting/Corte.h"
#include "motor_comun.h"
#include "paneles_comun.h"
#include "plataforma_prueba.h"
#include "raster/Raster.h"

using namespace PuzzGbl;

namespace {

struct CasoJuego {
    int16_t tipo, n;
    int32_t ancho, alto;
};

const CasoJuego JUEGOS[] = {{0, 3, 320, 240},   {1, 3, 330, 250},   {1, 8, 640, 480},
                            {1, 20, 1024, 768}, {2, 5, 640, 480},   {3, 7, 500, 500},
                            {4, 6, 800, 600},   {5, 10, 1024, 768}, {5, 20, 1000, 760}};

// A fresh paint of the pile, bottom first, on a cleared board, down to the
// position `hasta`.
void PintaPilaDeNuevo(Superficie &destino, int32_t hasta = 1) {
    CuadroImagen &imagen = teselari.Pic_Imagen;
    imagen.QuitaImagen();
    imagen.Caja(-1, -1, AnchoPuzzle, AltoPuzzle, static_cast<Color>(ColorContraste));
    for (int32_t i = NroPiezas; i >= hasta; --i) {
        if (TipoPieza != 0) {
            EnmascaraPieza(static_cast<int16_t>(i));
        }
        MuestraPieza(imagen, static_cast<int16_t>(i));
    }
    destino.CambiaTamano(imagen.Ancho(), imagen.Alto());
    BitBlt(destino, 0, 0, imagen.Ancho(), imagen.Alto(), imagen, 0, 0, SRCCOPY);
}

} // namespace

class Reparto : public Motor, public ::testing::WithParamInterface<CasoJuego> {};

TEST_P(Reparto, InvariantesDelBarajado) {
    const CasoJuego c = GetParam();
    PreparaJuego(c.n, c.tipo, c.ancho, c.alto);
    PreparaBitmap();
    const FormTeselari &f = teselari;
    ASSERT_EQ(static_cast<int32_t>(OrdenPiezas.size()), NroPiezas + 1);
    std::vector<int16_t> numeros(static_cast<size_t>(NroPiezas));
    std::iota(numeros.begin(), numeros.end(), int16_t{1});
    EXPECT_TRUE(std::is_permutation(OrdenPiezas.begin() + 1, OrdenPiezas.end(), numeros.begin()));
    for (int32_t k = 1; k <= NroPiezas; ++k) {
        const Pieza &q = Piezas[k];
        EXPECT_GE(q.X, 1) << k;
        EXPECT_GE(q.Y, 1) << k;
        EXPECT_LE(q.X, f.Pic_Trabajo.Ancho() - AnchoPieza) << k;
        EXPECT_LE(q.Y, f.Pic_Trabajo.Alto() - AltoPieza) << k;
        // The box lies wholly on one side of each extended frame line.
        const int32_t izq = q.X - MargenX, der = q.X + AnchoPieza + MargenX;
        const int32_t arr = q.Y - MargenY, aba = q.Y + AltoPieza + MargenY;
        EXPECT_TRUE(izq > AnchoPuzzle || der < AnchoPuzzle) << k;
        EXPECT_TRUE(arr > AltoPuzzle || aba < AltoPuzzle) << k;
    }
    EXPECT_EQ(PartidaValida, VERDADERO);
    EXPECT_EQ(PuzzleCompleto, FALSO);
    EXPECT_EQ(RelojEnMarcha, VERDADERO);
    EXPECT_EQ(SegundosCronometro, 0);
    // The screen shows the board in memory, and that is a fresh paint of
    // the pile.
    EXPECT_TRUE(MismosPixeles(f.Pic_Trabajo, f.Pic_Imagen));
    Superficie repintado;
    PintaPilaDeNuevo(repintado);
    EXPECT_TRUE(MismosPixeles(repintado, f.Pic_Trabajo));
}

INSTANTIATE_TEST_SUITE_P(Juegos, Reparto, ::testing::ValuesIn(JUEGOS), [](const auto &i) {
    return "t" + std::to_string(i.param.tipo) + "_n" + std::to_string(i.param.n);
});

TEST_F(Motor, LevantarUnaPiezaSobreElMarcoDejaElMarcoEntero) {
    // Pieces dropped over the frame's corner, its right line and its bottom
    // line: lifting one brings back exactly the frame under it.
    for (const int16_t tipo : std::initializer_list<int16_t>{0, 1, 2}) {
        PreparaJuego(4, tipo, 400, 300);
        PreparaBitmap();
        Pieza &q = Piezas[OrdenPiezas[1]];
        for (auto [dx, dy] : {std::pair{-30, -20}, std::pair{-30, -150}, std::pair{-250, -20}}) {
            q.X = AnchoPuzzle + dx;
            q.Y = AltoPuzzle + dy;
            Superficie conPieza;
            PintaPilaDeNuevo(conPieza);
            Superficie sinPieza;
            PintaPilaDeNuevo(sinPieza, 2);
            BitBlt(teselari.Pic_Imagen, 0, 0, conPieza.Ancho(), conPieza.Alto(), conPieza, 0, 0,
                   SRCCOPY);
            LevantaPieza(q.X, q.Y);
            EXPECT_TRUE(MismosPixeles(teselari.Pic_Imagen, sinPieza)) << tipo << " " << dx;
        }
    }
}

TEST_F(Motor, ElPanelApartaLasPiezasDeSuEsquina) {
    // A large panel over most of the right of the board: the pieces that
    // would fall under it are moved to its left.
    PreparaJuego(8, 0, 640, 480);
    teselari.Pic_BotonesSiempre.Move(700, 0, 300, 700);
    PreparaBitmap();
    int32_t apartadas = 0;
    for (int32_t k = 1; k <= NroPiezas; ++k) {
        const Pieza &q = Piezas[k];
        EXPECT_FALSE(q.X > 1008 - 300 - 40 && q.Y < 700 - 30 && q.X != 660) << k;
        apartadas += q.X == 660;
    }
    EXPECT_GT(apartadas, 0); // about a quarter of the board is protected
}

TEST_F(Motor, ActualizaBSInfoCuentaYEscribe) {
    RotuladorRegistro r;
    PonServicio(&ServiciosPlataforma::Texto, &r);
    // The side, the pieces placed, the count and its left: centred on the
    // 56-pixel panel less its 4-pixel frame, at 6 pixels a character.
    const std::tuple<int16_t, int16_t, const char *, int32_t> casos[] = {
        {3, 9, "9 / 9", 11}, {10, 5, "5 / 100", 5}, {4, 0, "0 / 16", 8}};
    for (const auto &[lado, colocadas, texto, x] : casos) {
        PreparaJuego(lado, 0, 600, 450);
        PreparaBitmap();
        for (int32_t k = 1; k <= NroPiezas; ++k) {
            Piezas[k].X = Piezas[k].XCorrecta + (k <= colocadas ? 0 : 1);
            Piezas[k].Y = Piezas[k].YCorrecta;
        }
        r.textos.clear();
        ActualizaBSInfo();
        EXPECT_EQ(PiezasColocadas, colocadas);
        ASSERT_EQ(r.textos.size(), 1u);
        EXPECT_EQ(r.textos[0].texto, texto);
        EXPECT_EQ(r.textos[0].x, x);
        EXPECT_EQ(teselari.Pic_BSInfo.CurrentY, 3);
    }
}

// The bars move the work area, a bar's value stays within its range, and a
// new picture brings the board back to the origin.
TEST_F(Motor, LasBarrasMuevenElTrabajo) {
    PreparaJuego(4, 0, 1024, 768);
    SesionRestaurando = VERDADERO;
    PreparaBitmap();
    teselari.BarraHor.PonValue(100);
    teselari.BarraVer.PonValue(50);
    EXPECT_EQ(teselari.Pic_Trabajo.Left, -100);
    EXPECT_EQ(teselari.Pic_Trabajo.Top, -50);
    teselari.BarraHor.PonValue(100000);
    EXPECT_EQ(teselari.Pic_Trabajo.Left, -teselari.BarraHor.Max());
    PreparaBitmap();
    EXPECT_EQ(teselari.Pic_Trabajo.Left, 0);
    EXPECT_EQ(teselari.Pic_Trabajo.Top, 0);
}
