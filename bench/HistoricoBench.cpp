// The history file with 32 000 records: reading it whole at start, and the
// record of a finish added to it.
#include <benchmark/benchmark.h>

#include <stdlib.h>

#include <cstdio>
#include <filesystem>
#include <string>

#include "RegistrosBench.h"
#include "core/Plataforma.h"
#include "core/PuzzGbl.h"
#include "history/CamposHistorico.h"
#include "history/Historico.h"

namespace {

constexpr int32_t REGISTROS = 32000;

// A working folder on the disk of the build (not a memory file system, so
// that the write reaches a disk), holding TESEL32.HIS with the records.
// The folder where the benchmarks started: the reader enters the working
// folder, and each benchmark comes back here when it removes it.
const std::filesystem::path &Inicio() {
    static const std::filesystem::path inicio = std::filesystem::current_path();
    return inicio;
}

void Quita(const std::string &carpeta) {
    std::filesystem::current_path(Inicio());
    std::error_code error;
    std::filesystem::remove_all(carpeta, error);
}

std::string CarpetaConHistorico() {
    std::string plantilla = (Inicio() / "teselari-bench-historia-XXXXXX").string();
    if (mkdtemp(plantilla.data()) == nullptr) {
        return {};
    }
    const std::string carpeta = plantilla;
    std::string texto;
    for (int32_t i = 1; i <= REGISTROS; ++i) {
        texto += LineaHistorico(RegistroDeBanco(static_cast<uint32_t>(i)));
    }
    std::FILE *f = std::fopen((carpeta + "/TESEL32.HIS").c_str(), "wb");
    if (f == nullptr) {
        return {};
    }
    std::fwrite(texto.data(), 1, texto.size(), f);
    std::fclose(f);
    return carpeta;
}

FechaHora Reloj() {
    return {"23/11/2026", "18:05:09"};
}

void BM_LeeHistorico(benchmark::State &state) {
    const std::string carpeta = CarpetaConHistorico();
    PuzzGbl::DirectorioTrabajo = carpeta;
    for (auto _ : state) {
        LeeHistorico();
        benchmark::DoNotOptimize(PuzzGbl::Historico.data());
    }
    if (PuzzGbl::NroRegistrosHistorico != REGISTROS || PuzzGbl::ErrorFichero != 0) {
        state.SkipWithError("the history was not read whole");
    }
    Quita(carpeta);
}
BENCHMARK(BM_LeeHistorico)
    ->Repetitions(5)
    ->ReportAggregatesOnly(true)
    ->Unit(benchmark::kMillisecond);

// The file is read and written again beside the old one, made to reach the
// disk and renamed: it grows by one line per iteration, a few hundred lines
// over the 32 000 by the end.
void BM_AnadeHistorico(benchmark::State &state) {
    const std::string carpeta = CarpetaConHistorico();
    PuzzGbl::DirectorioTrabajo = carpeta;
    LeeHistorico();
    ServiciosPlataforma servicios;
    servicios.Calendario = Reloj;
    InstalaPlataforma(servicios);
    PuzzGbl::NombreImagen = "CASA.JPG";
    for (auto _ : state) {
        AnadeHistorico();
    }
    if (!PuzzGbl::LineasHistoricoPendientes.empty()) {
        state.SkipWithError("a record did not reach the file");
    }
    InstalaPlataforma(ServiciosPlataforma{});
    Quita(carpeta);
}
BENCHMARK(BM_AnadeHistorico)
    ->Repetitions(5)
    ->ReportAggregatesOnly(true)
    ->Unit(benchmark::kMillisecond);

} // namespace
