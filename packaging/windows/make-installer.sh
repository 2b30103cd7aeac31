#!/usr/bin/env bash
# Makes the installer for Windows, on Debian with nothing but apt: builds Qt and the other libraries once into a cache
# folder (KELVARO_WINDOWS_CACHE, by default kelvaro-windows in the user's cache), which takes most of an hour on two cores,
# then the program, the tool and the tests of the core, and packs the program with what it needs. Leaves
# build/kelvaro-basic-VERSION-setup.exe.
set -euo pipefail
cd "$(dirname "$0")/../.."
. scripts/packages.sh
. packaging/windows/sources.sh

scripts/install-packages.sh "${build_packages[@]}" "${windows_packages[@]}" "${wine_packages[@]}"
packaging/windows/libraries.sh
packaging/windows/qt.sh

echo "== Program, tool and tests"
CMAKE_PREFIX_PATH=$windows_root cmake --preset windows >/dev/null
cmake --build --preset windows --target kelvaro horoscope-json kelvaro_core_tests kelvaro_tool_tests

echo "== Installer"
packing=$PWD/build/windows-installer
files=$packing/files
rm -rf "$packing"
cmake --install build/windows --prefix "$files" >/dev/null

# Loaded when the program runs: the platform, and the encryption of the server's pages.
mkdir -p "$files"/{platforms,tls}
cp "$windows_root/plugins/platforms/qwindows.dll" "$files/platforms"
cp "$windows_root/plugins/tls/qschannelbackend.dll" "$files/tls"

# The libraries that a file in the installer names and that the cache folder holds; all others are parts of Windows.
needed_by() { x86_64-w64-mingw32-objdump -p "$1" | sed -n 's/^\tDLL Name: //p'; }
add_libraries_of() {
    local name needed
    needed=$(needed_by "$1")
    for name in $needed; do
        if [ -f "$windows_root/bin/$name" ] && [ ! -f "$files/$name" ]; then
            cp "$windows_root/bin/$name" "$files"
            add_libraries_of "$files/$name"
        fi
    done
}
while read -r file; do
    add_libraries_of "$file"
done < <(find "$files" -name '*.exe' -o -name '*.dll')
find "$files" \( -name '*.exe' -o -name '*.dll' \) -exec x86_64-w64-mingw32-strip {} +

packaging/windows/licences.sh "$files/licences"

# Named one by one: NSIS has backslashes between folders.
lists=$packing/lists
mkdir -p "$lists"
windows_path() { printf '%s' "${1//\//\\}"; }
while read -r folder; do
    [ -z "$folder" ] || printf 'RMDir "$INSTDIR\\%s"\n' "$(windows_path "$folder")" >>"$lists/folders.nsh"
    printf 'SetOutPath "$INSTDIR\\%s"\n' "$(windows_path "$folder")" >>"$lists/install.nsh"
    while read -r file; do
        printf 'File "%s"\n' "$files/${folder:+$folder/}$file" >>"$lists/install.nsh"
        printf 'Delete "$INSTDIR\\%s"\n' "$(windows_path "${folder:+$folder/}$file")" >>"$lists/delete.nsh"
    done < <(find "$files/$folder" -maxdepth 1 -type f ! -name 'DBMirvaneBasic.*' -printf '%f\n' | sort)
done < <(find "$files" -depth -type d -printf '%P\n')

version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' build/windows/CMakeCache.txt)
installer=$PWD/build/kelvaro-basic-$version-setup.exe
makensis -V2 -DFILES="$files" -DLISTS="$lists" -DVERSION="$version" -DSIZE="$(du -sk "$files" | cut -f1)" \
    -DOUTPUT="$installer" packaging/windows/kelvaro-basic.nsi
echo "The installer: $installer ($(du -h "$installer" | cut -f1))"
