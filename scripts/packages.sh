# The Debian packages that the program and its tests need; read by run.sh and test.sh.
build_packages=(
    g++ cmake ninja-build
    qt6-base-dev libgl-dev
    sqlite3 libsqlitecpp-dev libsqlite3-dev
    libgtest-dev libbenchmark-dev nlohmann-json3-dev
)
display_packages=(
    libqt6gui6 libqt6svg6 qt6-qpa-plugins fonts-dejavu-core fonts-liberation
)
virtual_display_packages=(
    xvfb xauth xdotool imagemagick
)
check_packages=(
    git clang libclang-rt-dev clang-format clang-tidy
)
package_packages=(
    file dpkg-dev mmdebstrap
)
