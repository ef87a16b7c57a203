#!/usr/bin/env bash
# Installs the build into a scratch prefix and checks what a desktop needs of it.
#   check_install.sh BUILD_DIR
set -u
prefix=$(mktemp -d)
trap 'rm -rf "$prefix"' EXIT
fail() { echo "FAIL: $*"; exit 1; }
cmake --install "$1" --prefix "$prefix" >/dev/null || fail "cmake --install"
id=net.frostel32.frostel32
for f in games/frostel32 share/applications/$id.desktop share/metainfo/$id.metainfo.xml \
         share/icons/hicolor/scalable/apps/$id.svg share/icons/hicolor/32x32/apps/$id.png \
         share/icons/hicolor/64x64/apps/$id.png share/games/frostel32/frostel.dat \
         share/games/frostel32/frostl0.wav share/games/frostel32/frostl13.wav \
         share/man/man6/frostel32.6.gz share/doc/frostel32/copyright \
         share/doc/frostel32/README.TXT share/doc/frostel32/README.de.TXT; do
    [ -s "$prefix/$f" ] || fail "$f not installed"
done
if command -v appstreamcli >/dev/null; then
    appstreamcli validate --no-net "$prefix/share/metainfo/$id.metainfo.xml" >/dev/null \
        || fail "the metainfo does not validate"
fi
if command -v desktop-file-validate >/dev/null; then
    out=$(desktop-file-validate "$prefix/share/applications/$id.desktop") || fail "$out"
    [ -z "$out" ] || fail "$out"
fi
# A German desktop: launcher, software centre and manual page in German, the window matched to
# its launcher, the player's README in both languages, the icon at every size a theme asks for.
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
# The README names the menu's own keys.
ui=$(dirname "$(readlink -f "$0")")/../../src/mainwindow/eisfig.ui
for k in $(sed -n 's,.*<string notr="true">\(Ctrl+.\|F1\)</string>.*,\1,p' "$ui"); do
    grep -qF "$k" "$prefix/share/games/frostel32/README.TXT" || fail "README.TXT does not name $k"
    grep -qF "${k/Ctrl/Strg}" "$prefix/share/games/frostel32/de/README.TXT" ||
        fail "the German README.TXT does not name ${k/Ctrl/Strg}"
done
for s in 16 22 24 32 48 64 128 256; do
    file "$prefix/share/icons/hicolor/${s}x$s/apps/$id.png" | grep -q "PNG image data, $s x $s," ||
        fail "no ${s}x$s icon"
done
# The program finds its data and its sound module by paths relative to its own folder.
data=$(strings -el "$prefix/games/frostel32" | grep -m1 '^\.\./.*/frostel32$')
[ -n "$data" ] && [ -s "$prefix/games/$data/frostel.dat" ] ||
    fail "the word files are not where the program looks ($data)"
rel=$(strings -el "$prefix/games/frostel32" | grep -m1 '^/\.\..*/frostel32$')
module="$prefix/games$rel/frostel32-sound.so"
[ -n "$rel" ] && [ -s "$module" ] || fail "the sound module is not where the program looks ($rel)"
nm -D --defined-only "$module" | grep -q ' frostel32_create_sound_player$' \
    || fail "the sound module has no entry point"
! ldd "$module" | grep -q 'not found' || fail "the sound module misses libraries"
echo "1 passed, 0 failed"
