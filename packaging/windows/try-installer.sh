#!/usr/bin/env bash
# Runs the tests for Windows under Wine and tries the installer there, as its users would: installs it, starts the
# program, types a birth and saves it, starts again, makes the reports, installs over it, removes it and installs it
# again. Everything lies in a folder for the trial. Leaves pictures in build/windows-installer and the time of the start in
# docs/benchmarks.md.
# usage: try-installer.sh [INSTALLER]
set -euo pipefail
[ $# -eq 0 ] || set -- "$(realpath "$1")"
cd "$(dirname "$0")/../.."
. scripts/packages.sh

scripts/install-packages.sh "${wine_packages[@]}" "${display_packages[@]}" "${picture_packages[@]}" sqlite3 \
    poppler-utils
installer=${1:-$(find "$PWD/build" -maxdepth 1 -name 'kelvaro-basic-*-setup.exe' | sort -V | tail -n 1)}
[ -f "$installer" ] || { echo "There is no installer; packaging/windows/make-installer.sh makes it" >&2; exit 1; }
pictures=$PWD/build/windows-installer
mkdir -p "$pictures"

trial=$(mktemp -d)
unset XDG_CONFIG_HOME XDG_DATA_HOME # where Wine would write, too
export WINEPREFIX=$trial/wine WINEDEBUG=-all WINEDLLOVERRIDES="mscoree=;mshtml=" HOME=$trial
finish() {
    wineserver -k 2>/dev/null || true
    rm -rf "$trial"
}
trap finish EXIT

echo "== Tests of the core and of the tool"
# The super-user may write everywhere under Wine, so the tests of write protection are skipped for that one.
for tests in kelvaro_core_tests kelvaro_tool_tests; do
    wine "build/windows/$tests.exe" --gtest_brief=1
done
wineserver -k || true # it ran without a display, and would keep the size of its desktop

xvfb-run -a -s "-screen 0 1280x800x24" packaging/windows/trial.sh "$installer" "$pictures" | tee "$pictures/trial.log"
start=$(sed -n 's/^First view after \([0-9]*\) ms$/\1/p' "$pictures/trial.log")

{
    printf '%s\n\n' "$(sed '/^## /,$d' docs/benchmarks.md)"
    printf '## On Windows\n\nWritten by `packaging/windows/try-installer.sh`, under Wine.\n\n'
    printf '| What | |\n|---|---|\n'
    printf '| Start of the installed program to its finished first view | %s ms |\n' "$start"
    printf '| Size of the installer | %s MB |\n' "$(awk "BEGIN { printf \"%.1f\", $(stat -c %s "$installer") / 1e6 }")"
} >"$trial/benchmarks.md"
cp "$trial/benchmarks.md" docs/benchmarks.md
echo "The installer passed its trial: $installer"
