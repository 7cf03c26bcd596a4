#!/usr/bin/env bash
# The game in a real window under Xvfb, started for the first time: it
# starts in a folder of its own with the sample pictures, says that it found
# no history and no saved game, leads into the customisation dialog where a sample is
# chosen and accepted, covers the whole screen with the dealt board and its
# panels, and ends by its exit command, leaving the saved game behind.
#
#   primer_arranque.sh TESELARI SALIDA
#
# TESELARI is the built executable, SALIDA a folder for the screenshots.
set -uo pipefail

programa=$1
salida=$2
source "$(dirname "${BASH_SOURCE[0]}")/comun.sh"

arranca_pantalla
copia_programa
arranca_juego

# No history yet: its reader says so first, and a key closes the message.
espera_nombre '^Error leyendo el fichero histórico$'
sleep 0.5
import -window root "$salida/mensaje_historico.png"
xdotool key space
# No saved game: the message says so, a key closes it, and the
# customisation dialog leads to a picture.
espera_nombre '^Error leyendo fichero de datos iniciales$'
sleep 0.5
import -window root "$salida/mensaje.png"
xdotool key space
elige_casa "$salida"

geometria=$(xdotool getwindowgeometry "$ventana")
echo "$geometria"
grep -q "Position: 0,0" <<<"$geometria" || falla "the window is not at the top left corner"
grep -q "Geometry: ${ANCHO}x${ALTO}" <<<"$geometria" || falla "the window does not cover the screen"

import -window root "$salida/pantalla.png" || falla "no screenshot"
colores=$(convert "$salida/pantalla.png" -format %k info:)
echo "colours on the screen: $colores"
[[ "$colores" -ge 64 ]] || falla "only $colores colours: no board and no panels"

# The board left of the panel: a dealt picture has many colours, an empty
# work area one or two.
tablero=$(convert "$salida/pantalla.png" -crop 900x740+0+0 -format %k info:)
echo "colours on the board: $tablero"
[[ "$tablero" -ge 256 ]] || falla "only $tablero colours left of the panel: no board was dealt"

sale_con_boton_11
guardada_casa
echo "passed"
