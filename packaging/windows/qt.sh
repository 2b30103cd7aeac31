#!/usr/bin/env bash
# Builds for Windows what the program needs of Qt, from Debian's source package, into root/ of the cache folder. The tools
# that Qt's build runs come from the Qt of this machine, which must be of the same version.
set -euo pipefail
cd "$(dirname "$0")"
. ./sources.sh

# Its own copies of the libraries that Windows lacks. The package leaves two headers of graphics tablets out, and nothing
# of what is left out here is used by the program: no OpenGL and none of the modules for databases, documents and threads.
qt_options=(
    -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF -DQT_QMAKE_TARGET_MKSPEC=win32-g++
    -DFEATURE_system_zlib=OFF -DFEATURE_system_pcre2=OFF -DFEATURE_system_freetype=OFF
    -DFEATURE_system_harfbuzz=OFF -DFEATURE_system_png=OFF -DFEATURE_system_doubleconversion=OFF
    -DFEATURE_freetype=ON -DFEATURE_harfbuzz=ON -DFEATURE_schannel=ON
    -DFEATURE_tabletevent=OFF -DFEATURE_direct2d1_1=OFF
    -DFEATURE_dynamicgl=OFF -DFEATURE_opengl=OFF -DFEATURE_vulkan=OFF
    -DFEATURE_sql=OFF -DFEATURE_dbus=OFF -DFEATURE_xml=OFF -DFEATURE_concurrent=OFF -DFEATURE_testlib=OFF
    -DFEATURE_openssl=OFF -DFEATURE_icu=OFF -DFEATURE_glib=OFF -DFEATURE_brotli=OFF -DFEATURE_zstd=OFF
    -DFEATURE_jpeg=OFF -DFEATURE_gif=OFF
)

# install_qt OPTION...
install_qt() {
    local source=$windows_cache/build/qt6-base host
    host=/usr/lib/$(dpkg-architecture -qDEB_HOST_MULTIARCH)/cmake
    unpack_source qt6-base
    cmake -G Ninja -S "$source" -B "$source/out" --toolchain "$windows_toolchain" \
        -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX="$windows_root" -DBUILD_SHARED_LIBS=ON \
        -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR="$host" "$@"
    cmake --build "$source/out"
    cmake --install "$source/out"
    cp "$source"/LICENSES/{LGPL,GPL}-3.0-only.txt "$windows_root/share/licenses"
}

once qt6-base install_qt "${qt_options[@]}"
echo "Qt for Windows stands in $windows_root"
