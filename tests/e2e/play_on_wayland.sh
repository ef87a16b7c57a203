#!/usr/bin/env bash
# The real program under a Wayland compositor: it opens at the size the settings file stores,
# shows its splash first, ends by keys that a plugin it loads types (there is no keyboard), and
# stores its size and state but keeps the place, which is the compositor's. Play on Wayland is
# the monkey's, through the real main window.
#   under_weston.sh play_on_wayland.sh FROSTEL32_BINARY KEY_PLUGIN_FOLDER
set -u
bin=$(readlink -f "$1")
plugins=$(readlink -f "$2")
[ -n "${WAYLAND_DISPLAY:-}" ] || { echo "skipped: run it under under_weston.sh"; exit 77; }
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() { echo "FAIL: $*"; sed 's/^/  game: /' "$work/game.log"; exit 1; } >&2

mkdir -p "$work/game" "$work/config/frostel32"
cp "$bin" "$work/game/frostel32"
cp "$(dirname "$bin")/frostel32-sound.so" "$work/game/" 2>/dev/null
printf 'ox\r\n' >"$work/game/frostel.dat"
export HOME=$work XDG_CONFIG_HOME=$work/config XDG_DATA_HOME=$work/data
ini=$XDG_CONFIG_HOME/frostel32/frostel.ini
# A height below the smallest the window allows: the end must write what the window had.
printf '[Window]\r\nLeft= 1500\r\nTop= 1200\r\nWidth= 10500\r\nHeight= 6900\r\n' >"$ini"

(cd "$work/game" && QT_PLUGIN_PATH=$plugins QT_QPA_GENERIC_PLUGINS=frostel32-keys \
    exec timeout 30 ./frostel32) >"$work/game.log" 2>&1
status=$?
[ $status -eq 0 ] || fail "exit status $status"
seen=$(sed -n 's/^keys: //p' "$work/game.log" | sed 's/ at [0-9]* ms$//' | tr '\n' '|')
[ "$seen" = 'window Info ""|window eisfig "Frostel32 v2.31"|window  "Program end"|' ] ||
    fail "not splash, window and the end question: $seen"
# The splash stands its 2.5 s before the window comes (timers may fire 5 % early).
shown=($(sed -n 's/^keys: window .* at \([0-9]*\) ms$/\1/p' "$work/game.log"))
[ $((shown[1] - shown[0])) -ge 2375 ] || fail "the splash stood $((shown[1] - shown[0])) ms"
want=$(printf '[Window]\r\nLeft= 1500\r\nTop= 1200\r\nWidth= 10500\r\nHeight= 6975\r\nStatus= 0\r\n.')
got=$(cat "$ini"; echo .)
[ "$got" = "$want" ] || fail "settings file: $(cat -A "$ini")"
echo "1 passed, 0 failed"
