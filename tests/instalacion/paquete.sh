#!/usr/bin/env bash
# The Debian package made by CPack from the build folder: its control data
# (name, section, the libraries found and the run-time packages listed),
# its files (the installed game under /usr and nothing of the tests or the
# developer tools), and lintian with no error.
#
#   paquete.sh BUILD_FOLDER
#
# Exits 77 (skipped) when dpkg-deb, dpkg-shlibdeps or lintian is missing.
set -uo pipefail

build=$1
source "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
necesita cpack dpkg-deb dpkg-shlibdeps lintian
salida=$temporal

cpack -G DEB -B "$salida" --config "$build/CPackConfig.cmake" >"$salida/cpack.log" 2>&1 || {
    cat "$salida/cpack.log"
    echo "FAILED: cpack"
    exit 1
}
paquete=$(ls "$salida"/teselari_*.deb 2>/dev/null | head -1)
[[ -n "$paquete" ]] || {
    echo "FAILED: no teselari_*.deb"
    exit 1
}

campo() { dpkg-deb -f "$paquete" "$1"; }
[[ "$(campo Package)" == teselari ]] || falla "Package: $(campo Package)"
[[ "$(campo Section)" == games ]] || falla "Section: $(campo Section)"
[[ -n "$(campo Maintainer)" ]] || falla "no Maintainer"
[[ "$(campo Description)" == *"Spanish"* ]] || falla "Description: $(campo Description)"
depende=$(campo Depends)
echo "Depends: $depende"
for p in libqt6widgets6 libqt6multimedia6 libqt6svg6 libwmf fonts-dejavu-core fonts-urw-base35; do
    [[ "$depende" == *"$p"* ]] || falla "Depends lacks $p"
done

ficheros=$(dpkg-deb -c "$paquete" | awk '{print $6}' | sed 's|^\./|/|')
for f in /usr/bin/teselari /usr/games/teselari /usr/share/teselari/CASA.JPG \
    /usr/share/applications/es.teselari.Teselari.desktop \
    /usr/share/metainfo/es.teselari.Teselari.metainfo.xml \
    /usr/share/icons/hicolor/256x256/apps/teselari.png \
    /usr/share/icons/hicolor/scalable/apps/teselari.svg \
    /usr/share/doc/teselari/copyright /usr/share/man/man6/teselari.6.gz; do
    grep -qx "$f" <<<"$ficheros" || falla "the package lacks $f"
done
fuera=$(grep -v -e '^/$' -e '^/usr/' <<<"$ficheros")
[[ -z "$fuera" ]] || falla "files outside /usr: $fuera"
ajenos=$(grep -e _tests -e tablero -e _bench -e activos -e '\.a$' -e '/include/' <<<"$ficheros")
[[ -z "$ajenos" ]] || falla "files that are no part of the game: $ajenos"

informe=$(lintian --no-tag-display-limit "$paquete" 2>&1 | grep -v 'running with root privileges')
echo "$informe"
grep -q '^E:' <<<"$informe" && falla "lintian reports errors"

termina_comprobacion
