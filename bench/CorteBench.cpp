// Cutting the picture: PreparaBitmap for each of the six cuts, 20 x 20 cells
// of a 1024 x 768 picture on a 1920 x 1080 screen.
#include <benchmark/benchmark.h>

#include "Partida.h"
#include "core/PuzzGbl.h"
#include "cutting/Corte.h"

namespace {

constexpr int16_t CELDAS = 20;

// The cut alone: in restore mode PreparaBitmap does not deal.
void BM_PreparaBitmap_SoloCorte(benchmark::State &state) {
    const auto tipo = static_cast<int16_t>(state.range(0));
    PreparaPartida(CELDAS, tipo, Reparto::SinPintar);
    PuzzGbl::SesionRestaurando = VERDADERO;
    for (auto _ : state) {
        PreparaBitmap();
        benchmark::ClobberMemory();
    }
    state.counters["piezas"] = PuzzGbl::NroPiezas;
}
BENCHMARK(BM_PreparaBitmap_SoloCorte)
    ->ArgName("tipo")
    ->DenseRange(0, 5)
    ->Repetitions(5)
    ->ReportAggregatesOnly(true)
    ->Unit(benchmark::kMillisecond);

// The cut and a real deal at the fastest speed: mixed pile, random places,
// every piece painted as it falls.
void BM_PreparaBitmap_CorteYReparto(benchmark::State &state) {
    const auto tipo = static_cast<int16_t>(state.range(0));
    PreparaPartida(CELDAS, tipo, Reparto::SinPintar);
    for (auto _ : state) {
        PuzzGbl::SesionRestaurando = FALSO;
        PreparaBitmap();
        benchmark::ClobberMemory();
    }
    state.counters["piezas"] = PuzzGbl::NroPiezas;
}
BENCHMARK(BM_PreparaBitmap_CorteYReparto)
    ->ArgName("tipo")
    ->DenseRange(0, 5)
    ->Repetitions(5)
    ->ReportAggregatesOnly(true)
    ->Unit(benchmark::kMillisecond);

} // namespace
