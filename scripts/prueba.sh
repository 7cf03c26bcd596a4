#!/usr/bin/env bash
# Builds Teselari twice, in Release and with AddressSanitizer and
# UndefinedBehaviorSanitizer, and runs every test in both builds; then fuzzes
# the readers of the saved game and of the history file for a short while
# when clang is installed.
set -euo pipefail

raiz=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$raiz"

bash scripts/instala-dependencias.sh

# Ninja when there is one, unless the build folder was already configured
# with another generator.
configura() {
    local carpeta=$1
    shift
    local generador=()
    if [[ ! -f "$carpeta/CMakeCache.txt" ]] && command -v ninja >/dev/null 2>&1; then
        generador=(-G Ninja)
    fi
    cmake -S . -B "$carpeta" "${generador[@]}" "$@"
}

# A failing test run does not stop the script: the other build is still
# tested, and the exit status tells at the end. A failing build stops it.
fallos=()

echo "== Includes of src/ point down"
bash scripts/comprueba-capas.sh || fallos+=(capas)

echo "== Release build"
configura build/release -DCMAKE_BUILD_TYPE=Release -DTESELARI_SANITIZE=OFF -DTESELARI_ESTRICTO=ON \
    -DTESELARI_TESTS=ON -DTESELARI_BENCH=ON -DTESELARI_TOOLS=ON
cmake --build build/release -j2
echo "== Release tests"
ctest --test-dir build/release --output-on-failure --no-tests=error -j2 || fallos+=(Release)

# -O1 and line tables only: a sanitizer's report still names the file and
# line, and the build takes half the time of -O2 with full debug data.
echo "== Sanitizer build"
configura build/sanitizers -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_FLAGS_RELWITHDEBINFO="-O1 -g1 -DNDEBUG" \
    -DTESELARI_SANITIZE=ON -DTESELARI_ESTRICTO=ON -DTESELARI_TESTS=ON -DTESELARI_BENCH=OFF -DTESELARI_TOOLS=OFF
cmake --build build/sanitizers -j2
echo "== Sanitizer tests"
ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 \
    ctest --test-dir build/sanitizers --output-on-failure --no-tests=error -j2 ||
    fallos+=(sanitizers)

# The readers of the saved game and of the history file under libFuzzer,
# 20 seconds each, from their seed corpora, when clang is there. Only a crash
# the fuzzer reports (or an invariant broken, which aborts) counts as a
# failure; a missing compiler or runtime only skips the step.
echo "== Fuzzing the saved game and the history file (20 s each)"
# Whether this clang has the fuzzer's runtime at all: a one-line program.
hay_libfuzzer() {
    command -v clang++ >/dev/null 2>&1 || return 1
    local prueba
    prueba=$(mktemp -d)
    printf '%s\n' '#include <cstddef>' '#include <cstdint>' \
        'extern "C" int LLVMFuzzerTestOneInput(const uint8_t *, size_t) { return 0; }' \
        >"$prueba/f.cpp"
    clang++ -fsanitize=fuzzer "$prueba/f.cpp" -o "$prueba/f" >/dev/null 2>&1
    local estado=$?
    rm -rf "$prueba"
    return $estado
}
# fuzzea OBJETIVO SEMILLAS DICCIONARIO
fuzzea() {
    local corpus registro=build/fuzz/$1.log
    corpus=$(mktemp -d)
    if build/fuzz/"$1" -max_total_time=20 -artifact_prefix="$raiz/build/fuzz/" \
        -dict="$raiz/tests/fuzz/$3" "$corpus" "$raiz/tests/fuzz/$2" >"$registro" 2>&1; then
        grep -E '^Done ' "$registro" || true
    else
        tail -n 60 "$registro" >&2
        echo "the fuzzer found a crash in $1: the input is in build/fuzz/, the log in $registro" >&2
        fallos+=(fuzz)
    fi
    rm -rf "$corpus"
}
if ! hay_libfuzzer; then
    echo "no clang++ with libFuzzer: the fuzzing step is skipped"
elif ! CXX=clang++ configura build/fuzz -DCMAKE_BUILD_TYPE=RelWithDebInfo -DTESELARI_FUZZ=ON \
    -DTESELARI_TESTS=OFF -DTESELARI_BENCH=OFF -DTESELARI_TOOLS=OFF -DTESELARI_QT=OFF ||
    ! cmake --build build/fuzz -j2 --target teselari_fuzz_sesion teselari_fuzz_historico; then
    # With a working clang, a fuzz target that no longer builds is a fault.
    echo "a fuzz target does not build" >&2
    fallos+=(fuzz)
else
    fuzzea teselari_fuzz_sesion semillas sesion.dict
    fuzzea teselari_fuzz_historico semillas_historico historico.dict
fi

if [[ ${#fallos[@]} -ne 0 ]]; then
    echo "== Tests failed in: ${fallos[*]}" >&2
    exit 1
fi
echo "== All builds and tests passed"
