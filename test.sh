#!/usr/bin/env bash
# Installs what is missing, builds everything with warnings as errors and runs all tests: the layout of the code, the
# core and the windows (under a virtual display), the core again with sanitizers, the static checks, and a minute of
# fuzzing.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/packages.sh

scripts/install-packages.sh "${build_packages[@]}" "${display_packages[@]}" "${virtual_display_packages[@]}" \
    "${check_packages[@]}"

configure() { [ -f "build/$1/build.ninja" ] || cmake --preset "$1" >/dev/null; }

echo "== Layout of the code"
git ls-files --cached --others --exclude-standard -- '*.cpp' '*.h' | xargs clang-format --dry-run -Werror

echo "== Build"
configure checks
cmake --build --preset checks
configure sanitizers
cmake --build --preset sanitizers

echo "== Static checks"
cmake --build --preset checks --target tidy

echo "== Core tests under the sanitizers"
ctest --preset sanitizers

echo "== Fuzzing"
configure fuzz
cmake --build --preset fuzz
scripts/fuzz.sh 30

echo "== All tests"
xvfb-run -a -s "-screen 0 1920x1080x24" ctest --preset checks
