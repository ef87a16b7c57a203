#!/usr/bin/env bash
# The end of a desktop session through a real session manager (xsm): its shutdown with a
# checkpoint asks the game to save, and the game ends as a closed window does, the window's
# place written, exit 0.
#   under_xvfb.sh with_openbox.sh session_manager.sh BINARY
set -u
for tool in xsm iceauth xdotool; do
    command -v $tool >/dev/null || { echo "skipped: $tool is missing"; exit 77; }
done
home=$(mktemp -d)
trap 'kill $xsm 2>/dev/null; rm -rf "$home"' EXIT
fail() { echo "FAIL: $*"; exit 1; }
export HOME=$home XDG_CONFIG_HOME=$home/.config XDG_DATA_HOME=$home/.local XDG_RUNTIME_DIR=$home
chmod 700 "$home"
# xsm starts the session's programs from this list; the game's exit status is kept aside.
echo "sh -c '$1; echo \$? >$home/status'" >"$home/.xsmstartup"
xsm -session test >/dev/null 2>&1 & xsm=$!
find() { xdotool search --onlyvisible --name "$1" 2>/dev/null | head -1; }
for _ in $(seq 100); do
    panel=$(find '^xsm: ') game=$(find '^Frostel32')
    [ -n "$panel" ] && [ -n "$game" ] && break
    sleep 0.1
done
[ -n "$panel" ] && [ -n "$game" ] || fail "xsm or the game did not show"
sleep 1
# Shutdown is a menu: pressed, "With Checkpoint" below it, released there.
xdotool windowactivate --sync "$panel"
xdotool mousemove --window "$panel" 143 47 mousedown 1 sleep 0.5 mousemove_relative 30 35 \
    sleep 0.3 mouseup 1
for _ in $(seq 50); do dialog=$(find '^Shutdown$'); [ -n "$dialog" ] && break; sleep 0.1; done
[ -n "$dialog" ] || fail "xsm's shutdown dialog did not show"
# A name for the session, then its Shutdown button.
xdotool mousemove --window "$dialog" 172 15 click 1 type test
xdotool mousemove --window "$dialog" 46 135 click 1
for _ in $(seq 100); do [ -s "$home/status" ] && break; sleep 0.1; done
[ "$(cat "$home/status" 2>/dev/null)" = 0 ] || fail "the game ended with $(cat "$home/status" 2>/dev/null || echo no status)"
ini=$home/.config/frostel32/frostel.ini
grep -q '^Status= 0' "$ini" 2>/dev/null || fail "no window place written: $(cat -A "$ini" 2>&1)"
echo "1 passed, 0 failed"
