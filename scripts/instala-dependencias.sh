#!/usr/bin/env bash
# Installs the Debian 12 packages that building, testing and running Teselari
# need. Quick and silent when everything is already there.
set -euo pipefail

PAQUETES=(
    build-essential
    cmake
    ninja-build
    pkg-config
    libgtest-dev
    libgmock-dev
    libbenchmark-dev
    qt6-base-dev
    qt6-multimedia-dev
    qt6-svg-dev
    # The metafile decoders; libwmf reads no file without the URW fonts.
    libwmf-dev
    fonts-urw-base35
    libemf2svg-dev
    libgl-dev
    # The asset generator draws its letters from the DejaVu files; the game's
    # text is Liberation Sans, which stands for "MS Sans Serif" and "Arial".
    fonts-dejavu-core
    fonts-liberation
    clang-format
    # For the end-to-end tests of the game window.
    xvfb
    xdotool
    imagemagick
    # The Debian package and the checks of the installed tree.
    dpkg-dev
    fakeroot
    file
    lintian
    desktop-file-utils
    appstream
)

falta=()
for p in "${PAQUETES[@]}"; do
    estado=$(dpkg-query -W -f='${Status}' "$p" 2>/dev/null || true)
    if [[ "$estado" != "install ok installed" ]]; then
        falta+=("$p")
    fi
done

if [[ ${#falta[@]} -eq 0 ]]; then
    exit 0
fi

echo "Installing: ${falta[*]}"

SUDO=()
if [[ "$(id -u)" -ne 0 ]]; then
    if command -v sudo >/dev/null 2>&1; then
        SUDO=(sudo)
    else
        echo "instala-dependencias: not root and no sudo; install these by hand: ${falta[*]}" >&2
        exit 1
    fi
fi

"${SUDO[@]}" apt-get update
"${SUDO[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y --no-install-recommends "${falta[@]}"
