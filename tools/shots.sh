#!/usr/bin/env bash
# Plays a lesson in the real program under a virtual display and leaves a picture of each screen.
#   tools/shots.sh PROGRAM FOLDER PICTURES     FOLDER is a program folder with the sample deals
# Controls are clicked at their places in twips, as the screens' headers give them; a pixel is 15 of them.
set -euo pipefail
program=$(realpath "$1")
folder=$(realpath "$2")
pictures=$(realpath "$3")

number=90
while [ -e "/tmp/.X11-unix/X$number" ]; do number=$((number + 1)); done
export DISPLAY=:$number
unset WAYLAND_DISPLAY
Xvfb "$DISPLAY" -screen 0 1440x900x24 >/dev/null 2>&1 &
processes=($!)
trap 'kill "${processes[@]}" 2>/dev/null || true' EXIT
for _ in $(seq 50); do xdpyinfo >/dev/null 2>&1 && break; sleep 0.1; done
openbox >/dev/null 2>&1 &
processes+=($!)

window() {
    xdotool search --onlyvisible --sync --name "^$1\$" 2>/dev/null | tail -n 1
}
# Waits for a window of that title and makes it the one that is clicked on.
at() {
    current=$(timeout 20 bash -c "$(declare -f window); window '$1'") || { echo "no window: $1" >&2; exit 1; }
    sleep 0.4
}
# click LEFT TOP WIDTH HEIGHT: the middle of a control, in twips within the window.
click() {
    xdotool mousemove --window "$current" $((($1 + $3 / 2) / 15)) $((($2 + $4 / 2) / 15)) click 1
    sleep 0.25
}
# line LEFT TOP NUMBER: a line of a list that begins there.
line() {
    xdotool mousemove --window "$current" $(($1 / 15 + 30)) $(($2 / 15 + 8 + 13 * $3)) click 1
    sleep 0.25
}
key() {
    xdotool key --window "$current" "$1"
    sleep 0.4
}
picture() {
    xdotool mousemove 1 1
    sleep 0.3
    import -window root "$pictures/$1.png"
}
whole_window() {
    xdotool mousemove 1 1
    sleep 0.3
    import -window "$current" "$pictures/$1.png"
}

printf '[Platform]\r\nProgramFiles=.\r\n[Standaard]\r\nSnelheid=100\r\n' >"$folder/standaardtavrin.ini"
"$program" --program "$folder" &
processes+=($!)

# The table.
at "Zandolin Lomert"
line 3750 420 0
whole_window main
click 5280 4530 1545 435
at "Zandolin"
picture table-before-start
key alt+s
sleep 0.8
picture table-opening-lead
for _ in $(seq 4); do
    key alt+v
    sleep 2
done
picture table-text
for _ in $(seq 8); do
    key alt+v
    sleep 1.6
done
picture table-end
key Escape

# A deal is recorded: two tricks, and the beginning of the third.
# card LEFT TOP SUIT NUMBER: a card label in the frame of a seat that stands there; suits count from 0, cards too.
card() {
    click $(($1 + 420 + 315 * $4)) $(($2 + 300 + 300 * $3)) 315 300
}
at "Zandolin Lomert"
click 1740 4530 1845 435
at "Maak een spel uit RVLX gereed om te tavrin"
line 210 450 0
card 5580 120 2 3
card 7980 1890 2 2
card 5580 3660 2 1
card 2970 1890 2 1
card 5580 120 2 2
card 7980 1890 2 1
card 5580 3660 2 0
card 2970 1890 1 1
card 5580 120 1 2
whole_window preparation
key Escape

# Texts on the cards of a package.
at "Zandolin Lomert"
click 3645 4530 1545 435
at "Editor"
line 240 480 0
click 8595 750 450 450
sleep 0.3
whole_window editor
click 10080 5880 1665 525
whole_window editor-preview
click 14370 5910 1665 525
click 12510 5880 1485 525
at "Spel 1"
whole_window overview
xdotool windowsize --sync "$current" 740 610
sleep 0.5
whole_window overview-large
key Escape
at "Editor"
key Escape

# Deals get other numbers, and go to a stick.
at "Zandolin Lomert"
line 3750 420 1
click 3645 4020 1545 435
at "Herbenoem"
whole_window rename
key Escape
at "Zandolin Lomert"
click 1710 4020 1875 435
sleep 1
xdotool key Return
at "Import/Export"
line 240 420 0
line 240 420 2
whole_window exchange
key Escape

# A deal that is damaged ends in the report.
rm "$folder/aftavrin/QVT_Spel 003/QVT_Spel 003 aftavrin.txt"
at "Zandolin Lomert"
line 3750 420 2
click 5280 4530 1545 435
at "Zandolin"
key alt+s
at "Fout in het programma"
whole_window report
