#!/usr/bin/env bash
# Start-up time, memory and idle CPU of the real program under Xvfb, side by side with a
# reference window built by the same build: a plain Qt main window with what a game window
# shows (a menu bar, labels, a button, all with text), nothing of the game. Times are medians
# of 5 starts, memory medians of 3. Prints figures.
#   bench/startup.sh [BUILD_DIR]     (a Release build: cmake -DCMAKE_BUILD_TYPE=Release)
set -u
here=$(cd "$(dirname "$0")/.." && pwd)
# An X server of its own, never the user's screen.
[ -n "${FROSTEL_XVFB:-}" ] || exec "$here/tests/e2e/under_xvfb.sh" bash "$0" "$@"
build=$(readlink -f "${1:-$here/build-release}")
cmake --build "$build" --target frostel32 bench_bare_window >/dev/null || exit 1
game=$build/game/frostel32
bare=$build/bench/bench_bare_window
for tool in xdotool; do command -v $tool >/dev/null || { echo "needs $tool"; exit 2; }; done

work=$(mktemp -d)
trap 'kill $(jobs -p) 2>/dev/null; wait 2>/dev/null; rm -rf "$work"' EXIT
export HOME=$work XDG_CONFIG_HOME=$work/config XDG_DATA_HOME=$work/data XDG_RUNTIME_DIR=$work/run
mkdir -p "$XDG_RUNTIME_DIR" && chmod 700 "$XDG_RUNTIME_DIR"

now() { date +%s.%N; }
minus() { awk -v a="$1" -v b="$2" 'BEGIN { printf "%.3f", a - b }'; }
# Seconds from $1 until a visible window matching the xdotool search $2 exists (or is gone,
# with $3 = gone); "-" where the process $4 died first.
until_window() {
    local start=$1 search=$2 want=${3:-there} pid=${4:-}
    for _ in $(seq 2000); do
        [ -n "$pid" ] && ! kill -0 "$pid" 2>/dev/null && { echo -; return; }
        if xdotool search --onlyvisible $search >/dev/null 2>&1; then
            [ "$want" = there ] && break
        else
            [ "$want" = gone ] && break
        fi
        sleep 0.005
    done
    minus "$(now)" "$start"
}
rss_mb() { awk '/VmRSS/ {printf "%.1f", $2 / 1024}' /proc/$1/status 2>/dev/null; }
cpu_s() { awk -v t=$(getconf CLK_TCK) '{printf "%.3f", ($14 + $15) / t}' /proc/$1/stat; }
idle() { # CPU seconds used by PID $1 over 10 s of nobody touching it
    local a b
    a=$(cpu_s $1); sleep 10; b=$(cpu_s $1)
    minus "$b" "$a"
}

median() { sort -g | awk '{ v[NR] = $1 } END { print v[int((NR + 1) / 2)] }'; }
ratio() { awk -v a="$1" -v b="$2" 'BEGIN { printf "%.2f", a / b }'; }

mkdir -p "$work/game"
cp "$game" "$work/game/"; printf 'ox\r\n' > "$work/game/frostel.dat"
cp "$build"/game/frostl*.wav "$build"/game/frostel32-sound.so "$work/game/" 2>/dev/null
cd "$work/game"
: >"$work/figures"
idle_none=- idle_word=- idle_ended=-
# The reference and the game take turns, so a busy moment of the machine weighs on both;
# five good runs, of which the first three also give the memory.
good=0
for _ in $(seq 8); do
    [ $good -ge 5 ] && break
    t0=$(now); "$bare" >/dev/null 2>&1 & bpid=$!
    bare_first=$(until_window $t0 "--pid $bpid" there $bpid)
    bare_rss=-
    [ $good -lt 3 ] && sleep 1 && bare_rss=$(rss_mb $bpid)
    kill $bpid 2>/dev/null; wait $bpid 2>/dev/null

    t0=$(now); ./frostel32 >/dev/null 2>&1 & gpid=$!
    splash_up=$(until_window $t0 "--pid $gpid" there $gpid)
    splash=$(xdotool search --onlyvisible --pid $gpid 2>/dev/null | head -1)
    win="" splash_gone=""
    for _ in $(seq 4000); do
        kill -0 $gpid 2>/dev/null || break
        visible=$(xdotool search --onlyvisible --pid $gpid 2>/dev/null)
        [ -z "$splash_gone" ] && ! grep -qx "$splash" <<<"$visible" && splash_gone=$(minus "$(now)" "$t0")
        win=$(xdotool search --onlyvisible --name '^Frostel32 v2.31$' 2>/dev/null | head -1)
        [ -n "$win" ] && [ -n "$splash_gone" ] && break; sleep 0.005
    done
    main_up=$(minus "$(now)" "$t0")
    game_rss=-
    [ $good -lt 3 ] && sleep 1 && game_rss=$(rss_mb $gpid)
    # A run whose X connection broke (a program that died) counts for neither side.
    if [ "$bare_first" = - ] || [ "$splash_up" = - ] || [ -z "$win" ] || [ -z "$bare_rss" ] ||
        [ -z "$game_rss" ]; then
        echo "a run failed (a program died): not counted" >&2
        kill $gpid 2>/dev/null; wait $gpid 2>/dev/null; continue
    fi
    echo "$bare_first $splash_up $main_up $splash_gone $bare_rss $game_rss" >>"$work/figures"
    good=$((good + 1))
    [ $good -lt 5 ] && { kill $gpid; wait $gpid 2>/dev/null; continue; }
    # The last game stays for the idle figures.
    eval "$(xdotool getwindowgeometry --shell "$win")"
    xdotool mousemove $((X + 50)) $((Y + 50))
    idle_none=$(idle $gpid)
    xdotool key --window "$win" ctrl+s; sleep 2
    idle_word=$(idle $gpid)
    xdotool type --delay 100 ox; sleep 1.5
    idle_ended=$(idle $gpid)
done
col() { awk -v c="$1" '$c != "-" { print $c }' "$work/figures" | median; }
bare_first=$(col 1) splash_up=$(col 2) main_up=$(col 3) splash_gone=$(col 4)
bare_rss=$(col 5) game_rss=$(col 6)

printf '%-44s %10s %10s\n' "" "frostel32" "reference"
printf '%-44s %9.3fs %9.3fs %6sx\n' "first window (splash / reference window)" "$splash_up" \
    "$bare_first" "$(ratio "$splash_up" "$bare_first")"
printf '%-44s %9.3fs\n' "main window, from the process start" "$main_up"
printf '%-44s %9.3fs\n' "splash shown for" "$(minus "$splash_gone" "$splash_up")"
printf '%-44s %9.3fs   (target <= 0.3 s)\n' "main window after the splash ends" "$(minus "$main_up" "$splash_gone")"
printf '%-44s %8.1fMB %8.1fMB %6sx (target <= 1.10x)\n' "resident memory after start-up" \
    "$game_rss" "$bare_rss" "$(ratio "$game_rss" "$bare_rss")"
printf '%-44s %9ss   (target <= 0.02 s each)\n' "CPU while idle 10 s: no game" "$idle_none"
printf '%-44s %9ss\n' "CPU while idle 10 s: word under way" "$idle_word"
printf '%-44s %9ss\n' "CPU while idle 10 s: word ended, waiting" "$idle_ended"
