#!/usr/bin/env bash
# What a blind player hears: the real program under the Orca screen reader, played by keys
# alone, in English and in German. Orca logs each thing it says, also with no synthesizer;
# every sentence of the board is said once and in order, and a question is read out.
#   under_xvfb.sh --openbox with_atspi.sh spoken_game.sh FROSTEL32_BINARY
# (Orca's --replace ends every process named orca, so nothing here may bear that name.)
set -u
bin=$(readlink -f "$1")
[ -n "${FROSTEL_XVFB:-}" ] && [ -n "${QT_LINUX_ACCESSIBILITY_ALWAYS_ON:-}" ] ||
    { echo "skipped: run it under under_xvfb.sh --openbox and with_atspi.sh"; exit 77; }
command -v orca >/dev/null && command -v xdotool >/dev/null ||
    { echo "skipped: orca or xdotool is missing"; exit 77; }
work=$(mktemp -d)
opid="" gpid=""
trap 'kill -9 $gpid $opid 2>/dev/null; wait 2>/dev/null; rm -rf "$work"' EXIT
fail() { echo "FAIL: $*"; grep -a "SPEECH OUTPUT" "$log" | tail; sed 's/^/  game: /' "$work/game.log"; exit 1; } >&2
export HOME=$work XDG_CONFIG_HOME=$work/config XDG_DATA_HOME=$work/data XDG_RUNTIME_DIR=$work/run
mkdir -p "$XDG_RUNTIME_DIR" "$work/game" && chmod 700 "$XDG_RUNTIME_DIR"
cp "$bin" "$work/game/frostel32"
printf 'oxo\r\n' >"$work/game/frostel.dat" # one word, so the game is known
log=$work/orca.log

# The sentences of the board's notifications, one a line, in the order spoken.
heard() {
    sed -n "s/.*SPEECH OUTPUT: 'notification \(.*\)'{.*/\1/p" "$log" | sed 's/\([.!]\) /\1\n/g'
}
# Presses the keys, then waits up to 15 s until that many sentences have been said.
step() {
    local count=$1 && shift
    xdotool key --delay 100 "$@"
    for _ in $(seq 150); do
        [ "$(heard | wc -l)" -ge "$count" ] && return
        sleep 0.1
    done
    fail "after $*: $(heard | wc -l) sentences, not $count: $(heard | tail -3 | tr '\n' '|')"
}

for lang in en de; do
    rm -f "$log"
    # Orca, with its log written line by line so that it can be followed as it speaks.
    /usr/bin/python3 -c 'import builtins, runpy, sys
plain = builtins.open
builtins.open = lambda f, m="r", *a, **k: plain(f, m, 1) if m == "w" else plain(f, m, *a, **k)
sys.argv[0] = "orca"
runpy.run_path("/usr/bin/orca", run_name="__main__")' --replace --debug-file="$log" >/dev/null 2>&1 &
    opid=$!
    for _ in $(seq 150); do grep -q "SPEECH OUTPUT" "$log" 2>/dev/null && break; sleep 0.1; done
    [ $lang = de ] && export LANG=de_DE.UTF-8
    (cd "$work/game" && exec ./frostel32) >"$work/game.log" 2>&1 &
    gpid=$!
    # Orca reads the main window's title once the splash has gone.
    for _ in $(seq 150); do grep -q "SPEECH OUTPUT: 'Frostel32 v2.31 frame" "$log" && break; sleep 0.1; done
    win=$(xdotool search --pid $gpid --onlyvisible --name '^Frostel32' 2>/dev/null | tail -1)
    [ -n "$win" ] || fail "no window"
    xdotool windowactivate --sync "$win" 2>/dev/null
    # A miss, a tip, a solved word, eight misses, a lost word, the next word; each step waits
    # until the sentences said so far number that many.
    for keys in "1 ctrl+s" "3 z" "4 ctrl+t" "8 x" "9 Return" "25 a b c d e f g h" "30 i" "31 Return"; do
        step $keys
    done
    # The transcript's last line is the end's question, which is read out once.
    want=$(dirname "$0")/spoken/$lang.txt
    diff <(heard) <(head -n -1 "$want") || fail "$lang: heard (<) not as wanted (>)"
    xdotool key ctrl+e
    question=$(tail -1 "$want")
    for _ in $(seq 50); do grep -q "SPEECH OUTPUT: '$question'" "$log" && break; sleep 0.1; done
    [ "$(grep -c "SPEECH OUTPUT: '$question'" "$log")" = 1 ] || fail "$lang: not once: $question"
    xdotool key Return
    for _ in $(seq 50); do kill -0 $gpid 2>/dev/null || break; sleep 0.1; done
    kill -0 $gpid 2>/dev/null && fail "$lang: the game did not end after the question"
    wait $gpid || fail "$lang: exit status $?"
    kill $opid
    for _ in $(seq 50); do kill -0 $opid 2>/dev/null || break; sleep 0.1; done
    kill -9 $opid 2>/dev/null
done
echo "1 passed, 0 failed"
