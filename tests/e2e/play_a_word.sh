#!/usr/bin/env bash
# The real program under Xvfb with a window manager, by keys alone: start a game by its
# shortcut, take a tip, play the word to its end, end the wait with Enter; in the options a name,
# both counters by their labels' keys and another word list, whose file has gone by then: the
# editor says so and takes a new word into its box; the help opened and closed; quit through
# the menu. Checks the titles the window manager shows and what the files then hold. Then
# started again and ended by the desktop: by signals, and by a session manager.
#   under_xvfb.sh --openbox play_a_word.sh FROSTEL32_BINARY
#   under_xvfb.sh --openbox play_a_word.sh --installed   as the menu starts an installed game
set -u
bin=$1
[ "$bin" = --installed ] || bin=$(readlink -f "$1")
[ -n "${FROSTEL_XVFB:-}" ] || { echo "skipped: run it under under_xvfb.sh"; exit 77; }
for tool in xdotool xprop xsm iceauth; do
    command -v $tool >/dev/null || { echo "skipped: $tool is missing"; exit 77; }
done
work=$(mktemp -d)
gpid="" xsm=""
cleanup() { kill $gpid $xsm 2>/dev/null; wait 2>/dev/null; rm -rf "$work"; }
trap cleanup EXIT
fail() { echo "FAIL: $*"; [ -f "$work/game.log" ] && sed 's/^/  game: /' "$work/game.log"; exit 1; } >&2
# The game's visible window with that title, waited for up to 10 s; its title must be exactly
# that as the window manager has it.
window() {
    local w="" shown
    for _ in $(seq 100); do
        w=$(xdotool search --all --pid $gpid --onlyvisible --name "^$1" 2>/dev/null | tail -1)
        [ -n "$w" ] && break || sleep 0.1
    done
    [ -n "$w" ] || fail "no window \"$1\""
    shown=$(xprop -id "$w" _NET_WM_NAME | sed -n 's/^_NET_WM_NAME(UTF8_STRING) = //p')
    [ "$shown" = "\"$1\"" ] || fail "title $shown, not \"$1\""
    echo "$w"
}

export HOME=$work/home XDG_CONFIG_HOME=$work/home/.config XDG_DATA_HOME=$work/home/.local/share
export XDG_RUNTIME_DIR=$work/home/.runtime
mkdir -p "$XDG_RUNTIME_DIR" && chmod 700 "$XDG_RUNTIME_DIR"
# A vocabulary of one word, so the word is known: in a game folder of its own, or in the data
# folder of a new player, where an installed game keeps it.
folder=$work/game run="cd $work/game && exec ./frostel32"
if [ "$bin" = --installed ]; then
    folder=$XDG_DATA_HOME/frostel32
    run="cd $HOME && PATH=/usr/local/bin:/usr/bin:/bin:/usr/local/games:/usr/games exec \
        $(sed -n 's/^Exec=//p' /usr/share/applications/net.frostel32.frostel32.desktop)"
