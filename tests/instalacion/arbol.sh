#!/usr/bin/env bash
# The installed tree, put by `cmake --install` under a temporary prefix:
# what a desktop needs is there and valid (the desktop entry, the AppStream
# data, the icons at their sizes), the program's folder holds the sample
# pictures, and the program finds it from where it stands.
#
#   arbol.sh BUILD_FOLDER
#
# Exits 77 (skipped) when a validator is not installed.
set -uo pipefail

build=$1
source "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
necesita desktop-file-validate appstreamcli identify
prefijo=$temporal

cmake --install "$build" --prefix "$prefijo" >/dev/null || {
    echo "FAILED: cmake --install"
    exit 1
}

[[ -x "$prefijo/bin/teselari" ]] || falla "no bin/teselari"
[[ "$(readlink -f "$prefijo/games/teselari")" == "$prefijo/bin/teselari" ]] ||
    falla "games/teselari does not lead to bin/teselari"

escritorio=$prefijo/share/applications/es.teselari.Teselari.desktop
desktop-file-validate "$escritorio" || falla "desktop-file-validate"
grep -qx 'Categories=Game;LogicGame;' "$escritorio" || falla "the categories"
grep -qx 'Icon=teselari' "$escritorio" || falla "the icon's name"
grep -qx 'Exec=teselari' "$escritorio" || falla "the command"
appstreamcli validate --no-net "$prefijo/share/metainfo/es.teselari.Teselari.metainfo.xml" ||
    falla "appstreamcli validate"

for lado in 32 48 64 128 256; do
    icono=$prefijo/share/icons/hicolor/${lado}x${lado}/apps/teselari.png
    medida=$(identify -format '%wx%h' "$icono" 2>/dev/null)
    [[ "$medida" == "${lado}x${lado}" ]] || falla "icon $lado: $medida"
done
grep -q '<svg ' "$prefijo/share/icons/hicolor/scalable/apps/teselari.svg" || falla "no scalable icon"

# The files the game copies to a read-only install's working folder: the
# sample pictures (the initialisation and history files only where the
# source ships them), and nothing else in the program's folder.
programa=$prefijo/share/teselari
esperados="123.BMP CAMPANA.JPG CASA.JPG CATEDRAL.JPG FORMAS.BMP FUENTE.JPG PALMERAS.JPG PUERTA.JPG TRANVIA.JPG"
hay=$(cd "$programa" && ls | grep -v -e '^TESEL32.INI$' -e '^TESEL32.HIS$' | sort | tr '\n' ' ')
[[ "$hay" == "$(tr ' ' '\n' <<<"$esperados" | sort | tr '\n' ' ')" ]] ||
    falla "the program's folder holds: $hay"

# The package's documents.
for doc in copyright changelog.gz; do
    [[ -s "$prefijo/share/doc/teselari/$doc" ]] || falla "no share/doc/teselari/$doc"
done

if [[ $fallos -ne 0 ]]; then
    find "$prefijo" -type f | sed "s|$prefijo||" | sort
    exit 1
fi
echo "passed"
