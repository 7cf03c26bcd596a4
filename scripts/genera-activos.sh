#!/usr/bin/env bash
# Builds the asset generator and draws every asset anew into assets/: the
# button strip, the dialog's strip, the chronometer face, the cursors, the
# sound clips and the sample pictures. The output is the same on every run
# (fixed seeds).
set -euo pipefail

raiz=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$raiz"

carpeta=build/activos
generador=()
if [[ ! -f $carpeta/CMakeCache.txt ]] && command -v ninja >/dev/null 2>&1; then
    generador=(-G Ninja)
fi
# Only the generator: no tests, benchmarks or game to configure or build.
cmake -S . -B "$carpeta" "${generador[@]}" -DCMAKE_BUILD_TYPE=Release -DTESELARI_TOOLS=ON \
    -DTESELARI_TESTS=OFF -DTESELARI_BENCH=OFF -DTESELARI_QT=OFF
cmake --build "$carpeta" -j2 --target teselari_activos
"$carpeta/teselari_activos" assets
