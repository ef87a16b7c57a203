#!/usr/bin/env bash
# The real program under a Wayland compositor, ended by the desktop's signal: it opens at the
# size the settings file stores, no lower than it allows, and writes its size and state but
# keeps the place, which is the compositor's. Play on Wayland is the window suites'.
#   under_weston.sh play_on_wayland.sh FROSTEL32_BINARY
set -u
bin=$(readlink -f "$1")
[ -n "${WAYLAND_DISPLAY:-}" ] || { echo "skipped: run it under under_weston.sh"; exit 77; }
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() { echo "FAIL: $*"; sed 's/^/  game: /' "$work/game.log"; exit 1; } >&2
mkdir -p "$work/game" "$work/config/frostel32"
cp "$bin" "$work/game/frostel32"
printf 'ox\r\n' >"$work/game/frostel.dat"
export HOME=$work XDG_CONFIG_HOME=$work/config XDG_DATA_HOME=$work/data
ini=$XDG_CONFIG_HOME/frostel32/frostel.ini
printf '[Window]\r\nLeft= 1500\r\nTop= 1200\r\nWidth= 10500\r\nHeight= 6900\r\n' >"$ini"
(cd "$work/game" && exec ./frostel32) >"$work/game.log" 2>&1 & gpid=$!
sleep 4 # past the splash
kill -TERM $gpid
wait $gpid || fail "exit status $?"
want=$(printf '[Window]\r\nLeft= 1500\r\nTop= 1200\r\nWidth= 10500\r\nHeight= 6975\r\nStatus= 0\r\n.')
[ "$(cat "$ini"; echo .)" = "$want" ] || fail "settings file: $(cat -A "$ini")"
echo "1 passed, 0 failed"
