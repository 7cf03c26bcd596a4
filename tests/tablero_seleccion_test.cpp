// The hand on the board: which piece a click finds through the pile, the
// hover cursor and the scrolling at the edges of the view.
#include <utility>

#include "board/Arrastre.h"
#include "board/Raton.h"
#include "board/Render.h"
#include "board/Seleccion.h"
#include "services/Sonidos.h"
#include "tablero_comun.h"

using namespace PuzzGbl;

namespace {

// The piece at `posicion` comes to the top and is gripped at (x, y), as a
// press does.
void Agarra(int16_t posicion, int32_t x, int32_t y) {
    PiezaPrioritaria(posicion);
    LevantaPieza(x, y);
}

} // namespace

TEST_F(Tablero, UnHuecoDeLaPiezaDeArribaDejaVerLaDeAbajo) {
    PreparaTablero(4, 1, 400, 300);
    const int16_t arriba = 6, abajo = 11;
    PonPieza(arriba, 500, 300);
    PiezaPrioritaria(PosicionDe(abajo));
    PiezaPrioritaria(PosicionDe(arriba));
    ASSERT_EQ(OrdenPiezas[1], arriba);
    ASSERT_EQ(OrdenPiezas[2], abajo);
    // The upper box's corner lies outside its piece, the cell's centre inside;
    // the lower piece's centre goes under that corner.
    EnmascaraPieza(1);
    const int32_t cx = MargenX + AnchoPieza / 2, cy = MargenY + AltoPieza / 2;
    ASSERT_EQ(teselari.Pic_PiezaMascara.Point(0, 0), COLOR_BLANCO);
    ASSERT_EQ(teselari.Pic_PiezaMascara.Point(cx, cy), COLOR_NEGRO);
    const int32_t ax = 500 - MargenX, ay = 300 - MargenY;
    PonPieza(abajo, ax - cx + MargenX, ay - cy + MargenY);
    RepintaTablero();
    struct Caso {
        const char *que;
        int32_t x, y;
        int16_t posicion;
    };
    const Caso casos[] = {
        {"gap of the upper piece over the lower one", ax, ay, 2},
        {"opaque pixel of the upper piece", ax + cx, ay + cy, 1},
        {"far corner of the upper box, nothing below", ax + AnchoPiezaTotal - 1,
         ay + AltoPiezaTotal - 1, 0},
    };
    for (const Caso &c : casos) {
        EXPECT_EQ(PiezaTocada(c.x, c.y), c.posicion) << c.que;
        if (c.posicion != 0) {
            EXPECT_EQ(PiezaTemporal, Piezas[OrdenPiezas[c.posicion]]) << c.que;
        }
    }
}

TEST_F(Tablero, GanaLaPiezaMasAltaYLaCajaIncluyeSusBordes) {
    PreparaTablero(4, 0, 320, 240); // cells of 80 x 60
    PonPieza(3, 500, 300);
    PonPieza(9, 540, 330); // overlaps the lower right quarter of piece 3
    PiezaPrioritaria(PosicionDe(3));
    PiezaPrioritaria(PosicionDe(9));
    RepintaTablero();
    // x, y and the piece found there (0: none).
    const int32_t casos[][3] = {
        {545, 335, 9}, // the overlap: the upper one
        {505, 305, 3}, {539, 359, 3}, {579, 329, 3}, {580, 300, 0}, {500, 360, 0},
        {619, 389, 9}, {620, 389, 0}, {619, 390, 0}, {540, 330, 9}, {539, 329, 3},
        {499, 300, 0}, {10, 10, 16}, // the top left cell is the last piece
    };
    for (const auto &[x, y, pieza] : casos) {
        const int16_t i = PiezaTocada(x, y);
        EXPECT_EQ(i == 0 ? 0 : OrdenPiezas[i], pieza) << x << ", " << y;
    }
}

class Parejas : public Tablero, public ::testing::WithParamInterface<int16_t> {};

