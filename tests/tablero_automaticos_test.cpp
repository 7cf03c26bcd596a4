// The moves the game makes by itself: laying the pieces out in rings and
// solving the puzzle, both interruptible between pieces.
#include <numeric>

#include "board/Automaticos.h"
#include "board/Raton.h"
#include "board/Render.h"
#include "core/Cronometro.h"
#include "core/Redondeo.h"
#include "tablero_comun.h"

using namespace PuzzGbl;

namespace {

using Punto = std::pair<int32_t, int32_t>;

// A work area of a chosen size, the panel of a chosen width beside it.
void PonArea(int32_t ancho, int32_t alto, int32_t panel) {
    FormTeselari &f = teselari;
    f.Pic_Trabajo.CambiaTamano(ancho, alto);
    f.Pic_Imagen.CambiaTamano(ancho, alto);
    f.Pic_BotonesSiempre.Move(ancho - panel, 0, panel, 600);
    RepintaTablero();
}

void EmpiezaOrdenar() {
    ModoOrdenar = VERDADERO;
    BotonPulsado[7] = VERDADERO;
    OrdenarPiezas();
}

// Piece k stands at the place `sitios` gives the k-th piece from the bottom
// of the pile.
template <size_t N> void EsperaSitios(const Punto (&sitios)[N]) {
    for (int16_t k = 1; k <= NroPiezas; ++k) {
        EXPECT_EQ(Piezas[k], (Pieza{sitios[N - k].first, sitios[N - k].second, Piezas[k].XCorrecta,
                                    Piezas[k].YCorrecta}))
            << k;
    }
}

void EmpiezaResolver() {
    ModoResolver = VERDADERO;
    BotonPulsado[9] = VERDADERO;
    ResuelvePuzzle();
}

} // namespace

TEST_F(Tablero, OrdenarLlenaLaColumnaYLaFilaDeCadaAnillo) {
    // W 1000, H 700, a panel 120 wide, boxes of 100 x 80, 25 pieces out of
    // place: n 6, f capped at 1.1, steps of 110 and 88.
    PreparaTablero(5, 0, 500, 400);
    DesplazaTodas(-3, -2);
    PonArea(1000, 700, 120);
    const Punto sitios[] = {{780, 0},   {780, 88},  {780, 176}, {780, 264}, {780, 352},
                            {780, 440}, {780, 528}, {780, 616}, {670, 616}, {560, 616},
                            {450, 616}, {340, 616}, {230, 616}, {120, 616}, {10, 616},
                            {670, 0},   {670, 88},  {670, 176}, {670, 264}, {670, 352},
                            {670, 440}, {670, 528}, {560, 528}, {450, 528}, {340, 528}};
    EmpiezaOrdenar();
    // The bottom of the pile first: piece 25, then 24... and the pile ends in
    // its old order.
    EsperaSitios(sitios);
    std::vector<int16_t> enOrden(NroPiezas);
    std::iota(enOrden.begin(), enOrden.end(), int16_t{1});
    EXPECT_EQ(Pila(), enOrden);
    EXPECT_EQ(escritorio.sonidos, std::vector<int16_t>(25, 10));
    EXPECT_EQ(ModoOrdenar, FALSO);
    EXPECT_EQ(BotonPulsado[7], FALSO);
    EXPECT_EQ(PiezaLevantada, FALSO);
    EXPECT_EQ(CursorTrabajo, 9);
    EXPECT_TRUE(TableroAlDia());
}

TEST_F(Tablero, OrdenarConPiezasAnchasMideElEspacioPorLaAltura) {
    // Boxes of 333 x 80 on W 1000, H 300, panel 120: n 4, f = (300 / 4) / 80
    // = 0.9375, steps of 312 and 75. The rings use the area up, ymax falls
    // below zero and each column then ends after a single piece.
    PreparaTablero(3, 0, 1000, 240);
    ASSERT_EQ(AnchoPiezaTotal, 333);
    DesplazaTodas(1, 0);
    PonArea(1000, 300, 120);
    const Punto sitios[] = {{547, 0},  {547, 75}, {547, 150}, {235, 150}, {235, 0},
                            {235, 75}, {-77, 0},  {-389, 0},  {-701, 0}};
    EmpiezaOrdenar();
    EsperaSitios(sitios);
}

TEST_F(Tablero, OrdenarDejaLasColocadasYLasHundeEnLaPila) {
    PreparaTablero(3, 1, 300, 300);
    const std::vector<int16_t> fuera = {2, 5, 9};
    for (int16_t k : fuera) {
        PonPieza(k, Piezas[k].XCorrecta + 1, Piezas[k].YCorrecta + 1);
    }
    RepintaTablero();
    EmpiezaOrdenar();
    // The three on top, in their old order among themselves; the placed ones
    // below, in theirs, and still at home.
    EXPECT_EQ(Pila(), (std::vector<int16_t>{2, 5, 9, 1, 3, 4, 6, 7, 8}));
    int32_t enCasa = 0;
    for (int16_t k = 1; k <= NroPiezas; ++k) {
        enCasa += PiezaEnSuSitio(k) ? 1 : 0;
    }
    EXPECT_EQ(enCasa, NroPiezas - 3);
    EXPECT_EQ(escritorio.sonidos, std::vector<int16_t>(fuera.size(), 10));
    // One yield a round, all rounds, and one a sound.
    EXPECT_EQ(escritorio.eventos, NroPiezas + 3);
    EXPECT_TRUE(TableroAlDia());
}

