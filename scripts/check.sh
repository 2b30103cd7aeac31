#!/usr/bin/env bash
# Looks at the code harder than test.sh does: the layout, clang-tidy over all rooms, the core tests with the sanitizers,
# and a minute of fuzzing.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

scripts/install-packages.sh "${build_packages[@]}" "${desktop_packages[@]}" "${tool_packages[@]}" \
    "${test_packages[@]}" "${check_packages[@]}"

echo "== Layout of the code"
git ls-files --cached --others --exclude-standard -- '*.cpp' '*.h' | while read -r file; do
    # What is listed but taken away has no layout.
    [ ! -f "$file" ] || echo "$file"
done | xargs clang-format --dry-run -Werror

echo "== Static checks"
cmake --preset tidy >/dev/null
cmake --build --preset tidy

echo "== Core tests under the sanitizers"
cmake --preset sanitizers >/dev/null
cmake --build --preset sanitizers
ctest --preset sanitizers -j "$(nproc)"

echo "== Fuzzing"
cmake --preset fuzz >/dev/null
cmake --build --preset fuzz
scripts/fuzz.sh 60