fi
mkdir -p "$folder"
[ "$bin" = --installed ] || cp "$bin" "${bin%/*}"/frostl*.wav "${bin%/*}"/*.so "$folder/" 2>/dev/null
printf 'ox\r\n' >"$folder/frostel.dat"
printf 'fig\r\n' >"$folder/groceries.dat"
launch() { (eval "$run") >"$work/game.log" 2>&1 & gpid=$!; }
launch
win=$(window "Frostel32 v2.31") || exit 1 # the splash comes first
xdotool windowactivate --sync "$win" 2>/dev/null
sleep 0.3
xdotool key --window "$win" ctrl+s
sleep 2.5 # the picture grows, the fields are laid out
xdotool key ctrl+t # uncovers the O
xdotool type --delay 150 x
sleep 1.5
# The sound of the draw has brought in the sound module.
grep -q '/frostel32-sound.so$' /proc/$gpid/maps || fail "the sound module was not loaded"
xdotool key Return # next word
sleep 2.5
xdotool key alt+g o
window "Options" >/dev/null || exit 1
xdotool type --delay 100 Kim # the first name has the focus, all of it selected
xdotool key alt+p Down alt+t Down alt+v Down # 3 players, 2 tips, the next list
rm "$folder/groceries.dat"
xdotool key alt+e
window "groceries.dat" >/dev/null || exit 1
sleep 0.5
xdotool key Return # the box that the file is not found
xdotool type --delay 100 yak
xdotool key Return alt+s alt+o # Add is the default; Save; OK
sleep 0.5
xdotool key Return # OK has the focus again
sleep 0.5
xdotool key F1
window "Frostel32 Help" >/dev/null || exit 1
xdotool key Escape
sleep 0.5
[ -z "$(xdotool search --all --pid $gpid --onlyvisible --name '^Frostel32 Help')" ] ||
    fail "Escape did not close the help"
xdotool key ctrl+e
window "Program end" >/dev/null || exit 1
xdotool key Return # Yes is the default
for _ in $(seq 50); do kill -0 $gpid 2>/dev/null || break; sleep 0.1; done
kill -0 $gpid 2>/dev/null && fail "the program did not end after End and Yes"
wait $gpid; status=$?
[ $status -eq 0 ] || fail "exit status $status"

ini=$XDG_CONFIG_HOME/frostel32/frostel.ini
[ -f "$ini" ] || fail "no $ini"
for key in Left Top Width Height Status; do
    grep -q "^$key=" "$ini" || fail "$key missing from $(cat -A "$ini")"
done
grep -q $'^Status= 0\r$' "$ini" || fail "Status not ' 0': $(cat -A "$ini")"
grep -q $'^Width= 9600\r$' "$ini" || fail "Width not 9600 twips: $(cat -A "$ini")"
for line in 'Spieler1=Kim' 'Anzahl= 3' 'Tips= 2' 'Datei=groceries.dat'; do
    grep -q "^$line"$'\r$' "$ini" || fail "no $line in $(cat -A "$ini")"
done
keys=$(sed -n '/^\[Einstellungen\]/,/^\[W/s/=.*//p' "$ini" | tr '\n' ' ')
[ "$keys" = "Anzahl Sound Anzeige Wiederholung Tips Spieler1 Spieler2 Spieler3 Spieler4 Datei Motiv " ] ||
    fail "OK wrote its keys in another order: $keys"
[ "$(cat "$folder/groceries.dat")" = $'yak\r' ] ||
    fail "the word was not saved: $(cat -A "$folder/groceries.dat")"
# Ended by the desktop, at logout or by its terminal: the window's place is written as at any
# close, with no question and exit status 0; a second signal meanwhile does no harm.
for sig in TERM HUP INT; do
    rm "$ini"
    launch
    win=$(window "Frostel32 v2.31") || exit 1
    sleep 3 # past the splash
    xdotool windowmove --sync "$win" 150 120
    sleep 0.5 # the game hears of the move from the X server a moment after it is done
    kill -$sig $gpid && kill -$sig $gpid
    wait $gpid; status=$?
    [ $status -eq 0 ] || fail "SIG$sig: exit status $status"
    # The frame's corner: openbox's border is 1 pixel, its title bar 20.
    grep -q $'^Left= 2235\r$' "$ini" && grep -q $'^Top= 1500\r$' "$ini" ||
        fail "SIG$sig: not the moved place in $(cat -A "$ini" 2>&1)"
done
# And through a real session manager, xsm: its shutdown with a checkpoint ends the game as
# above. Shutdown is a menu (pressed, "With Checkpoint" below, released there); its dialog
# wants a session name.
rm "$ini"
echo "sh -c '${run/exec /}; echo \$? >$work/status'" >"$HOME/.xsmstartup"
xsm -session test >/dev/null 2>&1 & xsm=$!
for _ in $(seq 100); do
    panel=$(xdotool search --onlyvisible --name '^xsm: ' 2>/dev/null)
    [ -n "$panel" ] && xdotool search --onlyvisible --name '^Frostel32' >/dev/null && break
    sleep 0.1
done
sleep 2 # past the splash
xdotool windowactivate --sync "$panel" mousemove --window "$panel" 143 47 mousedown 1 sleep 0.5 \
    mousemove_relative 30 35 sleep 0.3 mouseup 1 sleep 1
dialog=$(xdotool search --onlyvisible --name '^Shutdown$' | head -1)
[ -n "$dialog" ] || fail "xsm's shutdown dialog did not show"
xdotool mousemove --window "$dialog" 172 15 click 1 type test
xdotool mousemove --window "$dialog" 46 135 click 1
for _ in $(seq 100); do [ -s "$work/status" ] && break; sleep 0.1; done
[ "$(cat "$work/status" 2>/dev/null)" = 0 ] || fail "xsm: exit status $(cat "$work/status")"
grep -q $'^Status= 0\r$' "$ini" || fail "xsm: no window place in $(cat -A "$ini" 2>&1)"
echo "1 passed, 0 failed"
