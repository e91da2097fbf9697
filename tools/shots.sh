#!/usr/bin/env bash
# Plays a lesson in the real program under a virtual display and leaves a picture of each screen.
#   tools/shots.sh PROGRAM FOLDER PICTURES     FOLDER is a program folder with the sample deals
# Controls are clicked at their places in twips, as the screens' headers give them; a pixel is 15 of them.
set -euo pipefail
[ "${SHOTS_DISPLAY:-}" = own ] || SHOTS_DISPLAY=own exec "$(dirname "$0")/display.sh" "$0" "$@"
program=$(realpath "$1")
folder=$(realpath "$2")
pictures=$(realpath "$3")

processes=()
trap '[ ${#processes[@]} -eq 0 ] || kill "${processes[@]}" 2>/dev/null || true' EXIT
readonly LIMIT=60  # seconds that anything may take on a busy machine

# What was on the screen when something did not come.
give_up() {
    import -window root "$pictures/failure.png"
    xwininfo -root -tree >"$pictures/failure.txt"
    echo "$1; the screen and its windows stand in $pictures/failure.png and failure.txt" >&2
    exit 1
}
# Waits for a window of that title, and for the window manager to give it the keys.
at() {
    current=$(timeout $LIMIT xdotool search --onlyvisible --sync --name "^$1\$" | tail -n 1) || true
    [ -n "$current" ] || give_up "no window: $1"
    timeout $LIMIT xdotool windowactivate --sync "$current" || give_up "not the active window: $1"
    settled
}
shown() {
    xwd -root -silent | md5sum
}
# Waits until nothing has changed on the screen for so many milliseconds, 200 without a number.
settled() {
    local quiet=${1:-200} before now since end=$((SECONDS + LIMIT))
    before=$(shown)
    since=$(date +%s%3N)
    while [ $(($(date +%s%3N) - since)) -lt "$quiet" ]; do
        [ $SECONDS -lt $end ] || give_up "the screen does not come to rest"
        now=$(shown)
        [ "$now" = "$before" ] || since=$(date +%s%3N)
        before=$now
    done
}
# changes COMMAND...: does it, and waits until the screen has answered and come to rest.
changes() {
    local before end=$((SECONDS + LIMIT))
    before=$(shown)
    "$@"
    while [ "$(shown)" = "$before" ]; do
        [ $SECONDS -lt $end ] || give_up "nothing changes after: $*"
    done
    settled
}
point() {
    xdotool mousemove --window "$current" "$1" "$2"
    settled
}
# click LEFT TOP WIDTH HEIGHT: the middle of a control, in twips within the window.
click() {
    point $((($1 + $3 / 2) / 15)) $((($2 + $4 / 2) / 15))
    changes xdotool click 1
}
# line LEFT TOP NUMBER: a line of a list that begins there.
line() {
    point $(($1 / 15 + 30)) $(($2 / 15 + 8 + 13 * $3))
    changes xdotool click 1
}
key() {
    changes xdotool key --window "$current" "$1"
}
# The table plays on until it shows a text or all cards are played.
play_on() {
    key "$1"
    settled 1500
}
picture() {
    xdotool mousemove 1 1
    settled
    import -window root "$pictures/$1.png"
}
whole_window() {
    xdotool mousemove 1 1
    settled
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
play_on alt+s
picture table-opening-lead
for _ in $(seq 4); do play_on alt+v; done
picture table-text
for _ in $(seq 7); do play_on alt+v; done
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
whole_window editor
click 10080 5880 1665 525
whole_window editor-preview
click 14370 5910 1665 525
click 12510 5880 1485 525
at "Spel 1"
whole_window overview
xdotool windowsize --sync "$current" 740 610
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
changes xdotool key Return
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
