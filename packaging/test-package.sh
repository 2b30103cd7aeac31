#!/usr/bin/env bash
# Makes the Debian package and tries it on a clean system: one of the base packages only, made anew in a temporary
# folder and gone at the end. Leaves the package and a picture of the window in build/package.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

scripts/install-packages.sh "${build_packages[@]}" "${desktop_packages[@]}" "${display_packages[@]}" \
    "${picture_packages[@]}" "${package_packages[@]}"

echo "== Package"
cmake --preset release >/dev/null
rm -rf build/package
cpack --config build/release/CPackConfig.cmake -B "$PWD/build/package"
package=$(echo "$PWD"/build/package/*.deb)

echo "== Trial on a clean system"
export PACKAGE=$package PICTURE=$PWD/build/package/kelvaro.png
# The display stands outside, so that the clean system has no more than the package brings.
# shellcheck disable=SC2016
xvfb-run -a -s "-screen 0 1280x800x24 -noreset" mmdebstrap --quiet --variant=apt \
    --customize-hook="'$PWD/packaging/try-package.sh' \"\$1\"" bookworm /dev/null
echo "The package passed its trial: $package"
