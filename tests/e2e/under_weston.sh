#!/usr/bin/env bash
# Runs a command as a client of a Wayland compositor of its own (weston, headless): the
# compositor places the windows, and there is no keyboard or mouse.
#   under_weston.sh COMMAND [ARGS...]      exit 77 (skipped) where weston is missing
set -u
command -v weston >/dev/null || { echo "skipped: weston is missing"; exit 77; }
run=$(mktemp -d)
wpid=""
trap '[ -n "$wpid" ] && kill $wpid 2>/dev/null; wait 2>/dev/null; rm -rf "$run"' EXIT
chmod 700 "$run"
export XDG_RUNTIME_DIR=$run
weston --backend=headless-backend.so --socket=wayland-frostel --width=1280 --height=1024 \
    --idle-time=0 --no-config >"$run/weston.log" 2>&1 & wpid=$!
# Up once its socket is there.
for _ in $(seq 100); do
    [ -S "$run/wayland-frostel" ] && break
    kill -0 $wpid 2>/dev/null || break
    sleep 0.05
done
[ -S "$run/wayland-frostel" ] || { echo "weston did not come up:"; cat "$run/weston.log"; exit 1; }
unset DISPLAY
# Qt 6.4's Wayland text input reaches for the seat's input device when a text box is clicked,
# and headless weston has none: no input method here.
export WAYLAND_DISPLAY=wayland-frostel QT_QPA_PLATFORM=wayland QT_IM_MODULE=none
"$@"
