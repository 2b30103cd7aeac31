#!/usr/bin/env bash
# Installs what is missing, builds everything with warnings as errors and runs all tests: those of the core, of the tool
# and of the windows, these under a virtual display. What takes longer stands in scripts/check.sh.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/packages.sh

scripts/install-packages.sh "${build_packages[@]}" "${desktop_packages[@]}" "${display_packages[@]}" \
    "${tool_packages[@]}" "${test_packages[@]}" "${benchmark_packages[@]}"

cmake --preset checks >/dev/null
cmake --build --preset checks
xvfb-run -a -s "-screen 0 1920x1080x24" ctest --preset checks -j "$(nproc)"
