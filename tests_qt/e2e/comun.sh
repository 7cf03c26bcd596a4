# Shared by the end-to-end runs: a private X display under Xvfb, the program
# copied into a temporary folder of its own with the sample pictures, the
# screenshot on failure, and the clean-up at the end. Sourced, not run.
#
# The caller sets `programa` (the built executable) and `salida` (a folder
# for screenshots and the game's output) before sourcing. Exits 77 (skipped)
# when Xvfb, xdotool or ImageMagick is missing.

ANCHO=1024
ALTO=768
for herramienta in Xvfb xdotool import convert; do
    if ! command -v "$herramienta" >/dev/null 2>&1; then
        echo "skipped: $herramienta is not installed"
        exit 77
    fi
done

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

# A free display number, and the server on it.
arranca_pantalla() {
    local pantalla=99 intento
    for intento in 1 2 3 4 5; do
        while [[ -e /tmp/.X11-unix/X$pantalla || -e /tmp/.X$pantalla-lock ]]; do
            pantalla=$((pantalla + 1))
        done
        export DISPLAY=:$pantalla
        Xvfb "$DISPLAY" -screen 0 ${ANCHO}x${ALTO}x24 -nolisten tcp >/dev/null 2>&1 &
        pid_x=$!
        for _ in $(seq 50); do
            # Another server that took the number first makes ours give up:
            # only our own server counts.
            kill -0 "$pid_x" 2>/dev/null || break
            if xdotool getdisplaygeometry >/dev/null 2>&1; then
                sleep 0.3
                kill -0 "$pid_x" 2>/dev/null && return 0
                break
            fi
            sleep 0.1
        done
        kill "$pid_x" 2>/dev/null && wait "$pid_x" 2>/dev/null
        pid_x=""
        pantalla=$((pantalla + 1))
    done
    falla "Xvfb did not start"
}

# The program and the sample pictures into the temporary folder, which is
# the program's own folder for the run.
copia_programa() {
    cp "$programa" "$carpeta/teselari"
    local origen muestra
    origen=$(dirname "$programa")
    for muestra in "$origen"/*.BMP "$origen"/*.JPG; do
        [[ -e "$muestra" ]] && cp "$muestra" "$carpeta/"
    done
}

# Starts the game in its folder, its output kept in $salida/teselari.log.
arranca_juego() {
    export XDG_DATA_HOME="$carpeta/datos"
    # In a build with the sanitizers the leak check at the end leaves out
    # what the system's libraries keep until exit.
    export LSAN_OPTIONS="suppressions=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)/lsan.supp${LSAN_OPTIONS:+:$LSAN_OPTIONS}"
    export QT_QPA_PLATFORM=xcb
    (cd "$carpeta" && exec ./teselari) >"$salida/teselari.log" 2>&1 &
    pid_juego=$!
    pasa_careta
}

# The splash comes first, after the second of calibration: a key ends it as
# a player would (after ESPERA_CARETA seconds, by default half of one), and
# it must be gone at once.
pasa_careta() {
    espera_nombre '^careta$'
    sleep "${ESPERA_CARETA:-0.5}"
    import -window root "$salida/careta.png"
    xdotool key space
    local paso
    for paso in $(seq 30); do
        xdotool search --onlyvisible --name '^careta$' >/dev/null 2>&1 || return 0
        sleep 0.1
    done
    falla "the splash did not end on a key"
}

# Waits up to 20 seconds for a visible window whose name matches; leaves its
# id in `ventana`.
espera_nombre() {
    ventana=""
    local paso
    for paso in $(seq 200); do
        ventana=$(xdotool search --onlyvisible --name "$1" 2>/dev/null | head -1)
        [[ -n "$ventana" ]] && return 0
        kill -0 "$pid_juego" 2>/dev/null || falla "the game ended on its own: $(cat "$salida/teselari.log")"
        sleep 0.1
    done
    falla "no window named $1 appeared"
}

# Waits for the main window. Leaves its id in `ventana`.
espera_ventana() {
    espera_nombre '^Teselari$'
}

# Presses command 11, "Salir de la aplicación", the last button of the
# always-visible panel, answers its question with a key and waits for the
# program to end by itself with status 0, leaving TESEL32.INI in its working
# folder (by default the program's).
sale_con_boton_11() {
    local trabajo=${1:-$carpeta}
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
    local estado=$?
    pid_juego=""
    [[ $estado -eq 0 ]] || falla "the game ended with status $estado"
    [[ -s "$trabajo/TESEL32.INI" ]] || falla "no TESEL32.INI was written at the exit"
}

# The customisation dialog, centred on the screen: its third file (CASA.JPG)
# is chosen and accepted with the tick, and the game's window comes back.
# With a folder, the dialog is photographed before and after the choice.
elige_casa() {
    local fotos=${1:-}
    espera_nombre '^Personalizar la aplicación$'
    sleep 1
    if [[ -n $fotos ]]; then import -window root "$fotos/dialogo.png"; fi
    local izquierda=$(((ANCHO - 640) / 2)) arriba=$(((ALTO - 480) / 2))
    xdotool mousemove $((izquierda + 183)) $((arriba + 95)) click 1
    sleep 1
    if [[ -n $fotos ]]; then import -window root "$fotos/elegida.png"; fi
    xdotool mousemove $((izquierda + 586)) $((arriba + 442)) click 1
    espera_ventana
    sleep 1
}

# The saved game in FOLDER (by default the program's) is of CASA.JPG.
guardada_casa() {
    local ini=${1:-$carpeta}/TESEL32.INI
    grep -q '^"CASA.JPG"' <(sed -n 13p "$ini") ||
        falla "the saved game is not of the chosen picture: $(sed -n 13p "$ini")"
}

# A saved game of 123.BMP with one piece off its place, written by the
# generator into the program's folder (with HISTORIA records of other days
# in the history file, if given). Leaves the loose piece's point in x, y and
# its home's in xc, yc.
escribe_partida() {
    local puntos
    puntos=$("$generador" "$carpeta" 123.BMP "$ANCHO" "$ALTO" "$@") || falla "no saved game was written"
    read -r x y xc yc <<<"$puntos"
    echo "the loose piece at ($x, $y), its home at ($xc, $yc)"
}

# The loose piece dragged home in eight steps, as a hand makes it.
arrastra_a_casa() {
    xdotool mousemove "$x" "$y" mousedown 1
    local paso
    for paso in 1 2 3 4 5 6 7 8; do
        xdotool mousemove $((x + (xc - x) * paso / 8)) $((y + (yc - y) * paso / 8))
        sleep 0.05
    done
    xdotool mouseup 1
}
