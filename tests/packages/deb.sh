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
press ctrl+n
window 'Nivel 1'
press Return
window 'Nombre del jugador'
xdotool type --delay 80 Ana
press Return
press Return
press e a s k
sleep 2
import -window root "$HOME/$1-palabra.png"
press ctrl+s
wait $program
END
play() {
    inside su jugadora -c "SDL_AUDIODRIVER=dummy xvfb-run -a -s '-screen 0 1024x768x24' sh /packages/play $1"
    cp "$chroot/home/jugadora/"*.png "$pictures"
}
records=$chroot/home/jugadora/.local/share/zarpi
play 1
[ -e "$records/Ultimo.dat" ] || fail "the player has no folder"
printf ' 7 \r\n' >"$records/UltPart.dat"
inside sh -c 'apt-get install -y -qq --no-install-recommends --reinstall /packages/*.deb' >/dev/null
play 2
[ "$(cat "$records/UltPart.dat")" = "$(printf ' 7 \r')" ] || fail "the records are not what they were"
inside apt-get remove -y -qq zarpi zarpi-data >/dev/null
[ ! -e "$chroot/usr/bin/zarpi" ] || fail "the program stays"
inside apt-get purge -y -qq zarpi zarpi-data >/dev/null
[ -z "$(find "$chroot/usr" "$chroot/etc" "$chroot/var/lib" -name '*zarpi*' ! -path '*/dpkg/*')" ] || fail "something stays"
[ -e "$records/UltPart.dat" ] || fail "the records are gone"
echo "bien: las imágenes están en $pictures"
