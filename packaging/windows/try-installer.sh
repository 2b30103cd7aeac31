#!/usr/bin/env bash
# Tries the installer under Wine, as its users would: installs it, starts the program, types a birth and saves it, starts
# again, makes the reports, installs over it and removes it. Everything lies in a folder for the trial. Leaves pictures in
# build/windows-installer and the time of the start in docs/benchmarks.md.
# usage: try-installer.sh [INSTALLER]
set -euo pipefail
cd "$(dirname "$0")/../.."
. scripts/packages.sh

scripts/install-packages.sh "${wine_packages[@]}" "${display_packages[@]}" "${picture_packages[@]}" sqlite3 \
    poppler-utils
installer=$(realpath "${1:-$(echo build/kelvaro-basic-*-setup.exe)}")
[ -f "$installer" ] || { echo "There is no installer; packaging/windows/make-installer.sh makes it" >&2; exit 1; }
pictures=$PWD/build/windows-installer
mkdir -p "$pictures"

trial=$(mktemp -d)
export WINEPREFIX=$trial/wine WINEDEBUG=-all WINEDLLOVERRIDES="mscoree=;mshtml=" HOME=$trial
finish() {
    wineserver -k 2>/dev/null || true
    rm -rf "$trial"
}
trap finish EXIT

xvfb-run -a -s "-screen 0 1280x800x24" packaging/windows/trial.sh "$installer" "$pictures" | tee "$pictures/trial.log"
start=$(sed -n 's/^First view after \([0-9]*\) ms$/\1/p' "$pictures/trial.log")

{
    sed '/^## /,$d' docs/benchmarks.md
    printf '## On Windows\n\nWritten by `packaging/windows/try-installer.sh`, under Wine.\n\n'
    printf '| What | |\n|---|---|\n'
    printf '| Start of the installed program to its finished first view | %s ms |\n' "$start"
    printf '| Size of the installer | %s MB |\n' "$(awk "BEGIN { printf \"%.1f\", $(stat -c %s "$installer") / 1e6 }")"
} >"$trial/benchmarks.md"
cp "$trial/benchmarks.md" docs/benchmarks.md
echo "The installer passed its trial: $installer"
