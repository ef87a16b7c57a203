#!/usr/bin/env bash
# Start-up time, memory and idle CPU of the real program under Xvfb, side by side with a
# bare Qt main window built by the same build as the reference. Prints figures.
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
# with $3 = gone).
until_window() {
    local start=$1 search=$2 want=${3:-there}
    for _ in $(seq 2000); do
        if xdotool search --onlyvisible $search >/dev/null 2>&1; then
            [ "$want" = there ] && break
        else
            [ "$want" = gone ] && break
        fi
        sleep 0.005
    done
    minus "$(now)" "$start"
}
rss_mb() { awk '/VmRSS/ {printf "%.1f", $2 / 1024}' /proc/$1/status; }
cpu_s() { awk -v t=$(getconf CLK_TCK) '{printf "%.3f", ($14 + $15) / t}' /proc/$1/stat; }
idle() { # CPU seconds used by PID $1 over 10 s of nobody touching it
    local a b
    a=$(cpu_s $1); sleep 10; b=$(cpu_s $1)
    minus "$b" "$a"
}

t0=$(now); "$bare" >/dev/null 2>&1 & bpid=$!
bare_first=$(until_window $t0 "--pid $bpid")
sleep 1; bare_rss=$(rss_mb $bpid); kill $bpid; wait $bpid 2>/dev/null

mkdir -p "$work/game"
cp "$game" "$work/game/"; printf 'ox\r\n' > "$work/game/frostel.dat"
cp "$build"/game/frostl*.wav "$build"/game/frostel32-sound.so "$work/game/" 2>/dev/null
cd "$work/game"
t0=$(now); ./frostel32 >/dev/null 2>&1 & gpid=$!
splash_up=$(until_window $t0 "--pid $gpid")
splash=$(xdotool search --onlyvisible --pid $gpid 2>/dev/null | head -1)
win="" splash_gone=""
for _ in $(seq 4000); do
    visible=$(xdotool search --onlyvisible --pid $gpid 2>/dev/null)
    [ -z "$splash_gone" ] && ! grep -qx "$splash" <<<"$visible" && splash_gone=$(minus "$(now)" "$t0")
    win=$(xdotool search --onlyvisible --name '^Frostel32 v2.31$' 2>/dev/null | head -1)
    [ -n "$win" ] && [ -n "$splash_gone" ] && break; sleep 0.005
done
main_up=$(minus "$(now)" "$t0")
sleep 1
game_rss=$(rss_mb $gpid)
eval "$(xdotool getwindowgeometry --shell "$win")"
xdotool mousemove $((X + 50)) $((Y + 50))
idle_none=$(idle $gpid)
xdotool key --window "$win" ctrl+s; sleep 2
idle_word=$(idle $gpid)
xdotool type --delay 100 ox; sleep 1.5
idle_ended=$(idle $gpid)

printf '%-44s %10s %10s\n' "" "frostel32" "bare Qt"
printf '%-44s %9.3fs %9.3fs\n' "first window (splash / bare window)" "$splash_up" "$bare_first"
printf '%-44s %9.3fs\n' "main window, from the process start" "$main_up"
printf '%-44s %9.3fs\n' "splash shown for" "$(minus "$splash_gone" "$splash_up")"
printf '%-44s %9.3fs   (target <= 0.3 s)\n' "main window after the splash ends" "$(minus "$main_up" "$splash_gone")"
printf '%-44s %8.1fMB %8.1fMB (target <= 45 MB, <= 1.3x)\n' "resident memory after start-up" "$game_rss" "$bare_rss"
printf '%-44s %9.3fs   (target <= 0.02 s each)\n' "CPU while idle 10 s: no game" "$idle_none"
printf '%-44s %9.3fs\n' "CPU while idle 10 s: word under way" "$idle_word"
printf '%-44s %9.3fs\n' "CPU while idle 10 s: word ended, waiting" "$idle_ended"
