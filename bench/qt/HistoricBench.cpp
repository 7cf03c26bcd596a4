// The history book with 32 000 records, drawn with the game's own letter
// (Liberation Sans through Qt) and its two bitmaps from the resources: the
// book opened on its first page, the first visit of a sorted section (its
// hidden list filled and sorted), and a page turn inside a section.
#include <benchmark/benchmark.h>

#include <memory>

#include "../RegistrosBench.h"
#include "core/PuzzGbl.h"
#include "history/FormHistoric.h"
#include "qt/RotuladorQt.h"
#include "qt/VentanaHistoric.h"

namespace {

constexpr int32_t REGISTROS = 32000;

// The letter, the book's pictures and the table, once per benchmark.
class Libro {
  public:
    Libro() {
        using namespace PuzzGbl;
        RestauraValoresIniciales();
        LlenaTablas();
        AnchoPantalla = 1920;
        AltoPantalla = 1080;
        ServiciosPlataforma s;
        s.Texto = &rotulador_;
        s.Historico = ServiciosHistoricoQt();
        InstalaPlataforma(s);
        LlenaHistoricoDeBanco(REGISTROS);
    }
    Libro(const Libro &) = delete;
    Libro &operator=(const Libro &) = delete;
    ~Libro() { InstalaPlataforma(ServiciosPlataforma{}); }

  private:
    RotuladorQt rotulador_;
};

// A new form, loaded and on its first page: what button 10 does before the
// window shows.
std::unique_ptr<FormHistoric> AbreLibro() {
    auto libro = std::make_unique<FormHistoric>();
    libro->Form_Load();
    return libro;
}

void BM_AbreLibro(benchmark::State &state) {
    Libro entorno;
    for (auto _ : state) {
        auto libro = AbreLibro();
        benchmark::DoNotOptimize(libro->Formulario.Fila(0));
    }
}
BENCHMARK(BM_AbreLibro)->Repetitions(5)->ReportAggregatesOnly(true)->Unit(benchmark::kMillisecond);

// Section 2 (by name), 3 (by picture) or 4 (by difficulty) reached by its
// tab: the list of 32 000 keys built and sorted, and its first spread drawn.
void BM_PrimeraVisitaSeccion(benchmark::State &state) {
    Libro entorno;
    const auto seccion = static_cast<int16_t>(state.range(0));
    for (auto _ : state) {
        state.PauseTiming();
        auto libro = AbreLibro();
        state.ResumeTiming();
        switch (seccion) {
        case 2:
            libro->MuestraPorNombre();
            break;
        case 3:
            libro->MuestraPorImagen();
            break;
        default:
            libro->MuestraPorDificultad();
        }
        benchmark::DoNotOptimize(libro->Formulario.Fila(0));
        state.PauseTiming();
        if (libro->Lis_Orden2.ListCount() + libro->Lis_Orden3.ListCount() +
                libro->Lis_Orden4.ListCount() !=
            REGISTROS) {
            state.SkipWithError("the section's list was not filled");
        }
        libro.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(BM_PrimeraVisitaSeccion)
    ->ArgName("seccion")
    ->DenseRange(2, 4)
    ->Repetitions(5)
    ->ReportAggregatesOnly(true)
    ->Unit(benchmark::kMillisecond);

// The next spread of a section whose list is already filled: 1 by date,
// 4 by difficulty. The book goes back to the section's start before its end.
void BM_PasaPagina(benchmark::State &state) {
    Libro entorno;
    const auto seccion = static_cast<int16_t>(state.range(0));
    auto libro = AbreLibro();
    auto abre = [&] {
        libro->ContadorPagina = 0;
        if (seccion == 1) {
            libro->MuestraPorFecha();
        } else {
            libro->MuestraPorDificultad();
        }
    };
    abre();
    for (auto _ : state) {
        libro->PaginaSiguiente();
        benchmark::DoNotOptimize(libro->Formulario.Fila(0));
        if (libro->ContadorPagina >= REGISTROS - 2) {
            abre();
        }
    }
    if (libro->MarcaLibro != seccion) {
        state.SkipWithError("the book left the section");
    }
}
BENCHMARK(BM_PasaPagina)
    ->ArgName("seccion")
    ->Arg(1)
    ->Arg(4)
    ->Repetitions(5)
    ->ReportAggregatesOnly(true)
    ->Unit(benchmark::kMicrosecond);

} // namespace
