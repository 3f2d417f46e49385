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

press() { xdotool key --delay 60 "$@"; sleep 0.3; }
window() { xdotool search --sync --onlyvisible --name "$1" >/dev/null; sleep 0.3; }
# The row of the miss boxes, as a number.
misses() { import -window root -crop 560x42+230+325 rgb:- | cksum; }
fail() { echo "fallo: $1"; exit 1; }

window 'pulsa una tecla'
press a
window 'Versión 1.5'
press ctrl+n
window 'Nivel 1'
press Return
window 'Nombre del jugador'
press Return
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

# A second program in the same folder tells so and leaves when its notice is accepted.
"$1" 2>/dev/null &
second=$!
sleep 1.5
xdotool key Return
for _ in 1 2 3 4 5 6 7 8 9 10; do
    kill -0 $second 2>/dev/null || break
    sleep 0.3
done
kill -0 $second 2>/dev/null && fail "a second program goes on"
kill -0 $program || fail "the first program has gone"
press ctrl+s
sleep 0.5
kill -0 $program 2>/dev/null && fail "Salir does not end it"
echo "bien"
