#!/usr/bin/env bash
# Runs a program that was built for Windows.  tools/wine.sh PROGRAM [ARGUMENTS...]
# Its Windows is in WINEPREFIX, otherwise in build/wine, and is made by the first call. Where WINE_SCREEN is
# set it has that of DISPLAY; a Windows that was made without one has none, so that this one is build/wine-screen.
set -euo pipefail
export WINEPREFIX=${WINEPREFIX:-$(cd "$(dirname "$0")/.." && pwd)/build/wine${WINE_SCREEN:+-screen}}
export WINEDEBUG=${WINEDEBUG:--all} WINEARCH=win64 LC_ALL=C.UTF-8
# Nothing of a desktop is wanted: no menus, no browser, no .NET.
export WINEDLLOVERRIDES="winemenubuilder.exe,mscoree,mshtml=" DISPLAY=${WINE_SCREEN:+${DISPLAY:-}}
wine=/usr/lib/wine/wine64
if [ ! -e "$WINEPREFIX/system.reg" ]; then
    mkdir -p "$WINEPREFIX"
    flock "$WINEPREFIX" "$wine" wineboot --init >/dev/null 2>&1
    flock "$WINEPREFIX" "${wine%wine64}wineserver64" --wait
fi
exec "$wine" "$@"
