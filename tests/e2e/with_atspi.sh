#!/usr/bin/env bash
# Runs a command on a D-Bus session of its own with the accessibility bus up, as a screen
# reader has it: Qt then reports what a screen reader would hear.
#   with_atspi.sh COMMAND [ARGS...]      exit 77 (skipped) where D-Bus or AT-SPI is missing
set -u
launcher=/usr/libexec/at-spi-bus-launcher
command -v dbus-run-session >/dev/null && [ -x $launcher ] ||
    { echo "skipped: dbus-run-session or at-spi-bus-launcher is missing"; exit 77; }
exec dbus-run-session -- bash -c '
    '$launcher' --launch-immediately >/dev/null 2>&1 &
    for _ in $(seq 50); do
        dbus-send --session --print-reply --dest=org.a11y.Bus /org/a11y/bus \
            org.a11y.Bus.GetAddress >/dev/null 2>&1 && break
        sleep 0.1
    done
    QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 "$@"' with_atspi "$@"
