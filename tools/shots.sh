#!/usr/bin/env bash
# Plays a lesson in the real program under a virtual display and leaves a picture of each screen.
#   tools/shots.sh PROGRAM FOLDER PICTURES     FOLDER is a program folder with the sample deals
# shellcheck disable=SC2046  # a place is four words
set -euo pipefail
[ "${SHOTS_DISPLAY:-}" = own ] || SHOTS_DISPLAY=own exec "$(dirname "$0")/display.sh" "$0" "$@"
program=$(realpath "$1")
folder=$(realpath "$2")
pictures=$(realpath "$3")
# shellcheck source=tools/screen.sh
source "$(dirname "$0")/screen.sh"

# The table plays on until it shows a text or all cards are played.
play_on() {
    key "$1"
    settled 1500
}
picture() {
    put_mouse_away
    import -window root "$pictures/$1.png"
}
whole_window() {
    put_mouse_away
    import -window "$current" "$pictures/$1.png"
}

printf '[Platform]\r\nProgramFiles=.\r\n[Standaard]\r\nSnelheid=100\r\n' >"$folder/standaardtavrin.ini"
start_program

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

# A lesson that came from another program.
at "Zandolin Lomert"
line 3750 420 5
click 5280 4530 1545 435
at "Zandolin"
play_on alt+s
picture deals-table
key Escape

# A deal is recorded: two tricks, and the beginning of the third.
at "Zandolin Lomert"
click 1740 4530 1845 435
at "Maak een spel uit RVLX gereed om te tavrin"
line 210 450 0
click $(card_place 1 2 3)
click $(card_place 2 2 2)
click $(card_place 3 2 1)
click $(card_place 4 2 1)
click $(card_place 1 2 2)
click $(card_place 2 2 1)
click $(card_place 3 2 0)
click $(card_place 4 1 1)
click $(card_place 1 1 2)
whole_window preparation
# A board of a club's file, where the samples' own deals end.
line 210 450 9
whole_window deals
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

# Files of other programs and the lessons, in the window of deals.
"$(dirname "$program")/zandolin_deals_desktop" --program "$folder" samples/files/*.pbn samples/files/*.lin &
processes+=($!)
at "Zandolin Lomert - Spellen en lessen"
settled 1500
for _ in $(seq 7); do key Down; done
whole_window deals-window
key alt+l
settled 1500
for _ in $(seq 4); do key Down; done
whole_window deals-lessons
xdotool key ctrl+q

# A deal that is damaged ends in the report.
at "Zandolin Lomert"
rm "$folder/aftavrin/QVT_Spel 003/QVT_Spel 003 aftavrin.txt"
at "Zandolin Lomert"
line 3750 420 2
click 5280 4530 1545 435
at "Zandolin"
key alt+s
at "Fout in het programma"
whole_window report
