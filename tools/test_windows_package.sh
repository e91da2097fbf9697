#!/usr/bin/env bash
# Installs, renews and removes the program under Wine in a Windows of its own, and compares the folders.
#   tools/test_windows_package.sh INSTALLER WORK
# shellcheck disable=SC2317  # what is expected is called by its name
set -euo pipefail
cd "$(dirname "$0")/.."
[ "${TEST_DISPLAY:-}" = own ] || TEST_DISPLAY=own exec tools/display.sh "$0" "$@"
installer=$(realpath "$1")
rm -rf "$2"
mkdir -p "$2"
export WINEPREFIX WINE_SCREEN=yes
WINEPREFIX=$(realpath "$2")
drive=$WINEPREFIX/drive_c
processes=()
trap '[ ${#processes[@]} -eq 0 ] || kill "${processes[@]}" 2>/dev/null || true' EXIT
failed=0

expect() {
    local what=$1
    shift
    "$@" && return
    echo "windows package: not so: $what" >&2
    failed=1
}
# A command line as it stands; Wine itself would set the quotes of its words anew. Tells the exit status.
command_line() {
    printf '@echo off\r\n%s\r\nexit %%ERRORLEVEL%%\r\n' "$1" >"$drive/line.bat"
    local status=0
    tools/wine.sh cmd /c 'C:\line.bat' || status=$?
    echo $status
}
install() {
    command_line "C:\\setup.exe /S $1"
}
start() {
    tools/wine.sh "$folder/zandolin.exe" >/dev/null 2>&1 &
    processes+=($!)
    sleep 8
}
stop() {
    kill "${processes[@]}" 2>/dev/null || true
    wait "${processes[@]}" 2>/dev/null || true
    processes=()
}
same_but_programs() {
    diff -r --exclude='*.exe' --exclude='*.log' "$1" "$2"
}

tools/wine.sh cmd /c ver >/dev/null
cp "$installer" "$drive/setup.exe"
folder="$drive/users/$(id -un)/AppData/Local/Programs/Zandolin Lomert"
menu="$drive/users/$(id -un)/AppData/Roaming/Microsoft/Windows/Start Menu/Programs/Zandolin Lomert"

# For the first time.
expect "it installs" test "$(install "")" = 0
expect "the program is there" test -s "$folder/zandolin.exe"
expect "the program of deals is there" test -s "$folder/zandolin_deals_desktop.exe"
expect "the samples are there" test -d "$folder/aftavrin"
expect "licences are there" test -s "$folder/licenties/LGPL-3.txt"
expect "the start menu has it" test -e "$menu/Zandolin Lomert.lnk"
registered() {
    tools/wine.sh reg query "$1" >/dev/null 2>&1
}
expect "it can be removed by the system" registered 'HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\Zandolin Lomert'
expect "the file type is known" registered 'HKCU\Software\Classes\.pbn\OpenWithProgids'

# The user's own deals, a changed setting, and a sample that was deleted.
mkdir -p "$folder/aftavrin/QVT_Eigen 001"
echo mine >"$folder/aftavrin/QVT_Eigen 001/QVT_Eigen 001 aftavrin.txt"
printf '[Standaard]\r\nSnelheid=100\r\n' >>"$folder/standaardtavrin.ini"
rm -rf "$folder/aftavrin/QVT_Spel 001"
cp -r "$folder" "$WINEPREFIX/before"

# Renewed, the folder given in every way; once through another name of it.
own="%LOCALAPPDATA%\\Programs\\Zandolin Lomert"
for words in "\"/p=$own\"" "\"/p=$own\\\"" "/p=\"$own\"" "/p=$own" "/P=$own\\ /NCRC"; do
    echo old >"$folder/zandolin.exe"
    expect "$words renews" test "$(install "$words")" = 0
    expect "$words renews the program" cmp "$folder/zandolin.exe" "$WINEPREFIX/before/zandolin.exe"
    expect "$words keeps all that is not the program" same_but_programs "$WINEPREFIX/before" "$folder"
done

# A portable folder is renewed too, and nothing about it is told to the system.
mkdir -p "$drive/a b"
echo old >"$drive/a b/zandolin.exe"
expect "a portable folder is renewed" test "$(install '"/p=C:\a b"')" = 0
expect "it has the program" cmp "$drive/a b/zandolin.exe" "$folder/zandolin.exe"
expect "it has no uninstaller" test ! -e "$drive/a b/Verwijder Zandolin.exe"
expect "it has no samples" test ! -e "$drive/a b/aftavrin"

# The program runs: the installer waits for it; if it stays, nothing changes.
start
began=$SECONDS
(sleep 15 && kill "${processes[@]}") &
expect "the program ends meanwhile" test "$(install "\"/p=$own\"")" = 0
expect "the installer has waited" test $((SECONDS - began)) -ge 14
wait
processes=()
start
printf x >>"$folder/help.chm"
cp -r "$folder" "$WINEPREFIX/open"
expect "the program stays open" test "$(install "\"/p=$own\"")" = 2
expect "nothing has changed" diff -r "$WINEPREFIX/open" "$folder"
stop

# What cannot be written.
mkdir -p "$drive/file"
: >"$drive/file/here"
expect "no folder can be made there" test "$(install '"/p=C:\file\here\Zandolin"')" = 3

# Removed: the user's deals and settings stay.
expect "it is removed" test "$(command_line "\"$own\\Verwijder Zandolin.exe\" /S _?=$own")" = 0
expect "no program is left" test ! -e "$folder/zandolin.exe"
expect "no licence is left" test ! -e "$folder/licenties"
expect "the start menu is as it was" test ! -e "$menu"
expect "no file type is left" test "$(registered 'HKCU\Software\Classes\Zandolin.Deals'; echo $?)" != 0
expect "the user's deals stay" diff -r "$WINEPREFIX/before/aftavrin" "$folder/aftavrin"
expect "the settings stay" cmp "$WINEPREFIX/before/standaardtavrin.ini" "$folder/standaardtavrin.ini"
exit $failed