TEST_P(Parejas, LaFiguraYElMarcoDeUnaCeldaSeDistinguenPorLaMascara) {
    PreparaTablero(3, GetParam(), 300, 300);
    const int16_t marco = 5, figura = static_cast<int16_t>(5 + 9);
    ASSERT_EQ(Piezas[figura].XCorrecta, Piezas[marco].XCorrecta);
    const auto negro = PuntoDeCelda(marco, COLOR_NEGRO);
    const auto blanco = PuntoDeCelda(marco, COLOR_BLANCO);
    ASSERT_TRUE(negro && blanco);
    const int32_t x0 = Piezas[marco].XCorrecta, y0 = Piezas[marco].YCorrecta;
    for (bool figuraArriba : {false, true}) {
        PiezaPrioritaria(PosicionDe(figuraArriba ? marco : figura));
        PiezaPrioritaria(PosicionDe(figuraArriba ? figura : marco));
        const int16_t enNegro = PiezaTocada(x0 + negro->first, y0 + negro->second);
        const int16_t enBlanco = PiezaTocada(x0 + blanco->first, y0 + blanco->second);
        EXPECT_EQ(OrdenPiezas[enNegro], figura) << figuraArriba;
        EXPECT_EQ(OrdenPiezas[enBlanco], marco) << figuraArriba;
    }
}

INSTANTIATE_TEST_SUITE_P(Dobles, Parejas, ::testing::Values(2, 3, 4, 5));

TEST_F(Tablero, ElCursorDiceSiLaPiezaDebajoEstaEnSuSitio) {
    PreparaTablero(4, 0, 320, 240);
    // Piece 16 has the top left cell, 4 the one at (0, 180); 15 goes away
    // from home, on top of the pile and over piece 6.
    PonPieza(15, 170, 130);
    PiezaPrioritaria(PosicionDe(15));
    RepintaTablero();
    CuadroImagen &t = teselari.Pic_Trabajo;
    struct Caso {
        const char *que;
        int32_t x, y;
        int16_t cursor, puntero;
        const char *icono;
    };
    const Caso casos[] = {
        {"placed piece", 10, 200, 1, PUNTERO_PROPIO, "MANOVERDE"},
        {"no piece", 700, 300, 0, PUNTERO_NORMAL, ""},
        {"misplaced piece over a placed one", 175, 135, 2, PUNTERO_PROPIO, "MANOROJA"},
    };
    for (const Caso &c : casos) {
        CursorPanel = 1;
        Pic_Trabajo_MouseMove(0, 0, static_cast<float>(c.x), static_cast<float>(c.y));
        EXPECT_EQ(CursorTrabajo, c.cursor) << c.que;
        EXPECT_EQ(t.MousePointer, c.puntero) << c.que;
        if (c.puntero == PUNTERO_PROPIO) {
            EXPECT_EQ(t.MouseIcon, c.icono) << c.que;
        }
        EXPECT_EQ(CursorPanel, 9) << c.que;
    }
    // The pointer is set only when the wanted cursor changes: after a pick
    // (CursorTrabajo 0) the four arrows stay until a piece is under the mouse.
    t.MousePointer = PUNTERO_CUATRO_FLECHAS;
    CursorTrabajo = 0;
    Pic_Trabajo_MouseMove(0, 0, 700, 300);
    EXPECT_EQ(t.MousePointer, PUNTERO_CUATRO_FLECHAS);
    Pic_Trabajo_MouseMove(0, 0, 100, 100);
    EXPECT_EQ(t.MouseIcon, "MANOVERDE");
}

