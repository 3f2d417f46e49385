#!/usr/bin/env bash
# The packages as a user gets them: in a bare Debian, installed, played by an ordinary user in a virtual display, installed again with
# records kept, removed, purged. Wants root and debootstrap.
#   deb.sh CHROOT PICTURES-FOLDER zarpi.deb zarpi-data.deb      makes the Debian 12 in CHROOT if it is not there
set -euo pipefail

chroot=$(realpath -m "$1")
pictures=$(realpath -m "$2")
shift 2
mkdir -p "$pictures"
[ -e "$chroot/etc/debian_version" ] || debootstrap --variant=minbase bookworm "$chroot" >/dev/null
rm -rf "$chroot/home/jugadora/.local"
trap 'umount "$chroot/proc" 2>/dev/null || true' EXIT
mount -t proc proc "$chroot/proc"
rm -rf "$chroot/packages"
mkdir "$chroot/packages"
cp "$@" "$chroot/packages"
inside() { chroot "$chroot" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8 HOME=/root "$@"; }
fail() { echo "fallo: $1"; exit 1; }

inside apt-get update -qq
inside sh -c 'apt-get install -y -qq --no-install-recommends /packages/*.deb' >/dev/null
inside sh -c 'dpkg-query -W -f="\${Package} \${Status} \${Installed-Size} KiB\n" zarpi zarpi-data'
# What the player's desktop has and a bare system not: a display, and here something that presses keys.
inside apt-get install -y -qq --no-install-recommends xvfb xauth xdotool imagemagick >/dev/null
inside sh -c 'id jugadora >/dev/null 2>&1 || useradd -m jugadora'
cat >"$chroot/packages/play" <<'END'
set -eu
cd
zarpi & program=$!
window() { timeout 60 xdotool search --sync --onlyvisible --name "$1" >/dev/null; sleep 1; }
press() { xdotool key --delay 80 "$@"; sleep 0.5; }
window 'pulsa una tecla'
import -window root "$HOME/$1-presentación.png"
press a
window 'Versión 1.5'
if [ -s .local/share/zarpi/Guardar.rnd ]; then
    press ctrl+r
    window 'Reanudar partida'
    xdotool type --delay 80 x
    press Return
else
    press ctrl+n
    window 'Nivel 1'
    press Return
    window 'Nombre del jugador'
    xdotool type --delay 80 Ana
    press Return
    press Return
    # Few words have so many of the rare letters that he does not fall.
    press e a s w k x j z q v y h
fi
sleep 3
import -window root "$HOME/$1-juego.png"
press ctrl+s
wait $program
END
play() {
    inside su -l jugadora -c "LC_ALL=C.UTF-8 SDL_AUDIODRIVER=dummy xvfb-run -a -s '-screen 0 1024x768x24' sh /packages/play $1"
    cp "$chroot/home/jugadora/"*.png "$pictures"
}
records=$chroot/home/jugadora/.local/share/zarpi
stored() { cat "$records"/*.dat "$records"/*.rnd | cksum; }
play 1
[ -s "$records/Ultimo.dat" ] || fail "the player has no folder"
# A game that she has saved at its last word but one.
printf ' 1 \r\n' >"$records/Ultimo.dat"
printf ' 29 3 0 60 190 14 9Bego\361a        28-12-2026 x          4    0     ' >"$records/Guardar.rnd"
before=$(stored)
inside sh -c 'apt-get install -y -qq --no-install-recommends --reinstall /packages/*.deb' >/dev/null
[ "$(stored)" = "$before" ] || fail "the records are not what they were"
play 2
[ "$(tr -d ' \r\n' <"$records/Ultimo.dat")" = 0 ] || fail "the saved game is not resumed"
before=$(stored)
inside apt-get remove -y -qq zarpi zarpi-data >/dev/null
[ ! -e "$chroot/usr/games/zarpi" ] || fail "the program stays"
inside dpkg --purge zarpi zarpi-data 2>/dev/null
[ -z "$(find "$chroot/usr" "$chroot/etc" "$chroot/var/lib" -name '*zarpi*' ! -path '*/dpkg/*')" ] || fail "something stays"
[ "$(stored)" = "$before" ] || fail "the records are gone"
echo "bien: las imágenes están en $pictures"
