#!/usr/bin/env bash
# The player's folder across an upgrade, through the installed layout: a list the player
# edited stays byte for byte, a copy of a version shipped before is renewed, a missing one
# comes, each in the player's language; the sounds stay where they were installed.
#   upgrade_word_lists.sh BUILD_DIR
set -u
prefix=$(mktemp -d) home=$(mktemp -d)
trap 'rm -rf "$prefix" "$home"' EXIT
fail() { echo "FAIL: $*"; exit 1; }
cmake --install "$1" --prefix "$prefix" >/dev/null || fail "cmake --install"
data=$prefix/share/games/frostel32 own=$home/.local/share/frostel32
# Starts the installed game as LANG, until it has filled the folder; the desktop ends it.
play() {
    HOME=$home XDG_DATA_HOME=$home/.local/share XDG_CONFIG_HOME=$home/.config \
        XDG_RUNTIME_DIR=$home QT_QPA_PLATFORM=offscreen LANG=$1 "$prefix/games/frostel32" &
    local pid=$!
    for _ in $(seq 100); do [ -s "$own/frostel.dat" ] && break; sleep 0.1; done
    sleep 0.5; kill -TERM $pid; wait $pid || fail "exit $? after SIGTERM"
}
same() { cmp -s "$1" "$2" || fail "$(basename "$1") is not $2"; }

mkdir -p "$own"
printf 'oak\r\n' >"$own/nature.dat" # as an earlier version shipped it
echo "$(sha256sum <"$own/nature.dat" | cut -d' ' -f1)  nature.dat" >>"$data/shipped.sha256"
printf 'kiwi\r\nmango\r\n' >"$own/groceries.dat" # the player's own
cp "$own/groceries.dat" "$home/edited"
play C.UTF-8
same "$own/nature.dat" "$data/nature.dat"
same "$own/groceries.dat" "$home/edited"
same "$own/frostel.dat" "$data/frostel.dat"
! ls "$own" | grep -q '\.wav$' || fail "sounds were copied"

rm -rf "$own"
play de_DE.UTF-8
same "$own/frostel.dat" "$data/de/frostel.dat"
echo "1 passed, 0 failed"
