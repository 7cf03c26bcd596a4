#!/usr/bin/env bash
# Builds Teselari in Release and starts the game. The game keeps its files
# (TESEL32.INI, TESEL32.HIS) in its own folder, build/release, beside the
# sample pictures, or in ~/.local/share/teselari/ when that folder can't be
# written.
set -euo pipefail

raiz=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$raiz"

bash scripts/instala-dependencias.sh

generador=()
if [[ ! -f build/release/CMakeCache.txt ]] && command -v ninja >/dev/null 2>&1; then
    generador=(-G Ninja)
fi
cmake -S . -B build/release "${generador[@]}" -DCMAKE_BUILD_TYPE=Release -DTESELARI_QT=ON
cmake --build build/release -j2 --target teselari

exec build/release/teselari
