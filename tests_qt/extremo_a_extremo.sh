#!/usr/bin/env bash
# The game in a real window under Xvfb: it starts in a folder of its own with
# the sample pictures, covers the whole screen with its board and panels,
# and ends by its exit command, leaving the saved game behind.
#
#   extremo_a_extremo.sh TESELARI SALIDA
#
# TESELARI is the built executable, SALIDA a folder for the screenshots. The
# program is copied with the pictures beside it into a temporary folder,
# which is its own folder for the run. Exits 77 (skipped) when Xvfb,
# xdotool or ImageMagick is missing.
set -uo pipefail

programa=$1
salida=$2
for herramienta in Xvfb xdotool import convert; do
    if ! command -v "$herramienta" >/dev/null 2>&1; then
        echo "skipped: $herramienta is not installed"
        exit 77
    fi
done

ANCHO=1024
ALTO=768
carpeta=$(mktemp -d)
mkdir -p "$salida"
pid_x=""
pid_juego=""

termina() {
    [[ -n "$pid_juego" ]] && kill "$pid_juego" 2>/dev/null && wait "$pid_juego" 2>/dev/null
    [[ -n "$pid_x" ]] && kill "$pid_x" 2>/dev/null && wait "$pid_x" 2>/dev/null
    rm -rf "$carpeta"
}
trap termina EXIT

falla() {
    echo "FAILED: $*"
    import -display "$DISPLAY" -window root "$salida/fallo.png" 2>/dev/null &&
        echo "screenshot: $salida/fallo.png"
    exit 1
}

# A free display number.
pantalla=99
while [[ -e /tmp/.X11-unix/X$pantalla || -e /tmp/.X$pantalla-lock ]]; do
    pantalla=$((pantalla + 1))
done
export DISPLAY=:$pantalla
Xvfb "$DISPLAY" -screen 0 ${ANCHO}x${ALTO}x24 -nolisten tcp >/dev/null 2>&1 &
pid_x=$!
for _ in $(seq 50); do
    xdotool getdisplaygeometry >/dev/null 2>&1 && break
    sleep 0.1
done
xdotool getdisplaygeometry >/dev/null 2>&1 || falla "Xvfb did not start"

cp "$programa" "$carpeta/teselari"
origen=$(dirname "$programa")
for muestra in "$origen"/*.BMP "$origen"/*.JPG; do
    [[ -e "$muestra" ]] && cp "$muestra" "$carpeta/"
done
export XDG_DATA_HOME="$carpeta/datos"
# In a build with the sanitizers the leak check at the end leaves out what
# the system's libraries keep until exit.
export LSAN_OPTIONS="suppressions=$(dirname "${BASH_SOURCE[0]}")/lsan.supp${LSAN_OPTIONS:+:$LSAN_OPTIONS}"
export QT_QPA_PLATFORM=xcb
(cd "$carpeta" && exec ./teselari) >"$salida/teselari.log" 2>&1 &
pid_juego=$!

# The calibration takes a second before any window; the load a little more.
# On the first start the game says that it found no saved game before its
# window shows: a key closes each such message.
ventana=""
for paso in $(seq 200); do
    ventana=$(xdotool search --onlyvisible --name '^Teselari$' 2>/dev/null | head -1)
    [[ -n "$ventana" ]] && break
    kill -0 "$pid_juego" 2>/dev/null || falla "the game ended on its own: $(cat "$salida/teselari.log")"
    if ((paso % 20 == 0)); then
        import -window root "$salida/mensaje.png" 2>/dev/null
        xdotool key space
    fi
    sleep 0.1
done
[[ -n "$ventana" ]] || falla "no window appeared"
sleep 1

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

# The always-visible panel stands at the right edge: its grey face.
gris=$(convert "$salida/pantalla.png" -crop 1x1+$((ANCHO - 20))+$((ALTO / 2)) -format '%[hex:p{0,0}]' info:)
echo "right edge: $gris"

# Command 11, "Salir de la aplicación", is the last button of the panel; any
# key answers "Aceptar" to the question. The game is saved and the program
# ends by itself.
xdotool mousemove $((ANCHO - 49)) 612 click 1
sleep 1
import -window root "$salida/salir.png"
xdotool key Escape
for _ in $(seq 100); do
    kill -0 "$pid_juego" 2>/dev/null || break
    sleep 0.1
done
kill -0 "$pid_juego" 2>/dev/null && falla "the game did not end after the exit question"
wait "$pid_juego"
estado=$?
pid_juego=""
[[ $estado -eq 0 ]] || falla "the game ended with status $estado"
[[ -s "$carpeta/TESEL32.INI" ]] || falla "no TESEL32.INI was written at the exit"
echo "passed"
