#!/usr/bin/env bash
# Builds the window tests with the sanitizers and runs them under a virtual display.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh
scripts/install-packages.sh "${build_packages[@]}" "${desktop_packages[@]}" "${display_packages[@]}" \
    "${tool_packages[@]}" "${test_packages[@]}"

cmake --preset window-sanitizers >/dev/null
cmake --build --preset window-sanitizers
xvfb-run -a -s "-screen 0 1920x1080x24" ctest --preset window-sanitizers
