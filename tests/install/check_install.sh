#!/usr/bin/env bash
# Installs the build into a scratch prefix and checks what a desktop needs of it, and what
# the installed game makes of a player's folder.
#   check_install.sh BUILD_DIR
set -u
prefix=$(mktemp -d) home=$(mktemp -d)
trap 'rm -rf "$prefix" "$home"' EXIT
fail() { echo "FAIL: $*"; exit 1; }
data=$prefix/share/games/frostel32
cmake --install "$1" --prefix "$prefix" >/dev/null || fail "cmake --install"
id=net.frostel32.frostel32
for f in games/frostel32 share/applications/$id.desktop share/metainfo/$id.metainfo.xml \
         share/icons/hicolor/scalable/apps/$id.svg share/games/frostel32/frostel.dat \
         share/games/frostel32/frostl0.wav share/games/frostel32/frostl13.wav \
         share/man/man6/frostel32.6.gz share/doc/frostel32/copyright \
         share/doc/frostel32/README.TXT share/doc/frostel32/README.de.TXT; do
    [ -s "$prefix/$f" ] || fail "$f not installed"
done
appstreamcli validate --no-net "$prefix/share/metainfo/$id.metainfo.xml" >/dev/null ||
    fail "the metainfo does not validate"
out=$(desktop-file-validate "$prefix/share/applications/$id.desktop" 2>&1) && [ -z "$out" ] ||
    fail "the desktop entry: $out"
# A German desktop: launcher, software centre and manual page in German, the window matched to
# its launcher, the icon at every size a theme asks for.
desktop=$prefix/share/applications/$id.desktop
key() { sed -n "s/^$1=//p" "$desktop"; }
for k in Name GenericName Comment Keywords; do
    [ -n "$(key "$k\[de\]")" ] || fail "the desktop entry has no $k[de]"
done
[ "$(key 'Comment\[de\]')" != "$(key Comment)" ] || fail "Comment[de] is not German"
[ "$(key StartupWMClass)" = frostel32 ] || fail "the desktop entry does not name the window class"
metainfo=$prefix/share/metainfo/$id.metainfo.xml
grep -q '<summary xml:lang="de">Errate' "$metainfo" || fail "the metainfo has no German summary"
grep -q '<p xml:lang="de">' "$metainfo" || fail "the metainfo has no German description"
for page in man6 de/man6; do
    warnings=$(MANWIDTH=80 man -l --warnings "$prefix/share/man/$page/frostel32.6.gz" 2>&1 >/dev/null)
    [ -z "$warnings" ] || fail "man $page: $warnings"
done
MANWIDTH=80 man -l "$prefix/share/man/de/man6/frostel32.6.gz" 2>/dev/null | grep -q '^BESCHREIBUNG' ||
    fail "the German manual page is not German"
for s in 16 22 24 32 48 64 128 256; do
    file "$prefix/share/icons/hicolor/${s}x$s/apps/$id.png" | grep -q "PNG image data, $s x $s," ||
        fail "no ${s}x$s icon"
done
# Across an upgrade: a list the player edited stays byte for byte, a copy of a version
# shipped before is renewed, a missing one comes, each in the player's language, and the
# guide too; the sounds stay where they were installed. play LANG starts the installed game
# in LANG until it has filled the player's folder; the desktop ends it.
own=$home/.local/share/frostel32
play() {
    HOME=$home XDG_DATA_HOME=$home/.local/share XDG_CONFIG_HOME=$home/.config \
        XDG_RUNTIME_DIR=$home QT_QPA_PLATFORM=offscreen LANG=$1 "$prefix/games/frostel32" &
    local pid=$!
    for _ in $(seq 100); do [ -s "$own/frostel.dat" ] && break; sleep 0.1; done
    kill -TERM $pid; wait $pid || fail "exit $? after SIGTERM"
}
same() { cmp -s "$1" "$2" || fail "$(basename "$1") is not $2"; }
mkdir -p "$own"
printf 'oak\r\n' >"$own/nature.dat" # as an earlier version shipped it
echo "$(sha256sum <"$own/nature.dat" | cut -d' ' -f1)  nature.dat" >>"$data/shipped.sha256"
printf 'kiwi\r\nmango\r\n' >"$own/groceries.dat" # the player's own
cp "$own/groceries.dat" "$home/edited"
play C.UTF-8
same "$own/nature.dat" "$data/nature.dat"
same "$own/groceries.dat" "$home/edited"
same "$own/frostel.dat" "$data/frostel.dat"
same "$own/README.TXT" "$data/README.TXT"
! ls "$own" | grep -q '\.wav$' || fail "sounds were copied"

rm -rf "$own"
play de_DE.UTF-8
same "$own/frostel.dat" "$data/de/frostel.dat"
same "$own/README.TXT" "$data/de/README.TXT"
echo "1 passed, 0 failed"
