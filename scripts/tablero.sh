#!/usr/bin/env bash
# Builds the board tool in Release and runs it: it cuts a generated sample
# picture and writes pictures of the board into salida/. Extra arguments go
# to the tool.
set -euo pipefail

raiz=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$raiz"

bash scripts/instala-dependencias.sh

generador=()
if [[ ! -f build/release/CMakeCache.txt ]] && command -v ninja >/dev/null 2>&1; then
    generador=(-G Ninja)
fi
cmake -S . -B build/release "${generador[@]}" -DCMAKE_BUILD_TYPE=Release -DTESELARI_TOOLS=ON
cmake --build build/release -j2 --target teselari_tablero

mkdir -p "$raiz/salida"
echo "Pictures written:"
build/release/teselari_tablero --muestra --lado 6 --tipo 1 --fondo 3 --salida "$raiz/salida" "$@"
