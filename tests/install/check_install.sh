#!/usr/bin/env bash
# Installs the build into a scratch prefix and checks what a desktop needs of it.
#   check_install.sh BUILD_DIR
set -u
prefix=$(mktemp -d)
trap 'rm -rf "$prefix"' EXIT
fail() { echo "FAIL: $*"; exit 1; }
cmake --install "$1" --prefix "$prefix" >/dev/null || fail "cmake --install"
id=net.frostel32.frostel32
for f in bin/frostel32 share/applications/$id.desktop share/metainfo/$id.metainfo.xml \
         share/icons/hicolor/scalable/apps/$id.svg share/icons/hicolor/32x32/apps/$id.png \
         share/icons/hicolor/64x64/apps/$id.png share/frostel32/frostel.dat \
         share/frostel32/frostl0.wav share/frostel32/frostl13.wav; do
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
ls "$prefix"/lib*/frostel32/frostel32-sound.so "$prefix"/lib/*/frostel32/frostel32-sound.so 2>/dev/null | grep -q . \
    || fail "the sound module is not installed"
echo "1 passed, 0 failed"
