#!/usr/bin/env bash
# The Debian package as a player gets it: built, checked by lintian, installed with dpkg, played
# by keys by a new player under Xvfb with openbox, and removed, leaving nothing behind outside
# the player's own folders. It installs into the system, so it runs as root, after the tests.
#   package_round_trip.sh BUILD_DIR        exit 77 (skipped) where not root
set -u
build=$(readlink -f "$1")
e2e=$(dirname "$(readlink -f "$0")")/../e2e
[ "$(id -u)" -eq 0 ] || { echo "skipped: installing a package needs root"; exit 77; }
if dpkg-query -W -f='${Status}' frostel32 2>/dev/null | grep -q ' installed$'; then
    echo "skipped: frostel32 is installed on this machine, and the test would remove it"
    exit 77
fi
fail() { echo "FAIL: $*"; exit 1; } >&2
installed=""
trap '[ -n "$installed" ] && dpkg -r frostel32 >/dev/null 2>&1' EXIT
# What is on the system outside home, temporary and package-manager folders.
system() {
    find /usr /etc /opt /srv /var -xdev \( -path /var/lib/dpkg -o -path /var/lib/apt -o \
        -path /var/cache -o -path /var/log -o -path /var/tmp \) -prune -o -print 2>/dev/null | sort
}

cmake --build "$build" --target package >"$build/package.log" 2>&1 ||
    { cat "$build/package.log"; fail "the package did not build"; }
deb=$(ls -t "$build"/frostel32_*.deb | head -1)
if command -v lintian >/dev/null; then
    lintian "$deb" >"$build/lintian.log" 2>&1
    cat "$build/lintian.log"
    grep -q '^E:' "$build/lintian.log" && fail "lintian finds errors"
fi

system >"$build/system-before.txt"
installed=yes
dpkg -i "$deb" || DEBIAN_FRONTEND=noninteractive apt-get -f install -y -qq ||
    fail "the package did not install"
dpkg-query -W -f='${Status}' frostel32 | grep -q ' installed$' || fail "the package is not installed"
"$e2e/under_xvfb.sh" --openbox "$e2e/play_a_word.sh" --installed ||
    fail "the installed game did not play"
dpkg -r frostel32 || fail "the package did not remove"
installed=""
! dpkg-query -W -f='${Status}' frostel32 2>/dev/null | grep -q 'installed$' ||
    fail "dpkg still lists frostel32"
# Anything new is what other packages brought in to satisfy ours, or it is left over.
cat /var/lib/dpkg/info/*.list | sort -u >"$build/owned.txt"
left=$(system | comm -13 "$build/system-before.txt" - | comm -23 - "$build/owned.txt")
[ -z "$left" ] || fail "left behind: $left"
echo "1 passed, 0 failed"
