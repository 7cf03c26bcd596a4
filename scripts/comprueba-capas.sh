#!/usr/bin/env bash
# Fails when a file of src/ includes a header of a floor above its own.
# The floors, from the bottom; folders on one line share a floor and may
# not include each other. src/README.md tells what each one holds.
set -euo pipefail

raiz=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$raiz/src"

pisos=(
    "raster"
    "core"
    "services"
    "cutting"
    "board"
    "panels"
    "dialog history"
    "session"
    "qt"
    "app"
)

declare -A piso
for i in "${!pisos[@]}"; do
    for carpeta in ${pisos[$i]}; do
        piso[$carpeta]=$i
    done
done

fallos=0
for carpeta in "${!piso[@]}"; do
    [[ -d "$carpeta" ]] || continue
    while IFS=: read -r fichero _ incluido; do
        destino=${incluido#*\"}
        destino=${destino%%/*}
        [[ -n "${piso[$destino]+x}" ]] || continue
        if [[ "$destino" != "$carpeta" && ${piso[$destino]} -ge ${piso[$carpeta]} ]]; then
            echo "src/$fichero includes ${incluido#*#include }: $destino is not below $carpeta"
            fallos=$((fallos + 1))
        fi
    done < <(grep -rnE '^#include "[a-z]+/' "$carpeta" --include='*.h' --include='*.cpp' || true)
done
for carpeta in *; do
    [[ -d "$carpeta" && -z "${piso[$carpeta]+x}" ]] && {
        echo "src/$carpeta is on no floor: add it to scripts/comprueba-capas.sh and src/README.md"
        fallos=$((fallos + 1))
    }
done
if ((fallos > 0)); then
    echo "$fallos includes point the wrong way"
    exit 1
fi
echo "every include of src/ points down"
