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
         share/man/man6/frostel32.6.gz share/doc/frostel32/copyright; do
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
