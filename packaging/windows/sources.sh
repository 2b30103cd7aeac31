# Debian's source packages, for the scripts that build them for Windows; read by these. Needs no rights: apt works in the
# cache folder with the sources of the machine's own packages.
windows_cache=${KELVARO_WINDOWS_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/kelvaro-windows}
windows_root=$windows_cache/root
windows_toolchain=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)/cmake/windows-toolchain.cmake

# The sources of a file of the machine's apt, in the one form and in the other, as sources of source packages. Other
# archives than Debian's may have none.
as_source_packages() {
    case $1 in
    *.sources)
        awk 'BEGIN { RS = ""; ORS = "\n\n" }
            /(^|\n)URIs:[^\n]*\/debian(-security)?\/?(\n|$)/ && /(^|\n)Types:[^\n]*deb/ {
                sub(/(^|\n)Types:[^\n]*/, "\nTypes: deb-src"); sub(/^\n/, ""); print
            }' "$1"
        ;;
    *.list)
        sed -nE 's,^deb(-src)?( +\[[^]]*\])? +([^ ]+/debian(-security)?/?) ,deb-src\2 \3 ,p' "$1" | sort -u
        ;;
    esac
}

# Makes a configuration of apt in the cache folder and reads the lists of source packages, once.
prepare_source_packages() {
    local apt=$windows_cache/apt file
    export APT_CONFIG=$apt/apt.conf
    [ ! -f "$apt/ready" ] || return 0
    rm -rf "$apt"
    mkdir -p "$apt/lists/partial" "$apt/archives/partial" "$apt/sources.d" "$windows_cache/source"
    for file in /etc/apt/sources.list /etc/apt/sources.list.d/*; do
        [ ! -f "$file" ] || as_source_packages "$file" >"$apt/sources.d/$(basename "$file")"
    done
    find "$apt/sources.d" -empty -delete
    cat >"$APT_CONFIG" <<END
Dir::State::lists "$apt/lists";
Dir::Etc::sourcelist "/dev/null";
Dir::Etc::sourceparts "$apt/sources.d";
Dir::Cache "$apt";
END
    apt-get update
    touch "$apt/ready"
}

newest_source() { printf '%s\n' "$windows_cache/source/$1"_*.dsc | sort -V | tail -n 1; }

# unpack_source PACKAGE: fetches a source package and unpacks it anew, patches of the package included, into build/PACKAGE
# of the cache folder. apt looks at the signature of the lists and at the sums of the files.
unpack_source() {
    local package=$1
    prepare_source_packages
    if ! compgen -G "$windows_cache/source/${package}_*.dsc" >/dev/null; then
        (cd "$windows_cache/source" && apt-get source --download-only "$package")
    fi
    rm -rf "$windows_cache/build/$package"
    mkdir -p "$windows_cache/build"
    dpkg-source --no-check -x "$(newest_source "$package")" "$windows_cache/build/$package"
    # For whoever gives the library away.
    mkdir -p "$windows_root/share/licenses"
    cp "$windows_cache/build/$package/debian/copyright" "$windows_root/share/licenses/$package.txt"
}

# once NAME FUNCTION ARGUMENT...: runs what has not yet run to its end in this cache folder as it now stands.
once() {
    local done=$windows_cache/done/$1 step
    shift
    step="$* $(declare -f "$1")"
    if [ ! -f "$done" ] || [ "$(<"$done")" != "$step" ]; then
        "$@"
        mkdir -p "$(dirname "$done")"
        printf '%s\n' "$step" >"$done"
    fi
}
