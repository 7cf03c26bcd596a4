// The coloured view: placed pieces green, misplaced ones red, and back at
// the next press on the board.
#include <optional>

#include "board/Inspeccion.h"
#include "board/Raton.h"
#include "tablero_comun.h"

using namespace PuzzGbl;

namespace {

constexpr Color VERDE = 0x00FF00;
constexpr Color ROJO = 0x0000FF;

// A pixel of piece k, relative to its cell corner, that no other piece
// covers where the pieces stand in these tests: the centre of the cell for
// the simple cuts, a pixel of the figure or of the frame for a double one.
std::optional<std::pair<int32_t, int32_t>> PixelPropio(int16_t k) {
    if (TipoPieza < 2) {
        return std::make_pair(AnchoPieza / 2, AltoPieza / 2);
    }
    const bool figura = k > PiezasPorLado * PiezasPorLado;
    return PuntoDeCelda(k, figura ? COLOR_NEGRO : COLOR_BLANCO);
}

} // namespace

class Colores : public Tablero, public ::testing::WithParamInterface<int16_t> {};

TEST_P(Colores, CadaPiezaEnSuColorYDespuesEnSusPixeles) {
    PreparaTablero(3, GetParam(), 300, 300);
    // Three pieces away from home, apart from each other and from the puzzle.
    const int16_t fuera[] = {1, 5, static_cast<int16_t>(NroPiezas)};
    int32_t x = 420;
    for (int16_t k : fuera) {
        PonPieza(k, x, 450);
        x += 200;
    }
    RepintaTablero();
    const Superficie normal = teselari.Pic_Imagen;
    // The colour left by an earlier view does not matter.
    teselari.Pic_PiezaColor.PonBackColor(ROJO);

    ModoColocadas = VERDADERO;
    MostrarPiezasBienoMal();
    EXPECT_EQ(teselari.Pic_PiezaColor.Ancho(), teselari.Pic_Bitmap.Ancho());
    EXPECT_EQ(teselari.Pic_PiezaColor.Alto(), teselari.Pic_Bitmap.Alto());
    for (int16_t k = 1; k <= NroPiezas; ++k) {
        const auto p = PixelPropio(k);
        ASSERT_TRUE(p) << k;
        const Color esperado = PiezaEnSuSitio(k) ? VERDE : ROJO;
        const int32_t px = Piezas[k].X + p->first, py = Piezas[k].Y + p->second;
        EXPECT_EQ(teselari.Pic_Imagen.Point(px, py), esperado) << k;
        EXPECT_EQ(teselari.Pic_Trabajo.Point(px, py), esperado) << k;
    }
    EXPECT_TRUE(MismosPixeles(teselari.Pic_Trabajo, teselari.Pic_Imagen));

    // A press ends the view and takes the piece under it; let go where it
    // lay, the board is as it was before the view.
    const float px = static_cast<float>(Piezas[1].X + PixelPropio(1)->first);
    const float py = static_cast<float>(Piezas[1].Y + PixelPropio(1)->second);
    Pic_Trabajo_MouseDown(1, 0, px, py);
    EXPECT_EQ(ModoColocadas, FALSO);
    EXPECT_EQ(OrdenPiezas[1], 1);
    Pic_Trabajo_MouseUp(1, 0, px, py);
    EXPECT_TRUE(MismosPixeles(teselari.Pic_Imagen, normal));
    EXPECT_TRUE(MismosPixeles(teselari.Pic_Trabajo, normal));
}

INSTANTIATE_TEST_SUITE_P(Cortes, Colores, ::testing::Values(0, 1, 2, 3, 4, 5));

TEST_F(Tablero, ColocadasVecinasFormanUnaSolaManchaVerde) {
    // Rectangles carry no outline in the coloured view.
    PreparaTablero(3, 0, 300, 300);
    ModoColocadas = VERDADERO;
    MostrarPiezasBienoMal();
    for (int32_t y = 0; y < AltoPuzzle; y += 7) {
        for (int32_t x = 0; x < AnchoPuzzle; ++x) {
            ASSERT_EQ(teselari.Pic_Imagen.Point(x, y), VERDE) << x << ", " << y;
        }
    }
}
