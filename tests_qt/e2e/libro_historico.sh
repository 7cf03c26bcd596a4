#!/usr/bin/env bash
# The history book in a real window under Xvfb: a saved game with one piece
# off its place and a history of five puzzles of other days. The player drags
# the piece home, answers the finish message, and the game enters the history
# file at once. Button 10 opens the book on its first page, where a name is
# typed; the date section is opened by its tab and turned by the folded
# corner, the other three sections by their tabs; the return arrow closes the
# book and button 11 ends the game. The history file then holds the new
# record in its exact form, and the saved game the name typed.
#
#   libro_historico.sh TESELARI GENERADOR SALIDA
#
# TESELARI is the built executable, GENERADOR the program that writes the
# saved game and the history, SALIDA a folder for the screenshots.
set -uo pipefail

programa=$1
generador=$2
salida=$3
source "$(dirname "${BASH_SOURCE[0]}")/comun.sh"

copia_programa
escribe_partida 5
antes=$(wc -l <"$carpeta/TESEL32.HIS")
[[ "$antes" -eq 5 ]] || falla "the history written holds $antes lines, not 5"
cp "$carpeta/TESEL32.HIS" "$salida/antes.his"

arranca_pantalla
arranca_juego
espera_ventana
sleep 1

# The last piece home, as a hand drags it; the message answered by a key.
arrastra_a_casa
espera_nombre '^TESELARI$'
xdotool key Return
sleep 0.5
despues=$(wc -l <"$carpeta/TESEL32.HIS")
[[ "$despues" -eq 6 ]] || falla "after the finish the history holds $despues lines, not 6"

# Button 10, the one above the exit's in the panel's column of buttons.
xdotool mousemove $((ANCHO - 49)) $((612 - 58)) click 1
espera_nombre '^Histórico de puzzles$'
libro=$ventana
sleep 0.5
eval "$(xdotool getwindowgeometry --shell "$libro")"
izquierda=$X
arriba=$Y
echo "the book at ($izquierda, $arriba), $WIDTH x $HEIGHT"
[[ "$WIDTH" -eq 541 && "$HEIGHT" -eq 344 ]] || falla "the book is $WIDTH x $HEIGHT, not 541 x 344"
[[ $izquierda -eq $(((ANCHO - 541) / 2)) && $arriba -eq $(((ALTO - 344) / 2)) ]] ||
    falla "the book is not centred on the screen"
import -window root -crop 541x344+$izquierda+$arriba "$salida/libro_primera.png"

# The name: the box on the first page emptied and typed into.
xdotool mousemove $((izquierda + 460)) $((arriba + 302)) click 1
xdotool key ctrl+a BackSpace
xdotool type --delay 50 'Lucía"'
sleep 0.3
import -window root -crop 541x344+$izquierda+$arriba "$salida/libro_nombre.png"

pulsa() {
    xdotool mousemove $((izquierda + $1)) $((arriba + $2)) click 1
    sleep 0.4
}
# The date section by its tab on the right margin, then one page on.
pulsa 524 63
import -window root -crop 541x344+$izquierda+$arriba "$salida/libro_fecha_1.png"
pulsa 498 326
import -window root -crop 541x344+$izquierda+$arriba "$salida/libro_fecha_2.png"
# The name tab is on the right margin; from it the picture and difficulty
# tabs too, each opening its section.
pulsa 524 135
import -window root -crop 541x344+$izquierda+$arriba "$salida/libro_nombre_seccion.png"
pulsa 524 207
import -window root -crop 541x344+$izquierda+$arriba "$salida/libro_imagen.png"
pulsa 524 279
import -window root -crop 541x344+$izquierda+$arriba "$salida/libro_dificultad.png"
# Back to the date section by its tab, now on the left margin.
pulsa 15 63
import -window root -crop 541x344+$izquierda+$arriba "$salida/libro_fecha_otra_vez.png"

# The spreads differ: the corner turned the page.
[[ "$(compare -metric AE "$salida/libro_fecha_1.png" "$salida/libro_fecha_2.png" null: 2>&1)" != 0 ]] ||
    falla "the folded corner did not turn the page"

# The return arrow closes the book.
pulsa 15 16
for _ in $(seq 50); do
    xdotool search --onlyvisible --name '^Histórico de puzzles$' >/dev/null 2>&1 || break
    sleep 0.1
done
xdotool search --onlyvisible --name '^Histórico de puzzles$' >/dev/null 2>&1 &&
    falla "the return arrow did not close the book"

sale_con_boton_11
cp "$carpeta/TESEL32.HIS" "$salida/despues.his"
cp "$carpeta/TESEL32.INI" "$salida/despues.ini"

# The old records are untouched, and the new one follows them in its exact
# form: today's date and time, the picture, the 4 x 4 rectangles of the
# saved game at zoom 60 (384 x 288, cells of 96 x 72), its difficulty, the
# clock's seconds, the attraction and the name the game had at the finish.
cmp <(head -c "$(stat -c %s "$salida/antes.his")" "$carpeta/TESEL32.HIS") "$salida/antes.his" ||
    falla "the records of other days changed"
nueva=$(tail -n 1 "$carpeta/TESEL32.HIS")
echo "the new record: $nueva"
patron='^"[0-9]{2}/[0-9]{2}/[0-9]{4}","[0-9]{2}:[0-9]{2}:[0-9]{2}","123\.BMP     ",384,288,4,0,16,96,72,[0-9]+(\.[0-9]+)?,[0-9]+,50,"Ana      "'$'\r''$'
[[ "$nueva" =~ $patron ]] || falla "the new record is not in the file's form"
segundos=$(cut -d, -f12 <<<"$nueva")
[[ "$segundos" -ge 75 && "$segundos" -lt 200 ]] || falla "the record's time is $segundos s"
# The name typed stands in the saved game, in Windows-1252, without the quote
# the box refused.
nombre=$(sed -n 1p "$carpeta/TESEL32.INI" | cut -d, -f6 | iconv -f WINDOWS-1252 -t UTF-8)
[[ "$nombre" == '"Lucía    "' ]] || falla "the saved name is $nombre"
echo "passed"
