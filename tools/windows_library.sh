#!/usr/bin/env bash
# Builds the double-dummy library for Windows from the source of the Debian package that is installed here, once for
# each version, and tells the folder.  tools/windows_library.sh
set -euo pipefail
cd "$(dirname "$0")/.."
version=$(dpkg-query -W -f='${source:Version}' libdds-dev)
folder=${XDG_CACHE_HOME:-$HOME/.cache}/zandolin/windows/dds-$version
if [ ! -e "$folder/lib/libdds.a" ]; then
    work=$(mktemp -d)
    trap 'rm -rf "$work"' EXIT
    {
        tools/debian_source.sh dds "$version" "$work"
        cmake -G Ninja -S cmake/dds -B "$work/build" -DSOURCE="$work/source" -DCMAKE_BUILD_TYPE=Release \
            -DCMAKE_TOOLCHAIN_FILE="$PWD/cmake/windows.cmake" -DCMAKE_INSTALL_PREFIX="$folder.new"
        cmake --build "$work/build" --target install
        rm -rf "$folder"
        mv "$folder.new" "$folder"
    } >&2
fi
echo "$folder"
