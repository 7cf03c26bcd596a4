// The entry point of the benchmark suite.
#include <benchmark/benchmark.h>

BENCHMARK_MAIN();
