#!/usr/bin/env bash
# Records that an older build kept beside the program move to the player's own folder: once, whole, and never over others.
#   traslado.sh RESCUE    scripts/rescue-records
set -euo pipefail
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
export XDG_DATA_HOME=$folder/datos
own=$XDG_DATA_HOME/zarpi
old=$folder/juego
fail() { echo "fallo: $1"; exit 1; }

mkdir "$old"
printf ' 0 \r\n' | tee "$old/Ultimo.dat" >"$old/UltCeI.dat"
[ -z "$("$1" "$old")" ] || fail "counters of 0 are no records"
printf ' 1 \r\n' >"$old/Ultimo.dat"
printf 'uno' >"$old/Guardar.rnd"
mkdir -p "$own"
printf ' 0 \r\n' >"$own/Ultimo.dat"
printf 'half' >"$own/Guardar.rnd"  # a copy that was stopped
[[ $("$1" "$old") = *"ahora están en $own"* ]] || fail "nothing is said"
[ "$(cat "$own/Guardar.rnd")" = uno ] && grep -q 1 "$own/Ultimo.dat" || fail "the records have not arrived"
[ -z "$(ls "$old")" ] || fail "the records are still there"
[ -z "$("$1" "$old")" ] || fail "moved twice"

printf ' 2 \r\n' >"$old/Ultimo.dat"
printf 'dos' >"$old/Guardar.rnd"
[[ $("$1" "$old") = *"otras en $own"* ]] || fail "nothing is said of two"
[ "$(cat "$own/Guardar.rnd")" = uno ] && [ "$(cat "$old/Guardar.rnd")" = dos ] || fail "others are overwritten"
echo "bien"
