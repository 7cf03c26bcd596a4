#!/usr/bin/env bash
# The installed game run twice from a prefix it cannot write, by a user
# with an empty home, in a real window under Xvfb. The first run finds the
# program's folder read-only, makes ~/.local/share/teselari/, copies the
# sample pictures there, says that it found no saved game and leads into the
# customisation dialog, where a sample is chosen; it saves the game there
# at the exit. The second run copies nothing and comes back to that game
# without a message.
#
#   instalado_solo_lectura.sh BUILD_FOLDER SALIDA
#
# As root the game runs as the user nobody (setpriv), for whom the prefix
# is read-only; as anyone else the prefix is made read-only.
set -uo pipefail

build=$1
salida=$2
programa=$build/teselari
source "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
# The read-only prefix must be writable again to be removed.
trap 'chmod -R u+w "$carpeta" 2>/dev/null; termina' EXIT

usuario=()
if [[ "$(id -u)" -eq 0 ]]; then
    command -v setpriv >/dev/null 2>&1 || {
        echo "skipped: running as root without setpriv"
        exit 77
    }
    usuario=(setpriv --reuid=65534 --regid=65534 --clear-groups)
fi

prefijo=$carpeta/prefijo
casa=$carpeta/casa
cmake --install "$build" --prefix "$prefijo" >/dev/null || falla "cmake --install"
chmod -R a-w "$prefijo"
chmod 755 "$carpeta"
mkdir -p "$casa" "$salida"
[[ ${#usuario[@]} -eq 0 ]] || chown 65534:65534 "$casa"
chmod 777 "$salida"
datos=$casa/.local/share/teselari

# The installed game from its own bin/, by the user of the empty home.
arranca_instalado() {
    env -u XDG_DATA_HOME HOME="$casa" QT_QPA_PLATFORM=xcb DISPLAY="$DISPLAY" \
        "${usuario[@]}" "$prefijo/bin/teselari" >"$salida/teselari.log" 2>&1 &
    pid_juego=$!
    pasa_careta
}

arranca_pantalla

# First run: the copy, the message, the dialog, a sample, the exit.
arranca_instalado
# No history yet: its message comes first, at every start until a puzzle
# is solved.
espera_nombre '^Error leyendo el fichero histórico$'
xdotool key space
espera_nombre '^Error leyendo fichero de datos iniciales$'
for f in 123.BMP FORMAS.BMP CAMPANA.JPG CASA.JPG CATEDRAL.JPG FUENTE.JPG PALMERAS.JPG \
    PUERTA.JPG TRANVIA.JPG; do
    cmp -s "$prefijo/share/teselari/$f" "$datos/$f" || falla "$f was not copied to $datos"
done
xdotool key space
elige_casa
import -window root "$salida/primera.png"
sale_con_boton_11 "$datos"
guardada_casa "$datos"
[[ ! -e "$prefijo/share/teselari/TESEL32.INI" ]] || falla "the game wrote into its prefix"
cp "$datos/TESEL32.INI" "$salida/primera.ini"

# Second run: a sample taken away from the data folder stays away (nothing
# is copied again), and the saved game comes back with no message.
rm -f "$datos/TRANVIA.JPG"
arranca_instalado
espera_nombre '^Error leyendo el fichero histórico$'
xdotool key space
espera_ventana
xdotool search --onlyvisible --name '^Error leyendo fichero' >/dev/null 2>&1 &&
    falla "the second run did not find its saved game"
sleep 1
import -window root "$salida/segunda.png"
[[ ! -e "$datos/TRANVIA.JPG" ]] || falla "the second run copied the samples again"
sale_con_boton_11 "$datos"
grep -q '^"CASA.JPG"' <(sed -n 13p "$datos/TESEL32.INI") ||
    falla "the second run did not come back to the saved game"
echo "passed"
