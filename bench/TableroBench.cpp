// Painting the whole pile in restore mode: Barajar with SesionRestaurando
// set keeps the order and places and only paints every piece.
#include <benchmark/benchmark.h>

#include "Partida.h"
#include "board/Barajar.h"
#include "core/PuzzGbl.h"

namespace {

constexpr int16_t CELDAS = 20;

// After one real deal, so the pieces lie scattered over the board.
void BM_Barajar_Restaurando(benchmark::State &state) {
    PreparaPartida(CELDAS, static_cast<int16_t>(state.range(0)), Reparto::Barajado);
    PuzzGbl::SesionRestaurando = VERDADERO;
    for (auto _ : state) {
        Barajar();
        benchmark::ClobberMemory();
    }
    state.counters["piezas"] = PuzzGbl::NroPiezas;
}
BENCHMARK(BM_Barajar_Restaurando)
    ->ArgName("tipo")
    ->Arg(5)
    ->Arg(2)
    ->Arg(1)
    ->Arg(0)
    ->Repetitions(5)
    ->ReportAggregatesOnly(true)
    ->Unit(benchmark::kMillisecond);

} // namespace
