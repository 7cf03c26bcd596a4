#!/usr/bin/env bash
# Makes the pictures of docs/ with the board tool: the sample picture cut six
# ways at 6 x 6 on the dark red background, and one deal.
set -euo pipefail

raiz=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$raiz"

generador=()
if [[ ! -f build/release/CMakeCache.txt ]] && command -v ninja >/dev/null 2>&1; then
    generador=(-G Ninja)
fi
cmake -S . -B build/release "${generador[@]}" -DCMAKE_BUILD_TYPE=Release -DTESELARI_TOOLS=ON
cmake --build build/release -j2 --target teselari_tablero

nombres=(rectangulos irregulares circulos rectangulos-dobles elipses estrellas)
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
for tipo in 0 1 2 3 4 5; do
    build/release/teselari_tablero --muestra --lado 6 --tipo "$tipo" --fondo 3 \
        --salida "$tmp/$tipo" >/dev/null
    cp "$tmp/$tipo/puzzle.png" "docs/corte-$tipo-${nombres[$tipo]}.png"
done
cp "$tmp/1/barajado.png" docs/barajado-irregulares.png
ls -l docs/*.png
