#!/usr/bin/env bash
# The installer for Windows as a player uses it, under Wine in a virtual display with a window manager: installed silently into a profile
# with accents, played with keys, a game saved and resumed after a restart, installed over itself, uninstalled with the records kept.
#   windows.sh zarpi.exe PICTURES-FOLDER
set -euo pipefail

installer=$(realpath "$1")
mkdir -p "$2"
pictures=$(realpath "$2")
if [ -z "${ZARPI_WINDOW:-}" ]; then
    ZARPI_WINDOW=1 exec xvfb-run -a -s "-screen 0 1280x900x24 -noreset" "$0" "$@"
fi

folder=$(mktemp -d)
export HOME=$folder WINEPREFIX=$folder/wine WINEDEBUG=-all WINEDLLOVERRIDES='mscoree=;mshtml=;winemenubuilder.exe=' LC_ALL=C.UTF-8
trap 'wineserver -k 2>/dev/null || true; kill $manager 2>/dev/null || true; rm -rf "$folder"' EXIT
# What sounds goes into a file.
cat >"$folder/sound.conf" <<END
pcm.!default { type file, slave.pcm null, file "$folder/sound.raw", format raw }
END
export ALSA_CONFIG_PATH=/usr/share/alsa/alsa.conf:$folder/sound.conf
setxkbmap es
openbox &
manager=$!

fail() { shot fallo; echo "fallo: $1"; exit 1; }
shot() { import -window root "$pictures/$1.png"; }
press() { xdotool key --delay 80 "$@"; sleep 0.5; }
# Waits for a window of this title, and for it to have the keys.
window() {
    for _ in $(seq 200); do
        xdotool getactivewindow getwindowname 2>/dev/null | grep -q "$1" && sleep 0.7 && return
        sleep 0.5
    done
    fail "no window $1"
}
expect() {
    for _ in $(seq 40); do
        [ "$(tr -d '\r\n' <"$records/$1")" = "$2" ] && return
        sleep 0.5
    done
    fail "$1 holds $(cat "$records/$1")"
}
gone() {
    for _ in $(seq 120); do
        [ ! -e "$1" ] && return
        sleep 0.5
    done
    fail "$1 is still there"
}
# The row of the miss boxes, as a number.
misses() { import -window root -crop 600x62+225+380 rgb:- | cksum; }

# A profile whose name has accents and a blank.
profile=$WINEPREFIX/drive_c/users/Begoña\ Ibáñez
key='HKCU\Software\Microsoft\Windows\CurrentVersion\Explorer\User Shell Folders'
wineboot -i >/dev/null 2>&1
mkdir -p "$profile/Local" "$profile/Escritorio" "$profile/Inicio"
for value in 'Local AppData=Local' 'Desktop=Escritorio' 'Programs=Inicio'; do
    wine reg add "$key" /v "${value%=*}" /d "C:\\users\\Begoña Ibáñez\\${value#*=}" /f >/dev/null
done
wineserver -w

records=$profile/Local/zarpi
program=$profile/Local/Programs/Zarpi/bin/juego-zarpi.exe
start() { (cd "$(dirname "$program")" && wine "$program" >/dev/null 2>&1 &); window 'pulsa una tecla'; }
quit() { press ctrl+s; timeout 60 wineserver -w || fail "the program does not end"; }
entry() { wine reg query 'HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\Zarpi' /v "$1" 2>/dev/null | tr -d '\r' | grep "$1"; }

wine "$installer" /S
[ -e "$program" ] || fail "the program is not installed"
[ -e "$profile/Escritorio/El juego de Zarpi.lnk" ] || fail "no icon on the desktop"
[ -e "$profile/Inicio/El juego de Zarpi.lnk" ] || fail "nothing in the start menu"
entry DisplayVersion >/dev/null || fail "no entry in the list of programs"
ls "$profile/Local/Programs/Zarpi" "$profile/Local/Programs/Zarpi/bin"

start
shot 01-presentación
press a
window 'Versión 1.5'
press ctrl+n
window 'Nivel 1'
shot 02-nivel
press Return
window 'Nombre del jugador'
xdotool type --delay 100 'Toño y '
press dead_acute a
shot 03-nombre
press Return
press Return
before=$(misses)
press Left
press ntilde
shot 04-eñe
[ "$(misses)" != "$before" ] || fail "ñ has changed nothing"
before=$(misses)
press dead_acute a
[ "$(misses)" = "$before" ] || fail "á has changed something"
press e a o
shot 05-palabra
[ "$(tr -d '\0' <"$folder/sound.raw" | wc -c)" -gt 10000 ] || fail "nothing sounds"
# While it runs nothing is installed over it.
status=0
wine "$installer" /S || status=$?
[ "$status" = 2 ] || fail "installed over a running game: $status"
quit

# A game at its last word but one, as an earlier evening has left it: resumed, saved anew, and resumed after a restart.
printf ' 1 \r\n' >"$records/Ultimo.dat"
printf ' 29 3 0 60 190 14 9Bego\361a        28-12-2026 x          4    0     ' >"$records/Guardar.rnd"
resume() {
    press ctrl+r
    window 'Reanudar partida'
    xdotool type --delay 100 "$1"
    press Return
    sleep 2
}
start
press a
window 'Versión 1.5'
resume x
expect Ultimo.dat ' 0 '
shot 06-reanudada
press ctrl+g
window 'Guardar'
xdotool type --delay 100 'ñandu'
press Tab
xdotool type --delay 100 'ñandu'
shot 07-guardar
sleep 1
press Return
expect Ultimo.dat ' 1 '
quit
start
press a
window 'Versión 1.5'
resume 'ñandu'
expect Ultimo.dat ' 0 '
shot 08-otra-vez
press ctrl+u
window 'ltimas partidas'
shot 09-últimas
# Without a printer the page goes into a file of documents.
press Tab
press space
window 'Imprimir'
shot 10-imprimir
press Return
for _ in $(seq 40); do
    page=$(find "$folder" -name '*ltimas partidas*.pdf' 2>/dev/null | head -1)
    [ -n "$page" ] && pdftotext "$page" - 2>/dev/null | grep -q Zarpis && break
    sleep 0.5
done
[ -n "$page" ] || fail "no page"
pdftoppm -r 50 -png "$page" "$pictures/11-página"
rm "$page"
press Escape Escape  # the ring, the window
# The system's own dialog has left no window active behind.
xdotool search --onlyvisible --name 'Versión 1.5' windowactivate --sync
quit

# Over itself, and away; what the player has stored stays unless he says otherwise.
before=$(cat "$records"/*.dat "$records"/*.rnd | cksum)
wine "$installer" /S
[ -e "$program" ] || fail "the program is gone after an upgrade"
wine "$profile/Local/Programs/Zarpi/desinstalar.exe" /S
gone "$profile/Local/Programs/Zarpi"
wineserver -w
[ ! -e "$profile/Inicio/El juego de Zarpi.lnk" ] || fail "the start menu keeps its entry"
! entry DisplayVersion || fail "the list of programs keeps its entry"
[ "$(cat "$records"/*.dat "$records"/*.rnd | cksum)" = "$before" ] || fail "the records are not what they were"
wine "$installer" /S
wine "$profile/Local/Programs/Zarpi/desinstalar.exe" /S /partidas
gone "$profile/Local/Programs/Zarpi"
gone "$records"
echo "bien: las imágenes están en $pictures"
