#!/usr/bin/env bash
# Makes the installer for Windows, the portable archive, and the archive with which the programs can be linked anew to
# another Qt, of a build for Windows.  tools/windows_package.sh BUILD TARGET
set -euo pipefail
cd "$(dirname "$0")/.."
build=$(realpath "$1")
mkdir -p "$2"
target=$(realpath "$2")
version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$build/CMakeCache.txt")
programs=(zandolin zandolin_deals zandolin_deals_desktop)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
folder="$work/Zandolin Lomert"

collect() {
    mkdir -p "$folder/licenties"
    local program
    for program in "${programs[@]}"; do
        x86_64-w64-mingw32-strip -o "$folder/$program.exe" "$build/bin/$program.exe"
    done
    tools/manual.sh docs/manual docs "$work/manual" >&2
    cp -r "$work"/manual/help.chm "$work"/manual/help "$work"/manual/handleiding.pdf "$folder/"
    cp LICENSES/* "$folder/licenties/"
    cp -r samples/aftavrin samples/RVLX packaging/standaardtavrin.ini "$folder/"
    sed -i 's/\r*$/\r/' "$folder/standaardtavrin.ini"
}

# The command by which a program was linked, for a shell in the folder of the archive: $1 is where Qt is. What it names
# below the build goes into the archive; what is in the compiler's own folders does not.
relink_of() {
    local command
    command=$(ninja -C "$build" -t commands "bin/$1.exe" | tail -n 1 | sed 's/^: && //; s/ && :$//')
    for word in $command; do
        [[ "$word" == *.a || "$word" == *.obj ]] && [ -e "$build/$word" ] && echo "$word" >>"$work/parts"
    done
    command=${command//$dds/other}
    echo "${command//$qt/\$1}"
}
relink() {
    local qt dds program
    qt=$(sed -n 's/^Qt6_DIR:PATH=\(.*\)\/lib\/cmake\/Qt6/\1/p' "$build/CMakeCache.txt")
    dds=$(dirname "$(dirname "$(sed -n 's/^.*:FILEPATH=\(.*libdds.a\)$/\1/p' "$build/CMakeCache.txt" | head -n 1)")")
    local archive="$work/relink"
    mkdir -p "$archive/bin" "$archive/other/lib" "$archive/qt"
    {
        echo '#!/bin/sh'
        echo '# Links the programs to a Qt that is built as qt/windows_library.sh does it.   relink.sh FOLDER-OF-QT'
        echo 'set -e'
        # shellcheck disable=SC2016  # for the shell that runs it
        echo 'cd "$(dirname "$0")"'
        for program in "${programs[@]}"; do relink_of "$program"; done
    } >"$archive/relink.sh"
    chmod +x "$archive/relink.sh"
    sort -u "$work/parts" | tar -C "$build" -cf - -T - | tar -C "$archive" -xf -
    cp "$dds/lib/libdds.a" "$archive/other/lib/"
    cp tools/windows_library.sh tools/debian_source.sh cmake/windows.cmake "$archive/qt/"
    cp LICENSES/LGPL-3.txt LICENSES/GPL-3.txt LICENSES/LEESMIJ.txt "$archive/"
}

archive() {
    (cd "$1" && cmake -E tar cf "$target/$3" --format=zip "$2")
}

installer() {
    makensis -V2 -DVERSION="$version" -DFOLDER="$folder" -DSIZE="$(du -sk "$folder" | cut -f1)" \
        -DICON="$build/zandolin.ico" -DPICTURE="$build/installer.bmp" \
        -DTARGET="$target/zandolin-$version-windows.exe" packaging/windows/installer.nsi
}

rm -f "$target"/zandolin-*-windows*
collect
relink
archive "$work" "Zandolin Lomert" "zandolin-$version-windows.zip"
archive "$work" relink "zandolin-$version-windows-relink.zip"
installer
ls -l "$target"/zandolin-*-windows*
