#!/usr/bin/env bash
# The game for real, in a virtual display, with keys from outside and a Spanish layout: a dead accent and a vowel are one
# refused character, ñ is a letter, what has no letter never costs a miss, and a second program leaves.
#   ventana.sh ZARPI    the program
set -euo pipefail

if [ -z "${ZARPI_WINDOW:-}" ]; then
    ZARPI_WINDOW=1 exec xvfb-run -a -s "-screen 0 1024x768x24 -noreset" "$0" "$1"
fi

folder=$(mktemp -d)
trap 'kill $program 2>/dev/null || true; rm -rf "$folder"' EXIT
setxkbmap es
export XDG_DATA_HOME=$folder SDL_AUDIODRIVER=dummy LC_ALL=C.UTF-8
"$1" 2>"$folder/zarpi.log" &
program=$!

fail() { echo "fallo: $1"; exit 1; }
# Waits for a command to succeed.
await() {
    for _ in $(seq 100); do
        "$@" && return
        sleep 0.1
    done
    fail "in vain: $*"
}
press() { xdotool key --delay 60 "$@"; }
# What is seen by a property; a window that closes meanwhile is an error, which counts as one.
seen() { xdotool search --onlyvisible "$@" 2>&1; }
visible() { [[ $(seen "$@") =~ ^[0-9] ]]; }
focused() { [[ $(xdotool getwindowfocus getwindowname 2>&1) =~ $1 ]]; }
# A window that gets the keys.
window() { await focused "$1"; }
closed() { [ -z "$(seen --name "$1")" ]; }
gone() { ! kill -0 "$1" 2>/dev/null; }
# The row of the miss boxes, as a number: once every key has been answered, so that a window opens and closes behind them.
misses() {
    press ctrl+u
    window 'ltimas partidas'
    press Escape
    await closed 'ltimas partidas'
    local last=
    local now=
    until [ -n "$now" ] && [ "$now" = "$last" ]; do
        last=$now
        now=$(import -window root -crop 560x42+160+325 rgb:- | cksum)
    done
    echo "$now"
}

window 'pulsa una tecla'
press a
window 'Versión 1.5'
press ctrl+n
window 'Nivel 1'
press Return
window 'Nombre del jugador'
press Return
await closed 'Nombre del jugador'
before=$(misses)
press dead_acute a
press dead_diaeresis u
press alt+w
press F2
press Left
press 7
press ctrl+b
[ "$(misses)" = "$before" ] || fail "a key without a letter has cost a miss"
# Letters that no word of four to ten letters can all have.
press ntilde w k
after=$(misses)
[ "$after" != "$before" ] || fail "ñ, w and k have changed nothing"
press dead_acute e
[ "$(misses)" = "$after" ] || fail "an accented vowel has cost a miss"

# A second program in the same folder calls the first one and leaves.
"$1" 2>/dev/null &
await gone $!
# Where the first one does not answer it tells so, and leaves when its notice is accepted.
kill -STOP $program
"$1" 2>/dev/null &
second=$!
window 'Juego de Zarpi$'
press Return
await gone $second
kill -CONT $program
gone $program && fail "the first program has gone"
press ctrl+s
await gone $program
echo "bien"
