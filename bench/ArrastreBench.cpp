// The hand in a dealt game: lifting a piece from the middle of the pile and
// dragging it through the mouse handler.
#include <benchmark/benchmark.h>

#include "Partida.h"
#include "board/Arrastre.h"
#include "board/Raton.h"
#include "board/Render.h"
#include "core/PuzzGbl.h"

namespace {

constexpr int16_t CELDAS = 20;
// The distance of each drag step, in pixels along both axes.
constexpr int32_t PASO = 3;

// A real deal (or, with `apilada`, every piece then piled at one place); the
// piece in the middle of the pile brought to the top. Returns the grip: the
// middle of the piece's cell.
void TomaPiezaDeEnMedio(int16_t tipo, bool apilada, int32_t &x, int32_t &y) {
    using namespace PuzzGbl;
    PreparaPartida(CELDAS, tipo, Reparto::Barajado);
    if (apilada) {
        ApilaPiezas();
    }
    PiezaPrioritaria(static_cast<int16_t>(NroPiezas / 2));
    const Pieza &q = Piezas[OrdenPiezas[1]];
    x = q.X + AnchoPieza / 2;
    y = q.Y + AltoPieza / 2;
}

// LevantaPieza of the middle piece of the pile: its box cleared and every
// piece below that reaches into the box repainted. Piled, all the others do.
void BM_LevantaPieza_EnMedio(benchmark::State &state) {
    int32_t x = 0, y = 0;
    TomaPiezaDeEnMedio(static_cast<int16_t>(state.range(0)), state.range(1) != 0, x, y);
    for (auto _ : state) {
        LevantaPieza(x, y);
        benchmark::ClobberMemory();
    }
    state.counters["piezas"] = PuzzGbl::NroPiezas;
}
BENCHMARK(BM_LevantaPieza_EnMedio)
    ->ArgNames({"tipo", "apilada"})
    ->Args({2, 0})
    ->Args({5, 0})
    ->Args({2, 1})
    ->Args({1, 1})
    ->Repetitions(5)
    ->ReportAggregatesOnly(true)
    ->Unit(benchmark::kMicrosecond);

// One step of a drag as the mouse handler takes it: Pic_Trabajo_MouseMove
// with the piece lifted (MuevePieza, then the check of the scrolling edges),
// back and forth by PASO pixels.
void BM_ArrastreRaton(benchmark::State &state) {
    int32_t x = 0, y = 0;
    TomaPiezaDeEnMedio(static_cast<int16_t>(state.range(0)), false, x, y);
    LevantaPieza(x, y);
    bool ida = true;
    for (auto _ : state) {
        const int32_t d = ida ? PASO : 0;
        Pic_Trabajo_MouseMove(1, 0, static_cast<float>(x + d), static_cast<float>(y + d));
        ida = !ida;
        benchmark::ClobberMemory();
    }
    state.counters["piezas"] = PuzzGbl::NroPiezas;
    if (PuzzGbl::PiezaLevantada == 0) {
        state.SkipWithError("the piece was dropped");
    }
}
BENCHMARK(BM_ArrastreRaton)
    ->ArgName("tipo")
    ->Arg(2)
    ->Arg(5)
    ->Arg(1)
    ->Repetitions(5)
    ->ReportAggregatesOnly(true)
    ->Unit(benchmark::kMicrosecond);

} // namespace
