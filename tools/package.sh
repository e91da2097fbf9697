#!/usr/bin/env bash
# Makes the Debian package and the portable archive of a build.  tools/package.sh BUILD TARGET
# The portable form is a folder with everything beside the programs, the libraries of Qt too: it runs from a stick.
set -euo pipefail
build=$(realpath "$1")
mkdir -p "$2"
target=$(realpath "$2")
version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$build/CMakeCache.txt")
qt=/usr/lib/$(dpkg-architecture -qDEB_HOST_MULTIARCH)/qt6/plugins
# What every desktop with X has, must be of one piece with its drivers, or is used by such a library itself.
of_the_system='c|m|resolv|gcc_s|stdc\+\+|z|zstd|lzma|lz4|EGL|GLX|GLdispatch|OpenGL|X11|X11-xcb|xcb|Xau|Xdmcp|ICE|SM'
of_the_system+='|bsd|md|uuid|fontconfig|freetype|png16|brotli(common|dec)|expat|dbus-1|systemd|cap|gcrypt|gpg-error'
of_the_system+='|glib-2\.0|pcre2-8'

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

debian() {
    rm -f "$target"/zandolin_*.deb "$target"/zandolin-*.tar.gz
    (cd "$build" && cpack -G DEB -B "$work/cpack" >"$work/cpack.log") || { cat "$work/cpack.log"; exit 1; }
    mv "$work"/cpack/*.deb "$target/"
}

# libraries FILE...: the paths of what these need and not every system has.
libraries() {
    ldd "$@" | awk '$2 == "=>" { print $1, $3 }' | sort -u | grep -Ev "^(ld-linux.*|lib($of_the_system))\.so" | cut -d' ' -f2
}

# The terms under which a library may be passed on lie beside it.
terms() {
    local package
    package=$(dpkg -S "*/$(basename "$(realpath "$1")")" | head -n 1 | cut -d: -f1)
    cp "/usr/share/doc/$package/copyright" "$folder/lib/licenties/$package.txt"
}

portable() {
    local folder="$work/Zandolin Lomert" plugin library
    DESTDIR="$work/root" cmake --install "$build" --prefix /usr --strip >/dev/null
    mkdir -p "$folder/lib/licenties" "$folder/lib/plugins"
    cp -r "$work"/root/usr/bin/* "$work"/root/usr/share/zandolin/program/* "$work"/root/usr/share/zandolin/help* \
        "$work"/root/usr/share/doc/zandolin/handleiding.pdf "$folder/"
    cp "$work"/root/usr/share/doc/zandolin/copyright "$folder/lib/licenties/zandolin.txt"
    cp /usr/share/common-licenses/*GPL-[23]* "$folder/lib/licenties/"
    for plugin in platforms/libqxcb.so platforms/libqoffscreen.so platforminputcontexts printsupport xcbglintegrations; do
        mkdir -p "$folder/lib/plugins/$(dirname "$plugin")"
        cp -r "$qt/$plugin" "$folder/lib/plugins/$(dirname "$plugin")/"
    done
    # The letters, for a system that has neither Verdana nor these.
    mkdir -p "$folder/lib/fonts"
    cp /usr/share/fonts/truetype/dejavu/DejaVuSans{,-Bold}.ttf "$folder/lib/fonts/"
    terms /usr/share/fonts/truetype/dejavu/DejaVuSans.ttf
    while read -r library; do
        cp -L "$library" "$folder/lib/"
        terms "$library"
    done < <(libraries "$folder"/zandolin "$folder"/zandolin_* "$folder"/lib/plugins/*/*.so)
    # shellcheck disable=SC2016  # $ORIGIN is the loader's word
    patchelf --force-rpath --set-rpath '$ORIGIN/lib' "$folder"/zandolin "$folder"/zandolin_*
    printf '[Paths]\nPrefix=lib\nPlugins=plugins\n' >"$folder/qt.conf"
    tar -C "$work" --owner=0 --group=0 -czf "$target/zandolin-$version-$(uname -m).tar.gz" "Zandolin Lomert"
}

debian
portable
ls -l "$target"
