#!/usr/bin/env bash
# Installs the Debian packages given as arguments that are missing, asking for rights only when there is something
# to install.
set -euo pipefail

missing=()
for package in "$@"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q '^install ok installed$' || missing+=("$package")
done
if [ "${#missing[@]}" -eq 0 ]; then
    exit 0
fi

refuse() {
    echo "These packages are missing and $1: ${missing[*]}" >&2
    exit 1
}
as_root=()
if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || refuse "there is no sudo to install them"
    # Where nobody can be asked for a password, sudo must do without.
    as_root=(sudo)
    [ -t 0 ] || as_root+=(-n)
    "${as_root[@]}" true || refuse "you have no right to install them"
fi
echo "Installing: ${missing[*]}"
"${as_root[@]}" apt-get update -qq
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
