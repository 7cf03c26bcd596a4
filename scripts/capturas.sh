#!/usr/bin/env bash
# Takes the README's screenshots of the real game in a window under Xvfb
# (1024 x 768) into docs/: the splash, the customisation dialog of the first
# start, the dealt board with its panel, a puzzle just finished, and the
# history book open on its date section.
#
# Each shot is one function below, run in the order of `CAPTURAS`; to add
# one, write its function and name it in the list.
set -euo pipefail

raiz=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$raiz"

generador=()
if [[ ! -f build/release/CMakeCache.txt ]] && command -v ninja >/dev/null 2>&1; then
    generador=(-G Ninja)
fi
cmake -S . -B build/release "${generador[@]}" -DCMAKE_BUILD_TYPE=Release >/dev/null
cmake --build build/release -j2 --target teselari teselari_partida_e2e

# From here on a failure ends the script through `falla`, which keeps a
# screenshot; the end-to-end helpers clean up at the exit.
set +e
programa=$raiz/build/release/teselari
salida=$(mktemp -d)
source tests_qt/e2e/comun.sh
trap 'termina; rm -rf "$salida"' EXIT
docs=$raiz/docs

# A shot of the whole screen, or of a rectangle of it (WxH+X+Y), scaled to
# a width when one is given.
captura() {
    local nombre=$1 recorte=${2:-} ancho=${3:-}
    local opciones=()
    [[ -n "$recorte" ]] && opciones+=(-crop "$recorte" +repage)
    [[ -n "$ancho" ]] && opciones+=(-resize "${ancho}x")
    import -window root "$salida/pantalla.png"
    convert "$salida/pantalla.png" "${opciones[@]}" "$docs/captura-$nombre.png"
    echo "written docs/captura-$nombre.png"
}

# The first start: the splash caught with its title in the middle, the
# messages of the missing history and saved game, the dialog with the third sample
# chosen, the board dealt from it; then the exit.
primer_arranque() {
    copia_programa
    arranca_juego_con_careta
    espera_nombre '^Error leyendo el fichero histórico$'
    xdotool key space
    espera_nombre '^Error leyendo fichero de datos iniciales$'
    xdotool key space
    espera_nombre '^Personalizar la aplicación$'
    sleep 1
    local izquierda=$(((ANCHO - 640) / 2)) arriba=$(((ALTO - 480) / 2))
    xdotool mousemove $((izquierda + 183)) $((arriba + 95)) click 1
    sleep 1
    xdotool mousemove $((izquierda + 300)) $((arriba + 470))
    captura personalizar "640x480+$izquierda+$arriba"
    xdotool mousemove $((izquierda + 586)) $((arriba + 442)) click 1
    espera_ventana
    sleep 1
    xdotool mousemove 500 740
    sleep 0.5
    captura tablero "" 640
    sale_con_boton_11
    rm -f "$carpeta/TESEL32.INI"
}

# Starts the game; the splash is shot (by the start's own screenshot)
# with its title in the middle, before the key ends it.
arranca_juego_con_careta() {
    ESPERA_CARETA=7.6
    arranca_juego
    ESPERA_CARETA=0.5
    convert "$salida/careta.png" -crop "403x289+$(((ANCHO - 403) / 2))+$(((ALTO - 289) / 2))" \
        +repage "$docs/captura-careta.png"
    echo "written docs/captura-careta.png"
}

# A saved game with one piece loose and a history of five puzzles: the
# piece dragged home, and the message of the finish over the clean picture.
# The game goes on in the history book.
puzzle_resuelto() {
    local puntos x y xc yc
    puntos=$(build/release/teselari_partida_e2e "$carpeta" CATEDRAL.JPG "$ANCHO" "$ALTO" 5) ||
        falla "no saved game was written"
    read -r x y xc yc <<<"$puntos"
    arranca_juego
    espera_ventana
    sleep 1
    arrastra_a_casa
    sleep 1
    xdotool mousemove 500 740
    sleep 0.5
    captura resuelto "" 640
    xdotool key Return
    sleep 0.5
}

# Button 10 of the running game: the book, opened on its date section by
# the tab, the puzzle just finished on its first spread; then the exit.
libro_historico() {
    local izquierda=$(((ANCHO - 541) / 2)) arriba=$(((ALTO - 344) / 2))
    xdotool mousemove $((ANCHO - 49)) $((612 - 58)) click 1
    espera_nombre '^Histórico de puzzles$'
    sleep 0.5
    xdotool mousemove $((izquierda + 524)) $((arriba + 63)) click 1
    sleep 0.5
    xdotool mousemove $((izquierda + 270)) $((arriba + 200))
    sleep 0.3
    captura libro "541x344+$izquierda+$arriba"
    xdotool mousemove $((izquierda + 15)) $((arriba + 16)) click 1
    sleep 0.5
    sale_con_boton_11
}

CAPTURAS=(primer_arranque puzzle_resuelto libro_historico)

arranca_pantalla
for paso in "${CAPTURAS[@]}"; do
    "$paso"
done
ls -l "$docs"/captura-*.png