TEST_F(Tablero, ConTodoColocadoNiOrdenarNiResolverMuevenNada) {
    PreparaTablero(4, 1, 400, 300);
    const std::vector<Pieza> antes = Piezas;
    PartidaValida = VERDADERO;
    EmpiezaOrdenar();
    EmpiezaResolver();
    EXPECT_EQ(Piezas, antes);
    EXPECT_TRUE(escritorio.sonidos.empty());
    EXPECT_EQ(PartidaValida, VERDADERO);
    EXPECT_EQ(PuzzleCompleto, VERDADERO);
}

// Stopped after the first piece; between two pieces the last one is still
// "in the hand", and a release then drops it by the rules of a drop.
TEST_F(Tablero, OrdenarSeParaTrasLaPiezaEnCurso) {
    PreparaTablero(5, 0, 500, 400);
    DesplazaTodas(3, 2);
    PonArea(1000, 700, 120);
    const std::vector<Pieza> antes = Piezas;
    escritorio.alDejarPasarEventos = [](int32_t n) {
        if (n == 2) { // the yield of the round, after the sound
            EXPECT_EQ(PiezaLevantada, VERDADERO);
            Pic_Trabajo_MouseUp(1, 0, 0, 0);
            EXPECT_EQ(PiezaLevantada, FALSO);
            ModoOrdenar = FALSO;
        }
    };
    EmpiezaOrdenar();
    // (780, 0) is beside the panel and in the view: the piece stays there,
    // free, and the drop sounds as such.
    EXPECT_EQ(Piezas[25].X, 780);
    EXPECT_EQ(Piezas[25].Y, 0);
    for (int16_t k = 1; k < NroPiezas; ++k) {
        EXPECT_EQ(Piezas[k], antes[k]) << k;
    }
    EXPECT_EQ(OrdenPiezas[1], 25);
    EXPECT_EQ(escritorio.sonidos, (std::vector<int16_t>{10, 10}));
    EXPECT_EQ(BotonPulsado[7], FALSO);
    EXPECT_EQ(teselari.Pic_Trabajo.MousePointer, 0);
    EXPECT_TRUE(TableroAlDia());
}

class Resolver : public Tablero, public ::testing::WithParamInterface<int16_t> {};

// Stopped after the first piece, the solver leaves that one at home and the
// rest where they were; run again, it takes all of them home, the pile back
// in its order.
TEST_P(Resolver, CortadoTrasLaPrimeraPiezaYDespuesTodasASuSitio) {
    PreparaTablero(4, GetParam(), 400, 300);
    int32_t fuera = 0;
    for (int16_t k = 1; k <= NroPiezas; ++k) {
        if (k % 5 != 0) {
            PonPieza(k, 450 + (k * 37) % 300, 320 + (k * 53) % 200);
            ++fuera;
        }
    }
    for (const int16_t i : std::initializer_list<int16_t>{3, 9, 14, 2, 6}) {
        PiezaPrioritaria(i);
    }
    RepintaTablero();
    ArrancaCronometro();
    PartidaValida = VERDADERO;
    const std::vector<int16_t> pila = Pila();
    const int16_t arriba = OrdenPiezas[1];
    ASSERT_FALSE(PiezaEnSuSitio(arriba));
    escritorio.alDejarPasarEventos = [](int32_t) { ModoResolver = FALSO; };
    EmpiezaResolver();
    for (int16_t k = 1; k <= NroPiezas; ++k) {
        EXPECT_EQ(PiezaEnSuSitio(k), k == arriba || k % 5 == 0) << k;
    }
    EXPECT_EQ(Pila(), pila);
    EXPECT_EQ(PartidaValida, FALSO);
    EXPECT_EQ(PuzzleCompleto, FALSO);
    EXPECT_EQ(BotonPulsado[9], FALSO);
    EXPECT_TRUE(TableroAlDia());

    escritorio.alDejarPasarEventos = nullptr;
    EmpiezaResolver();
    for (int16_t k = 1; k <= NroPiezas; ++k) {
        EXPECT_TRUE(PiezaEnSuSitio(k)) << k;
    }
    EXPECT_EQ(Pila(), pila);
    EXPECT_EQ(PiezasColocadas, NroPiezas);
    EXPECT_EQ(PuzzleCompleto, VERDADERO);
    EXPECT_EQ(RelojEnMarcha, VERDADERO); // the clock goes on
    EXPECT_TRUE(escritorio.mensajes.empty());
    EXPECT_EQ(escritorio.sonidos, std::vector<int16_t>(fuera, 6));
    EXPECT_EQ(ModoResolver, FALSO);
    EXPECT_EQ(BotonPulsado[9], FALSO);
    EXPECT_EQ(PiezaLevantada, FALSO);
    EXPECT_EQ(teselari.Pic_Trabajo.MousePointer, 0);
    EXPECT_TRUE(AreaComo(teselari.Pic_Origin)); // the clean picture
}

INSTANTIATE_TEST_SUITE_P(Cortes, Resolver, ::testing::Values(0, 1, 2, 5));
