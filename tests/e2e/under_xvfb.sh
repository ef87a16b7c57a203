#!/usr/bin/env bash
# Runs a command in an X server of its own (Xvfb), for tests that need real X input; with
# --openbox, that window manager gives the windows real frames, titles and states.
#   under_xvfb.sh [--openbox] COMMAND [ARGS...]      exit 77 (skipped) where a tool is missing
set -u
wm=""
[ "${1:-}" = --openbox ] && wm=openbox && shift
for tool in Xvfb xdpyinfo ${wm:+openbox xprop}; do
    command -v $tool >/dev/null || { echo "skipped: $tool is missing"; exit 77; }
done
xpid="" wpid=""
trap 'kill $wpid $xpid 2>/dev/null; wait 2>/dev/null' EXIT
for n in $(seq 140 169); do
    [ -e /tmp/.X11-unix/X$n ] || [ -e /tmp/.X$n-lock ] && continue
    Xvfb :$n -screen 0 1280x1024x24 -nolisten tcp >/dev/null 2>&1 & xpid=$!
    export DISPLAY=:$n
    # Ours only if its lock names our server: another test may have taken the display first.
    for _ in $(seq 50); do
        kill -0 $xpid 2>/dev/null || break
        [ "$(tr -d ' ' 2>/dev/null </tmp/.X$n-lock)" = "$xpid" ] && xdpyinfo >/dev/null 2>&1 &&
            break 2
        sleep 0.1
    done
    kill $xpid 2>/dev/null; xpid="" # never came up: try the next display
done
[ -n "$xpid" ] || { echo "no free display for Xvfb"; exit 1; }
# Openbox is up once it has named itself on the root window; now and then it cannot open the
# display at the first try.
for _ in ${wm:+1 2 3}; do
    openbox --sm-disable >/dev/null 2>&1 & wpid=$!
    for _ in $(seq 100); do
        xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id' && break 3
        kill -0 $wpid 2>/dev/null || break
        sleep 0.05
    done
    kill $wpid 2>/dev/null; wait $wpid 2>/dev/null; wpid=""
done
[ -z "$wm" ] || [ -n "$wpid" ] || { echo "openbox did not come up"; exit 1; }
# Scripts that must not run on the user's own screen check for this.
export QT_QPA_PLATFORM=xcb FROSTEL_XVFB=$DISPLAY
"$@"
