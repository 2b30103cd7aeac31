#!/usr/bin/env bash
# Installs what is missing, builds the program and starts it. Without a display it starts it under a virtual one,
# leaves a picture of the window and says where.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/packages.sh

has_display() { [ -n "${DISPLAY:-}" ] || [ -n "${WAYLAND_DISPLAY:-}" ]; }

packages=("${build_packages[@]}" "${desktop_packages[@]}")
has_display || packages+=("${display_packages[@]}" "${picture_packages[@]}")
scripts/install-packages.sh "${packages[@]}"

cmake --preset release >/dev/null
cmake --build --preset release

if has_display; then
    exec build/release/kelvaro
fi

picture=$PWD/build/kelvaro.png
xvfb-run -a -s "-screen 0 1280x800x24" scripts/picture-of-the-window.sh build/release/kelvaro "$picture"
echo "There is no display: the program ran under a virtual one. A picture of its window: $picture"
