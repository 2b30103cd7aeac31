#!/usr/bin/env bash
# Builds for Windows the libraries that the program needs beside Qt, and GoogleTest, from Debian's source packages, into
# root/ of the cache folder (KELVARO_WINDOWS_CACHE, by default kelvaro-windows in the user's cache). What is there already
# is left as it is.
set -euo pipefail
cd "$(dirname "$0")"
. ./sources.sh

# configure_and_install PACKAGE OPTION...: for packages that are built with CMake.
configure_and_install() {
    local package=$1
    shift
    unpack_source "$package"
    CMAKE_PREFIX_PATH=$windows_root cmake -G Ninja -S "$windows_cache/build/$package" \
        -B "$windows_cache/build/$package/out" --toolchain "$windows_toolchain" \
        -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX="$windows_root" -DBUILD_SHARED_LIBS=OFF "$@"
    cmake --build "$windows_cache/build/$package/out"
    cmake --install "$windows_cache/build/$package/out"
}

# In one file, as its makers give it away; that is made with tcl, on the machine that builds. What is deleted is
# overwritten, as in Debian's own build.
install_sqlite() {
    local folder=$windows_cache/build/sqlite3 object=$windows_cache/build/sqlite3/sqlite3-windows.o
    unpack_source sqlite3
    (cd "$folder" && ./configure --disable-shared >/dev/null && make sqlite3.c)
    x86_64-w64-mingw32-gcc-posix -O2 -DNDEBUG -DSQLITE_THREADSAFE=1 -DSQLITE_SECURE_DELETE \
        -DSQLITE_ENABLE_COLUMN_METADATA -DSQLITE_OMIT_LOAD_EXTENSION -c "$folder/sqlite3.c" -o "$object"
    mkdir -p "$windows_root/lib" "$windows_root/include"
    x86_64-w64-mingw32-ar rcs "$windows_root/lib/libsqlite3.a" "$object"
    cp "$folder/sqlite3.h" "$windows_root/include"
}

install_sqlitecpp() {
    configure_and_install sqlitecpp -DSQLITECPP_INTERNAL_SQLITE=OFF -DSQLITE_OMIT_LOAD_EXTENSION=ON \
        -DSQLITECPP_RUN_CPPLINT=OFF -DSQLITECPP_USE_STACK_PROTECTION=OFF
}

# The records of time zones of this machine, which the package tzdata brings: compiled, one file a zone, and their source,
# which tells the release.
install_zone_records() {
    local zones=$windows_root/share/zoneinfo
    rm -rf "$zones"
    mkdir -p "$(dirname "$zones")"
    cp -rL /usr/share/zoneinfo "$zones"
    rm -rf "$zones"/{posix,right,posixrules,localtime,leap*,*.tab}
}

once sqlite3 install_sqlite
once sqlitecpp install_sqlitecpp
once utf8proc configure_and_install utf8proc
once nlohmann-json3 configure_and_install nlohmann-json3 -DJSON_BuildTests=OFF
once googletest configure_and_install googletest
once "tzdata-$(dpkg-query -W -f='${Version}' tzdata)" install_zone_records
echo "The libraries for Windows stand in $windows_root"
