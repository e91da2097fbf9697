#!/usr/bin/env bash
# Installs the Debian package in a Debian of its own, plays there as an ordinary user and removes it again; before that
# the same with the portable archive, while no Qt is there.  tools/test_package.sh PACKAGES CACHE
# CACHE keeps the fresh Debian and what apt has fetched. Needs root for mounts, in a name space of its own.
set -euo pipefail
packages=$(realpath "$1")
mkdir -p "$2/archives"
cache=$(realpath "$2")
here=$(realpath "$(dirname "$0")")
[ "${OWN_MOUNTS:-}" = yes ] || OWN_MOUNTS=yes exec unshare --mount --propagation private "$here/display.sh" "$0" "$@"

work=$(mktemp -d)
running=""
clean_up() {
    [ -z "$running" ] || kill "$running" 2>/dev/null || true
    umount -R "$work" 2>/dev/null || umount -Rl "$work"
    rmdir "$work"
}
trap clean_up EXIT
fail() {
    echo "test_package: $1" >&2
    exit 1
}

# What is done to this root goes with it.
fresh_root() {
    if [ ! -e "$cache/root/etc/debian_version" ]; then
        rm -rf "$cache/root"
        debootstrap --variant=minbase bookworm "$cache/root.new" http://deb.debian.org/debian >"$cache/debootstrap.log"
        mv "$cache/root.new" "$cache/root"
    fi
    mount -t tmpfs tmpfs "$work"
    mkdir "$work/upper" "$work/inner" "$work/root"
    mount -t overlay overlay -o "lowerdir=$cache/root,upperdir=$work/upper,workdir=$work/inner" "$work/root"
    root=$work/root
    mount -t proc proc "$root/proc"
    mount --bind /dev "$root/dev"
    mount --bind "$cache/archives" "$root/var/cache/apt/archives"
    cp -L /etc/resolv.conf "$root/etc/"
    rm -f "$root/etc/apt/apt.conf.d/docker-clean"
    cp "$packages"/*.deb "$packages"/*.tar.gz "$root/srv/"
    in_root useradd --create-home docent
}
in_root() {
    chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LANG=C.UTF-8 DEBIAN_FRONTEND=noninteractive "$@"
}
apt() {
    in_root apt-get -q -y -o Dpkg::Use-Pty=0 "$@" >"$work/apt.log" 2>&1 || { cat "$work/apt.log"; fail "apt-get $*"; }
}
as_user() {
    in_root runuser -u docent -- env HOME=/home/docent "DISPLAY=$DISPLAY" "$@"
}

# The window of that title, as soon as it is there. A search fails where a window goes while it looks.
window() {
    local found="" end=$((SECONDS + 60))
    until [ -n "$found" ]; do
        [ $SECONDS -lt $end ] || return 1
        found=$(xdotool search --onlyvisible --name "^$1\$" 2>/dev/null | tail -n 1) || true
    done
    echo "$found"
}
# Where no font is found a line of the list has boxes, of two colours.
has_letters() {
    local end=$((SECONDS + 20))
    until [ "$(import -window "$1" -crop 150x45+255+50 -format %k info:)" -gt 8 ]; do
        [ $SECONDS -lt $end ] || return 1
    done
}
# plays PROGRAM FOLDER: goes to the table and back, ends, and looks at what that program folder holds.
plays() {
    local main table
    as_user "$1" 2>"$work/program.log" &
    running=$!
    main=$(window "Zandolin Lomert") || { cat "$work/program.log"; fail "$1 shows no window"; }
    xdotool windowactivate --sync "$main" mousemove --window "$main" 280 38 click 1
    has_letters "$main" || fail "$1 has no letters"
    xdotool mousemove --window "$main" 403 316 click 1
    table=$(window "Zandolin") || fail "$1 opens no table"
    xdotool windowactivate --sync "$table" key Escape
    main=$(window "Zandolin Lomert") || fail "$1 does not come back"
    xdotool windowactivate --sync "$main" key Escape
    timeout 60 tail --pid="$running" -f /dev/null || fail "$1 does not end"
    wait "$running" || fail "$1 ends with $?"
    running=""
    [ "$(as_user stat -c %U "$2/aftavrin/QVT_Spel 001")" = docent ] || fail "$2 has no lessons of the user's"
    as_user test -s "$2/help.chm" || fail "$2 has no manual"
    [ -e "$root$2/RVLX/RVLX.exe" ] || fail "$2 has no companion"
}
# The same lessons by command: what is told of the first line.
tells() {
    local told
    told=$(printf 'start\nget frmTavrin01.lstSpellen[0].Text\nquit\n' | as_user "$1" | sed -n 2p)
    [ "$told" = "= QVT_Spel 001" ] || fail "$1 tells $told"
}

# The window of deals, with the lessons on its second page.
shows_deals() {
    local deals
    as_user "$1" 2>"$work/program.log" &
    running=$!
    deals=$(window "Zandolin Lomert - Spellen en lessen") || { cat "$work/program.log"; fail "$1 shows no window"; }
    xdotool windowactivate --sync "$deals" key alt+l key ctrl+q
    timeout 60 tail --pid="$running" -f /dev/null || fail "$1 does not end"
    wait "$running" || fail "$1 ends with $?"
    running=""
}

portable() {
    apt install --no-install-recommends libegl1 libglx0 libopengl0 libice6 libsm6 libx11-xcb1 libdbus-1-3 libglib2.0-0 \
        fontconfig xkb-data
    in_root mv /usr/share/fonts /srv/fonts  # it brings its letters
    as_user tar -C /home/docent -xzf "/srv/$(basename "$packages"/*.tar.gz)"
    as_user mv "/home/docent/Zandolin Lomert" "/home/docent/stick"
    plays /home/docent/stick/zandolin /home/docent/stick
    tells /home/docent/stick/zandolin_script
    shows_deals /home/docent/stick/zandolin_deals
    [ ! -e "$root/home/docent/Zandolin Lomert" ] || fail "the portable copy leaves something behind"
    in_root mv /srv/fonts /usr/share/fonts
    ! in_root dpkg -s libqt6core6 >/dev/null 2>&1 || fail "there was Qt, and nothing is known of the portable copy"
}

installed() {
    apt install --no-install-recommends "/srv/$(basename "$packages"/*.deb)"
    plays zandolin "/home/docent/Zandolin Lomert"
    tells zandolin_script
    as_user zandolin_deals check "QVT_Spel 001" >/dev/null || fail "zandolin_deals does not run"
    shows_deals zandolin_deals
    apt purge zandolin
    [ -z "$(find "$root/usr" -iname '*zandolin*')" ] || fail "something is left of the package"
    [ -e "$root/home/docent/Zandolin Lomert/aftavrin/QVT_Spel 001" ] || fail "the user's lessons are gone"
}

fresh_root
apt update
portable
installed
echo "Portable and installed, both play, and nothing is left but the user's lessons."
