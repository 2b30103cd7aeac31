# The Debian packages that each part needs; read by the scripts that build.
build_packages=(
    g++ cmake ninja-build
    sqlite3 libsqlitecpp-dev libsqlite3-dev libutf8proc-dev
    tzdata
)
desktop_packages=(
    qt6-base-dev libgl-dev
    libqt6gui6 qt6-qpa-plugins fonts-dejavu-core fonts-liberation
)
display_packages=(
    xvfb xauth
)
picture_packages=(
    xdotool imagemagick
)
tool_packages=(
    nlohmann-json3-dev
)
test_packages=(
    libgtest-dev libqt6svg6-dev poppler-utils
)
benchmark_packages=(
    libbenchmark-dev
)
check_packages=(
    git clang libclang-rt-dev clang-format clang-tidy
)
package_packages=(
    file dpkg-dev mmdebstrap
)
windows_packages=(
    g++-mingw-w64-x86-64-posix nsis dpkg-dev make tcl xz-utils
    qt6-base-dev qt6-base-dev-tools mingw-w64-common
)
wine_packages=(
    wine wine64 fonts-wine
)
