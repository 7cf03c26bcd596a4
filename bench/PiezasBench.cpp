// One piece at a time: its mask, lifting it and one step of a drag.
#include <benchmark/benchmark.h>

#include "Partida.h"
#include "board/Arrastre.h"
#include "board/Render.h"
#include "core/PuzzGbl.h"
#include "cutting/Corte.h"

namespace {

constexpr int16_t CELDAS = 20;
// The distance of each drag step, in pixels along both axes.
constexpr int32_t PASO = 3;

// EnmascaraPieza for the piece numbered `pieza`, every piece at home.
// 190 is the cell at row 10, column 10; 400 the top left corner.
void BM_EnmascaraPieza(benchmark::State &state) {
    const auto tipo = static_cast<int16_t>(state.range(0));
    const auto pieza = static_cast<int16_t>(state.range(1));
    PreparaPartida(CELDAS, tipo, Reparto::SinPintar);
    const int16_t posicion = PosicionDePieza(pieza);
    if (posicion == 0) {
        state.SkipWithError("no such piece");
        return;
    }
    for (auto _ : state) {
        EnmascaraPieza(posicion);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(BM_EnmascaraPieza)
    ->ArgNames({"tipo", "pieza"})
    ->Args({1, PiezaDeCelda(CELDAS, 10, 10)})
    ->Args({1, PiezaDeCelda(CELDAS, 0, 0)})
    ->Args({5, PiezaDeCelda(CELDAS, 10, 10)})
    ->Repetitions(5)
    ->ReportAggregatesOnly(true)
    ->Unit(benchmark::kMicrosecond);

// The pile painted at home, the inner piece of row 10, column 10 brought to
// the top; returns the grip: the middle of the piece's cell.
void TomaPiezaInterior(int16_t tipo, int32_t &x, int32_t &y) {
    using namespace PuzzGbl;
    PreparaPartida(CELDAS, tipo, Reparto::EnCasa);
    PiezaPrioritaria(PosicionDePieza(PiezaDeCelda(CELDAS, 10, 10)));
    const Pieza &q = Piezas[OrdenPiezas[1]];
    x = q.X + AnchoPieza / 2;
    y = q.Y + AltoPieza / 2;
}

// Lifting the piece out of the composite: its box cleared and the pieces
// below it repainted inside the box.
void BM_LevantaPieza(benchmark::State &state) {
    int32_t x = 0, y = 0;
    TomaPiezaInterior(static_cast<int16_t>(state.range(0)), x, y);
    for (auto _ : state) {
        LevantaPieza(x, y);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(BM_LevantaPieza)
    ->ArgName("tipo")
    ->Arg(1)
    ->Arg(5)
    ->Repetitions(5)
    ->ReportAggregatesOnly(true)
    ->Unit(benchmark::kMicrosecond);

// One step of a drag: the piece drawn at its new place on the work area and
// the vacated part of its old box repaired. The piece goes back and forth
// by PASO pixels.
void BM_MuevePieza(benchmark::State &state) {
    int32_t x = 0, y = 0;
    TomaPiezaInterior(static_cast<int16_t>(state.range(0)), x, y);
    LevantaPieza(x, y);
    bool ida = true;
    for (auto _ : state) {
        const int32_t d = ida ? PASO : 0;
        MuevePieza(x + d, y + d);
        ida = !ida;
        benchmark::ClobberMemory();
    }
}
BENCHMARK(BM_MuevePieza)
    ->ArgName("tipo")
    ->Arg(1)
    ->Arg(0)
    ->Arg(5)
    ->Repetitions(5)
    ->ReportAggregatesOnly(true)
    ->Unit(benchmark::kMicrosecond);

} // namespace