TEST_F(Tablero, LaManoDesplazaLaVistaEnLosBordes) {
    // A 800 x 600 screen and a work area of 1224 x 968: bars of 784 x 584
    // visible pixels.
    PreparaTablero(4, 0, 1024, 768, 800, 600);
    FormTeselari &f = teselari;
    f.BarraVer.LargeChange = 100;
    f.BarraHor.LargeChange = 120;
    struct Caso {
        const char *que;
        int32_t v0, h0;
        float x, y;
        int32_t v, h;
    };
    const Caso casos[] = {
        {"up, on the first visible row", 150, 0, 400, 150, 50, 0},
        {"up, one pixel above it", 150, 0, 400, 149, 150, 0},
        {"up, a short last step", 30, 0, 400, 30, 0, 0},
        {"down, past the last visible row", 0, 0, 400, 585, 100, 0},
        {"down, on the last visible row", 0, 0, 400, 584, 0, 0},
        {"left, on the first visible column", 0, 200, 200, 300, 0, 80},
        {"left, one pixel beyond it", 0, 200, 199, 300, 0, 200},
        {"right, past the last visible column", 0, 0, 785, 300, 0, 120},
        {"right, on the last visible column", 0, 0, 784, 300, 0, 0},
        {"right, a short last step", 0, 400, 1185, 300, 0, 440},
        {"right, outside the work area", 0, 0, 1224, 300, 0, 0},
        {"up before left", 150, 200, 200, 150, 50, 200},
    };
    PonPieza(1, 0, 0);
    RepintaTablero();
    Agarra(1, 40, 30);
    for (const Caso &c : casos) {
        f.BarraVer.PonValue(c.v0);
        f.BarraHor.PonValue(c.h0);
        Pic_Trabajo_MouseMove(1, 0, c.x, c.y);
        EXPECT_EQ(f.BarraVer.Value(), c.v) << c.que;
        EXPECT_EQ(f.BarraHor.Value(), c.h) << c.que;
        EXPECT_EQ(f.Pic_Trabajo.Top, -c.v) << c.que;
        EXPECT_EQ(f.Pic_Trabajo.Left, -c.h) << c.que;
        // The piece follows the mouse wherever it goes.
        EXPECT_EQ(Piezas[1].X, static_cast<int32_t>(c.x) - 40) << c.que;
        EXPECT_EQ(Piezas[1].Y, static_cast<int32_t>(c.y) - 30) << c.que;
    }
}

// While something else holds the board no piece's cursor shows (the coloured
// view, the game's own moves, a drop under way, a piece in the hand), and the
// piece in the hand neither scrolls the view nor moves.
TEST_F(Tablero, MientrasOtraCosaOcupaElTableroLaManoNoActua) {
    PreparaTablero(4, 0, 1024, 768, 800, 600);
    FormTeselari &f = teselari;
    PonPieza(1, 0, 0);
    RepintaTablero();
    for (int16_t *bandera :
         {&ModoColocadas, &ModoOrdenar, &ModoResolver, &PiezaSoltandose, &PiezaLevantada}) {
        if (bandera == &PiezaLevantada) {
            Agarra(1, 40, 30);
        }
        *bandera = VERDADERO;
        CursorTrabajo = 0;
        CursorPanel = 1;
        f.Pic_Trabajo.MousePointer = PUNTERO_ESPERA;
        Pic_Trabajo_MouseMove(0, 0, 100, 100);
        EXPECT_EQ(CursorTrabajo, 0);
        EXPECT_EQ(CursorPanel, 1);
        EXPECT_EQ(f.Pic_Trabajo.MousePointer, PUNTERO_ESPERA);
        if (bandera != &PiezaLevantada) {
            *bandera = FALSO;
        }
    }
    const Pieza enLaMano = Piezas[1];
    for (int16_t *bandera : {&ModoOrdenar, &ModoResolver, &PiezaSoltandose}) {
        *bandera = VERDADERO;
        Pic_Trabajo_MouseMove(1, 0, 785, 585);
        EXPECT_EQ(f.BarraVer.Value(), 0);
        EXPECT_EQ(f.BarraHor.Value(), 0);
        EXPECT_EQ(Piezas[1], enLaMano);
        *bandera = FALSO;
    }
}
