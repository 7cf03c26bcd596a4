// Finding the piece under the mouse, through a deep pile.
//
// The search goes down the pile from the top; only a piece whose box holds
// the point costs a look at a mask (for irregular pieces a whole
// EnmascaraPieza), so the dear cases are points that many boxes hold and few
// pieces cover.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <vector>

#include "Partida.h"
#include "board/Seleccion.h"
#include "core/PuzzGbl.h"

namespace {

constexpr int16_t CELDAS = 20;
// The spacing of the points tried when a point is chosen.
constexpr int32_t PASO_MUESTRA = 3;

enum Caso {
    AciertoAlFondo = 0,  // every piece piled at one place, the point covered
                         // only by the pieces at the bottom of the pile
    FalloEnMonton = 1,   // the same pile, a point in every box covered by none
    MontonDelReparto = 2 // a real deal, the point that most boxes hold
};

struct Punto {
    double x = 0, y = 0;
};

// Whether the piece at position `pos` alone has an opaque pixel at p: it is
// brought to the top and the search is held to one piece.
bool OpacaEn(int16_t pos, Punto p) {
    using namespace PuzzGbl;
    const int16_t total = NroPiezas;
    std::swap(OrdenPiezas[1], OrdenPiezas[pos]);
    NroPiezas = 1;
    const bool opaca = PiezaTocada(p.x, p.y) != 0;
    NroPiezas = total;
    std::swap(OrdenPiezas[1], OrdenPiezas[pos]);
    return opaca;
}

int32_t CuentaOpacas(Punto p) {
    int32_t n = 0;
    for (int16_t i = 1; i <= PuzzGbl::NroPiezas; ++i) {
        n += OpacaEn(i, p) ? 1 : 0;
    }
    return n;
}

// The pile of ApilaPiezas: the points of the common box on a coarse grid.
std::vector<Punto> PuntosDeLaCaja() {
    using namespace PuzzGbl;
    const Pieza &q = Piezas[1];
    std::vector<Punto> puntos;
    for (int32_t y = 0; y < AltoPiezaTotal; y += PASO_MUESTRA) {
        for (int32_t x = 0; x < AnchoPiezaTotal; x += PASO_MUESTRA) {
            puntos.push_back({double(q.X - MargenX + x), double(q.Y - MargenY + y)});
        }
    }
    return puntos;
}

// The point of the pile that the fewest pieces cover (but one at least),
// those pieces then sunk to the bottom of the pile, their order kept.
Punto HundeLasQueCubren() {
    using namespace PuzzGbl;
    Punto mejor;
    int32_t menos = NroPiezas + 1;
    for (const Punto &p : PuntosDeLaCaja()) {
        const int32_t n = CuentaOpacas(p);
        if (n > 0 && n < menos) {
            menos = n;
            mejor = p;
        }
    }
    std::vector<int16_t> arriba, abajo;
    for (int16_t i = 1; i <= NroPiezas; ++i) {
        (OpacaEn(i, mejor) ? abajo : arriba).push_back(OrdenPiezas[i]);
    }
    arriba.insert(arriba.end(), abajo.begin(), abajo.end());
    std::copy(arriba.begin(), arriba.end(), OrdenPiezas.begin() + 1);
    return mejor;
}

// A point of the pile that every box holds and no piece covers; when every
// point is covered by some piece, a point beyond every box.
Punto PuntoSinPieza() {
    for (const Punto &p : PuntosDeLaCaja()) {
        if (PiezaTocada(p.x, p.y) == 0) {
            return p;
        }
    }
    return {1.0, 1.0};
}

// After a real deal: the point held by the most boxes.
Punto PuntoMasCubierto() {
    using namespace PuzzGbl;
    const int32_t w = teselari.Pic_Trabajo.Ancho(), h = teselari.Pic_Trabajo.Alto();
    std::vector<int32_t> cuenta(size_t(w) * h, 0);
    for (int16_t i = 1; i <= NroPiezas; ++i) {
        const Pieza &q = Piezas[OrdenPiezas[i]];
        for (int32_t y = std::max(0, q.Y - MargenY);
             y < std::min(h, q.Y - MargenY + AltoPiezaTotal); ++y) {
            for (int32_t x = std::max(0, q.X - MargenX);
                 x < std::min(w, q.X - MargenX + AnchoPiezaTotal); ++x) {
                ++cuenta[size_t(y) * w + x];
            }
        }
    }
    const auto mayor = std::max_element(cuenta.begin(), cuenta.end()) - cuenta.begin();
    return {double(mayor % w), double(mayor / w)};
}

int32_t CajasQueLoTienen(Punto p) {
    using namespace PuzzGbl;
    int32_t n = 0;
    for (int16_t i = 1; i <= NroPiezas; ++i) {
        const Pieza &q = Piezas[OrdenPiezas[i]];
        const double x0 = q.X - MargenX, y0 = q.Y - MargenY;
        n += p.x >= x0 && p.x < x0 + AnchoPiezaTotal && p.y >= y0 && p.y < y0 + AltoPiezaTotal;
    }
    return n;
}

Punto PreparaCaso(int16_t tipo, Caso caso) {
    PreparaPartida(CELDAS, tipo, Reparto::Barajado);
    if (caso == MontonDelReparto) {
        return PuntoMasCubierto();
    }
    ApilaPiezas();
    return caso == AciertoAlFondo ? HundeLasQueCubren() : PuntoSinPieza();
}

// PiezaTocada at the chosen point. Counters: the position found (0: none)
// and the number of boxes that hold the point.
void BM_PiezaTocada(benchmark::State &state) {
    const auto tipo = static_cast<int16_t>(state.range(0));
    const Punto p = PreparaCaso(tipo, static_cast<Caso>(state.range(1)));
    int16_t hallada = 0;
    for (auto _ : state) {
        hallada = PiezaTocada(p.x, p.y);
        benchmark::DoNotOptimize(hallada);
    }
    state.counters["piezas"] = PuzzGbl::NroPiezas;
    state.counters["posicion"] = hallada;
    state.counters["cajas"] = CajasQueLoTienen(p);
}
BENCHMARK(BM_PiezaTocada)
    ->ArgNames({"tipo", "caso"})
    ->ArgsProduct({{2, 5, 1}, {AciertoAlFondo, FalloEnMonton, MontonDelReparto}})
    ->Repetitions(5)
    ->ReportAggregatesOnly(true)
    ->Unit(benchmark::kMicrosecond);

} // namespace
