#!/usr/bin/env bash
# A saved game with one piece off its place, played to its end in a real
# window under Xvfb: the game comes back as it was left, the player drags
# the loose piece home, the finish message is answered by a key, the exit
# command and its question likewise, and the saved game then holds the
# solved puzzle.
#
#   partida_casi_resuelta.sh TESELARI GENERADOR SALIDA
#
# TESELARI is the built executable, GENERADOR the program that writes the
# saved game, SALIDA a folder for the screenshots.
set -uo pipefail

programa=$1
generador=$2
salida=$3
source "$(dirname "${BASH_SOURCE[0]}")/comun.sh"

copia_programa
escribe_partida
cp "$carpeta/TESEL32.INI" "$salida/antes.ini"

arranca_pantalla
arranca_juego
espera_ventana
sleep 1
import -window root "$salida/restaurada.png" || falla "no screenshot"

# The loose piece is where the file left it: the point of it differs from
# what its home shows (the board's background there).
fuera=$(convert "$salida/restaurada.png" -format "%[hex:p{$xc,$yc}]" info:)
echo "at home before the drag: $fuera"

arrastra_a_casa
sleep 1
import -window root "$salida/final.png"

# "Ha conseguido resolver el puzzle": a key closes it.
xdotool key Return
sleep 0.5
import -window root "$salida/resuelta.png"
casa=$(convert "$salida/resuelta.png" -format "%[hex:p{$xc,$yc}]" info:)
echo "at home after the drag: $casa"
[[ "$casa" != "$fuera" ]] || falla "the piece's home looks as before the drag"

sale_con_boton_11
cp "$carpeta/TESEL32.INI" "$salida/despues.ini"

# The saved game: block 3 says the puzzle is complete, and in block 4 every
# piece stands at its home (X = XCorrecta, Y = YCorrecta).
completo=$(sed -n '13p' "$carpeta/TESEL32.INI" | tr -d '\r' | cut -d, -f4)
[[ "$completo" == "-1" ]] || falla "the saved game does not say the puzzle is complete ($completo)"
fuera_de_casa=$(sed -n '14,$p' "$carpeta/TESEL32.INI" | tr -d '\r' |
    awk -F, '$1 != $3 || $2 != $4' | wc -l)
piezas=$(sed -n '14,$p' "$carpeta/TESEL32.INI" | grep -c .)
echo "pieces saved: $piezas, off their home: $fuera_de_casa"
[[ "$piezas" -eq 16 ]] || falla "the saved game holds $piezas pieces, not 16"
[[ "$fuera_de_casa" -eq 0 ]] || falla "$fuera_de_casa pieces are saved off their home"
echo "passed"
