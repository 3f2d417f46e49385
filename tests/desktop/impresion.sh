#!/usr/bin/env bash
# The three windows that can be printed, printed for real into PDF files by way of the printer dialog; the texts of each
# stand on its page as texts.
#   impresion.sh ZARPI ZARPI-SCRIPT    the programs
set -euo pipefail

if [ -z "${ZARPI_WINDOW:-}" ]; then
    ZARPI_WINDOW=1 exec xvfb-run -a -s "-screen 0 1024x768x24 -noreset" "$0" "$@"
fi

folder=$(mktemp -d)
export HOME=$folder XDG_DATA_HOME=$folder/datos SDL_AUDIODRIVER=dummy LC_ALL=C.UTF-8
trap 'kill $program 2>/dev/null || true; rm -rf "$folder"' EXIT
records=$XDG_DATA_HOME/zarpi
"$2" --new-folder "$records" /dev/null
# A saved game at its last word, RODILLA, which one letter after another solves.
printf ' 1 \r\n' >"$records/Ultimo.dat"
printf ' 30 3 0 60 190 14 9Bego\361a        28-12-2026 x          4    0     ' >"$records/Guardar.rnd"
cd "$HOME"
"$1" 2>zarpi.log &
program=$!

press() { xdotool key --delay 60 "$@"; }
# Waits for a window of this name to get the keys, or to go; one that closes meanwhile is an error, which counts as one.
window() { until [[ $(xdotool getwindowfocus getwindowname 2>&1) =~ $1 ]]; do sleep 0.1; done; }
closed() { while [ -n "$(xdotool search --onlyvisible --name "$1" 2>&1)" ]; do sleep 0.1; done; }
fail() { echo "fallo: $1"; exit 1; }
# Presses the button that has the focus, accepts the printer dialog, and looks for each text on the page of this name.
print_page() {
    local page=$HOME/$1.pdf
    shift
    press space
    window 'Print|Imprimir'
    press Return
    # A page that is complete has its end; how long that takes is the machine's affair.
    until tail -c 8 "$page" 2>/dev/null | grep -q '%%EOF'; do sleep 0.1; done
    for text in "$@"; do
        pdftotext "$page" - | grep -q -- "$text" || fail "no page with $text"
    done
    [ "$(pdfinfo "$page" | awk '/^Pages/ {print $2}')" = 1 ] || fail "more than one page"
    pdftoppm -r 30 -png "$page" "$HOME/page"
    [ "$(convert "$HOME"/page*.png -format '%k' info:)" -gt 50 ] || fail "a page without pictures"
    rm -f "$page" "$HOME"/page*.png
}

window 'pulsa una tecla'
press a
window 'Versión 1.5'
press ctrl+r
window 'Reanudar partida'
xdotool type --delay 60 x
press Return
xdotool type --delay 80 rodila
window 'Enhorabuena'
press Return
window 'PREMIO'
for _ in $(seq 29); do xdotool key --delay 20 Left Left Left; done  # open: from here on the arrows move the ring
press Tab
print_page PREMIO 'Begoña' 'Castellano' 'IMPRIMIR'
press Escape
window 'Cuadro de honor'
press Tab
print_page 'Cuadro de honor' 'CUADRO DE HONOR' 'Begoña' '205'
closed 'Cuadro de honor'
press ctrl+u
window 'ltimas partidas'
press Tab
print_page 'Últimas partidas (debes acertar al menos 5 palabras para entrar en este cuadro)' 'FINAL' 'Begoña' 'Castellano'
press ctrl+s
echo "bien"
