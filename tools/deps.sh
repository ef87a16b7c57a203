#!/usr/bin/env bash
# Installs what building, running and testing Frostel32 needs on Debian 12, if it is missing.
set -euo pipefail
pkgs=(cmake ninja-build g++ pkg-config clang-14 libclang-rt-14-dev llvm-14
      qt6-base-dev qt6-multimedia-dev qt6-svg-dev qt6-tools-dev qt6-tools-dev-tools
      qt6-l10n-tools qt6-translations-l10n
      libgl-dev libxcb1-dev libbenchmark-dev fonts-dejavu-core
      xvfb xauth x11-utils xdotool openbox imagemagick sox appstream desktop-file-utils
      dbus at-spi2-core orca python3-pyatspi weston qt6-wayland dpkg-dev file lintian
      x11-session-utils x11-xserver-utils gettext po4a man-db)
missing=()
for p in "${pkgs[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0
echo "installing: ${missing[*]}"
sudo=""
[ "$(id -u)" -eq 0 ] || sudo=sudo
export DEBIAN_FRONTEND=noninteractive
$sudo apt-get update -qq
$sudo apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
