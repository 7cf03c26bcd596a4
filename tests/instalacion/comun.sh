# What both checks of the install share: the tools they need (missing ones
# skip the check with status 77), a temporary folder removed at the end, and
# failures counted so that every one of them is told before the exit.
#
#   necesita HERRAMIENTA...   leaves the temporary folder in `temporal`
#   falla TEXT...             tells a failure and counts it
#   termina_comprobacion      exits 1 after any failure, else says "passed"

necesita() {
    local herramienta
    for herramienta in "$@"; do
        if ! command -v "$herramienta" >/dev/null 2>&1; then
            echo "skipped: $herramienta is not installed"
            exit 77
        fi
    done
    temporal=$(mktemp -d)
    trap 'rm -rf "$temporal"' EXIT
}

fallos=0
falla() {
    echo "FAILED: $*"
    fallos=$((fallos + 1))
}

termina_comprobacion() {
    [[ $fallos -eq 0 ]] || exit 1
    echo "passed"
}
