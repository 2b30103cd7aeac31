#!/usr/bin/env bash
# Collects the licences of all that the installer gives away: licences.sh FOLDER, once the libraries are built.
set -euo pipefail
folder=$1
cd "$(dirname "$0")"
. ./sources.sh

# from_source PACKAGE: what Debian's maintainers found in the sources of a library.
from_source() { cp "$windows_root/share/licenses/$1.txt" "$folder"; }
# from_package PACKAGE NAME: the same of a package whose files became part of the executables.
from_package() { cp "/usr/share/doc/$1/copyright" "$folder/$2.txt"; }

mkdir -p "$folder"
for package in qt6-base sqlite3 sqlitecpp utf8proc; do
    from_source "$package"
done
from_package gcc-mingw-w64-base gcc
from_package mingw-w64-common mingw-w64
from_package tzdata tzdata
from_package nsis-common nsis # the installer and the uninstaller
for licence in LGPL-3.0-only GPL-3.0-only; do
    cp "$windows_root/share/licenses/$licence.txt" "$folder"
done
cp ../../drawing/fonts/OFL-1.1.txt "$folder"
qt_source=$(basename "$(newest_source qt6-base)" .dsc)
sed "s/@QT_SOURCE@/$qt_source/" licences.txt.in >"$folder/READ-ME-FIRST.txt"
# As the editors of Windows know them.
sed -i 's/\r*$/\r/' "$folder"/*.txt
