// Peak memory of a whole game, few pieces against many, and the memcpy
// baselines of the timings.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include "Partida.h"

namespace {

// The child mode. A process started with this variable set to "N,T,FD" runs
// only BM_PicoHijo, which forks once more: the grandchild sets up and deals
// one game of N cells per side and cut T, then writes its peak resident set
// (getrusage ru_maxrss, KiB) as text to the file descriptor FD.
//
// Why exec and then fork. The peak of a process never goes down, and Linux
// carries it over an exec: a child forked from this benchmark and exec'd
// starts with the peak of the pages it shared with its parent, the games of
// the benchmarks run before. A process forked after the exec has a peak of
// its own, starting from the small fresh image.
constexpr const char *VARIABLE_PICO_HIJO = "TESELARI_PICO_HIJO";

void BM_PicoHijo(benchmark::State &state) {
    int n = 0, tipo = 0, fd = -1;
    const char *valor = std::getenv(VARIABLE_PICO_HIJO);
    if (valor == nullptr || std::sscanf(valor, "%d,%d,%d", &n, &tipo, &fd) != 3 || fd < 0) {
        state.SkipWithError("bad child arguments");
        return;
    }
    for (auto _ : state) {
        const pid_t nieto = fork();
        if (nieto == 0) {
            PreparaPartida(static_cast<int16_t>(n), static_cast<int16_t>(tipo), Reparto::Barajado);
            rusage uso{};
            if (getrusage(RUSAGE_SELF, &uso) != 0 ||
                dprintf(fd, "%ld\n", static_cast<long>(uso.ru_maxrss)) < 0) {
                _exit(1);
            }
            _exit(0);
        }
        int estado = 0;
        if (nieto < 0 || waitpid(nieto, &estado, 0) != nieto || !WIFEXITED(estado) ||
            WEXITSTATUS(estado) != 0) {
            state.SkipWithError("the grandchild failed");
        }
    }
    close(fd);
}

// Registered in the child only, so an ordinary run never lists it.
const bool hijo_registrado =
    std::getenv(VARIABLE_PICO_HIJO) != nullptr &&
    benchmark::RegisterBenchmark("BM_PicoHijo", BM_PicoHijo)->Iterations(1)->Repetitions(1) !=
        nullptr;

// The bytes of the picture, and of the work area of a 1024 x 768 picture on a
// 1920 x 1080 screen (the screen less the two 16-pixel scroll bars).
constexpr int64_t BYTES_IMAGEN = int64_t{ANCHO_IMAGEN} * ALTO_IMAGEN * 4;
constexpr int64_t BYTES_TRABAJO = int64_t{1920 - 16} * (1080 - 16) * 4;

// Runs this program again (see BM_PicoHijo) to measure one game in a fresh
// process; returns its peak resident set in KiB, or -1 on failure.
long PicoDeUnaPartida(int n, int tipo) {
    int tubo[2];
    if (pipe(tubo) != 0) {
        return -1;
    }
    const pid_t hijo = fork();
    if (hijo < 0) {
        close(tubo[0]);
        close(tubo[1]);
        return -1;
    }
    if (hijo == 0) {
        close(tubo[0]);
        const std::string valor =
            std::to_string(n) + "," + std::to_string(tipo) + "," + std::to_string(tubo[1]);
        setenv(VARIABLE_PICO_HIJO, valor.c_str(), 1);
        // The child's own report is of no use: its number comes by the pipe.
        const int nulo = open("/dev/null", O_WRONLY);
        if (nulo >= 0) {
            dup2(nulo, STDOUT_FILENO);
            dup2(nulo, STDERR_FILENO);
            close(nulo);
        }
        execl("/proc/self/exe", "teselari_bench", "--benchmark_filter=^BM_PicoHijo/",
              static_cast<char *>(nullptr));
        _exit(127);
    }
    close(tubo[1]);
    std::string texto;
    char trozo[64];
    ssize_t leidos;
    while ((leidos = read(tubo[0], trozo, sizeof trozo)) > 0) {
        texto.append(trozo, static_cast<size_t>(leidos));
    }
    close(tubo[0]);
    int estado = 0;
    if (waitpid(hijo, &estado, 0) != hijo || !WIFEXITED(estado) || WEXITSTATUS(estado) != 0 ||
        texto.empty()) {
        return -1;
    }
    return std::strtol(texto.c_str(), nullptr, 10);
}

// 9 pieces (3 x 3 rectangles) against 800 (20 x 20 doubles): the memory
// must not grow with the number of pieces.
void BM_PicoMemoria_9_vs_800(benchmark::State &state) {
    long pico9 = -1, pico800 = -1;
    for (auto _ : state) {
        pico9 = PicoDeUnaPartida(3, 0);
        pico800 = PicoDeUnaPartida(20, 2);
    }
    if (pico9 <= 0 || pico800 <= 0) {
        state.SkipWithError("the child process did not report its peak");
        return;
    }
    state.counters["pico_kib_9"] = static_cast<double>(pico9);
    state.counters["pico_kib_800"] = static_cast<double>(pico800);
    state.counters["razon_800_9"] = static_cast<double>(pico800) / static_cast<double>(pico9);
}
BENCHMARK(BM_PicoMemoria_9_vs_800)->Iterations(1)->Repetitions(1)->Unit(benchmark::kMillisecond);

// Copying the same bytes with memcpy: the floor any raster work on them
// stands against.
void BM_Memcpy(benchmark::State &state) {
    const auto bytes = static_cast<size_t>(state.range(0));
    std::vector<unsigned char> origen(bytes), destino(bytes);
    for (size_t j = 0; j < bytes; ++j) {
        origen[j] = static_cast<unsigned char>(j * 131u);
    }
    for (auto _ : state) {
        std::memcpy(destino.data(), origen.data(), bytes);
        benchmark::DoNotOptimize(destino.data());
        benchmark::ClobberMemory();
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * static_cast<int64_t>(bytes));
}
BENCHMARK(BM_Memcpy)
    ->ArgName("bytes")
    ->Arg(BYTES_IMAGEN)
    ->Arg(BYTES_TRABAJO)
    ->Repetitions(5)
    ->ReportAggregatesOnly(true)
    ->Unit(benchmark::kMicrosecond);

} // namespace
