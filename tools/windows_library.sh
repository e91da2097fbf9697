#!/usr/bin/env bash
# Builds a library for Windows from the source of the Debian package that is installed here, once for each version and
# each set of options, and tells its folder.  tools/windows_library.sh dds|qt
set -euo pipefail
cd "$(dirname "$0")/.."

# What the programs link, and no more; text is drawn by the fonts of GDI, pictures without a graphics card.
QT_OPTIONS=(-DBUILD_SHARED_LIBS=OFF -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF -DFEATURE_pkg_config=OFF
    -DFEATURE_opengl=OFF -DINPUT_opengl=no -DFEATURE_vulkan=OFF -DFEATURE_direct2d=OFF
    -DFEATURE_directwrite=OFF -DFEATURE_directwrite3=OFF -DFEATURE_tabletevent=OFF
    -DFEATURE_sql=OFF -DFEATURE_dbus=OFF -DFEATURE_xml=OFF -DFEATURE_concurrent=OFF -DFEATURE_androiddeployqt=OFF
    -DFEATURE_icu=OFF -DFEATURE_system_zlib=OFF -DFEATURE_openssl=OFF -DFEATURE_schannel=ON)

case "${1:-}" in
    dds) package=libdds-dev source=dds options=(-DSOURCE=source) made=lib/libdds.a ;;
    qt) package=qt6-base-dev source=qt6-base options=("${QT_OPTIONS[@]}") made=lib/libQt6Widgets.a ;;
    *) sed -n '2,${/^#/!q;s/^# \{0,1\}//p}' "$0"; exit 2 ;;
esac

version=$(dpkg-query -W -f='${source:Version}' "$package")
key=$({ printf '%s\n' "${options[@]}"; x86_64-w64-mingw32-g++-posix -dumpfullversion; } | sha256sum | cut -c1-8)
folder=${XDG_CACHE_HOME:-$HOME/.cache}/zandolin/windows/$1-$version-$key

build() {
    local work=$1 tree=$1/source
    [ "$source" != dds ] || tree=cmake/dds options=("-DSOURCE=$work/source")
    tools/debian_source.sh "$source" "$version" "$work"
    cmake -G Ninja -S "$tree" -B "$work/build" -DCMAKE_BUILD_TYPE=Release "${options[@]}" \
        -DCMAKE_C_COMPILER_LAUNCHER=ccache -DCMAKE_CXX_COMPILER_LAUNCHER=ccache \
        -DCMAKE_TOOLCHAIN_FILE="$PWD/cmake/windows.cmake" -DCMAKE_INSTALL_PREFIX="$folder.new"
    cmake --build "$work/build"
    cmake --install "$work/build" >"$work/install.log"
    rm -rf "$folder"
    mv "$folder.new" "$folder"
}

if [ ! -e "$folder/$made" ]; then
    work=$(mktemp -d)
    trap 'rm -rf "$work"' EXIT
    build "$work" >&2
fi
echo "$folder"
