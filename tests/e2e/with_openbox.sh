#!/usr/bin/env bash
# Runs a command with openbox managing the display of under_xvfb.sh: windows get real frames,
# titles and states, as players have them.
#   under_xvfb.sh with_openbox.sh COMMAND [ARGS...]     exit 77 (skipped) where a tool is missing
set -u
[ -n "${FROSTEL_XVFB:-}" ] || { echo "skipped: run it under under_xvfb.sh"; exit 77; }
for tool in openbox xprop; do
    command -v $tool >/dev/null || { echo "skipped: $tool is missing"; exit 77; }
done
wpid=""
trap '[ -n "$wpid" ] && kill $wpid 2>/dev/null; wait 2>/dev/null' EXIT
# Up once it has named itself on the root window; now and then it cannot open the display at
# the first try.
for _ in 1 2 3; do
    openbox --sm-disable >/dev/null 2>&1 & wpid=$!
    for _ in $(seq 100); do
        xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id' && break 3
        kill -0 $wpid 2>/dev/null || break
        sleep 0.05
    done
    kill $wpid 2>/dev/null; wait $wpid 2>/dev/null; wpid=""
done
[ -n "$wpid" ] || { echo "openbox did not come up"; exit 1; }
"$@"
