#!/usr/bin/env bash
# A sample lesson is replayed by mouse: at every text the cards of the trick lie in front of their seats, and at the end
# all hands are open. Cards are told by the colour of their corner.  replay_test.sh PROGRAM SAMPLES WORK
# DISPLAY_SIZE is the size of the screen.
# shellcheck disable=SC2046,SC2086  # a place is four words, a card two
set -euo pipefail
# shellcheck source=tests/outside/outside.sh
source "$(dirname "$0")/outside.sh"
readonly LESSON="QVT_Spel 001"
readonly PLAYED=("" "6255 2768" "7972 3990" "6255 5212" "4538 3990")  # left and top of the places by seat
readonly BUTTON_TOP=10403 BUTTON_SIZE="1425 585" TEXT="13484 7268 5325 2400"
cp -r "$samples/aftavrin/$LESSON" "$folder/aftavrin/"
files="$folder/aftavrin/$LESSON/$LESSON"
mapfile -t plays < <(cards_in_turn "$files aftavrin.txt")
mapfile -t hands < <(tr -d '\r' <"$files handen.txt")
# The numbers of the cards with a text.
mapfile -t stops < <(fold -bw532 "$files informatie.txt" | LC_ALL=C sed -n 's/^\([0-9]*\)|[^ ].*/\1/p')

# shows SUIT LEFT TOP: the corner of a card of that suit lies there.
shows() {
    local colours=("$BLACK" "$RED" "$RED" "$BLACK") others=("$RED" "$BLACK" "$BLACK" "$RED") white ink other
    shares $(($2 + 75)) $(($3 + 105)) 345 375 $WHITE "${colours[$1]}" "${others[$1]}"
    read -r white ink other <<<"$watched"
    [ "$white" -gt 300 ] && [ "$ink" -gt $NONE ] && [ "$other" -le $NONE ]
}
# Whether the trick with that card lies on the table up to it, and nothing in the other places.
lies() {
    local seat code n begin=$((($1 - 1) / 4 * 4)) lying=()
    look "card-$1"
    for n in $(seq $begin $(($1 - 1))); do
        read -r seat code <<<"${plays[n]}"
        lying[seat]=1
        shows "$(suit_of "$code")" ${PLAYED[seat]} || return
    done
    for seat in 1 2 3 4; do
        [ -n "${lying[seat]:-}" ] || holds_no $WHITE ${PLAYED[seat]} 1560 2340 || return
    done
    holds $BLACK $TEXT
}

# hand SEAT SUIT: its cards, highest first.
hand() {
    echo "${hands[4 * ($1 - 1) + $2]}"
}
# row SUIT NUMBER LEFT TOP: so many cards of a suit side by side.
row() {
    local n
    for n in $(seq 0 $(($2 - 1))); do
        shows "$1" $(($3 + 570 * n)) "$4" || return
    done
}
# Noord and Zuid lie in one row, the others in a row for each suit; Oost moves to the left of the played cards.
all_open() {
    local suit held left=9660 north=3200 south=2800 top=3300
    look end
    for suit in 0 1 3 2; do
        held=$(hand 2 $suit)
        while [ $((left + 570 * ${#held} + 1118)) -gt 13484 ]; do left=$((left - 570)); done
    done
    for suit in 0 1 3 2; do
        held=$(hand 1 $suit) && row $suit ${#held} $north 300 && north=$((north + 570 * ${#held})) || return
        held=$(hand 3 $suit) && row $suit ${#held} $south 7680 && south=$((south + 570 * ${#held})) || return
        held=$(hand 2 $suit) && row $suit ${#held} $left $top || return
        held=$(hand 4 $suit) && row $suit ${#held} 1140 $top || return
        top=$((top + 500))
    done
    holds_no $WHITE 6300 5212 1400 2340
}

# Leaves the table as it is at the first text.
begin() {
    at "Zandolin Lomert"
    line 3750 420 0
    click 5280 4530 1545 435
    at "$TABLE"
    look closed
    expect "no card is played" holds_no $WHITE ${PLAYED[4]} 1560 2340
    click 17640 $BUTTON_TOP $BUTTON_SIZE
    expect "the trick lies there at card ${stops[0]}" lies "${stops[0]}"
}

start_program
begin
cp "$looked" "$pictures/first-time.ppm"
click 0 $BUTTON_TOP $BUTTON_SIZE
begin
expect "the table looks as it did" same_pictures first-time "card-${stops[0]}"
for stop in "${stops[@]:1}"; do
    click 17640 $BUTTON_TOP $BUTTON_SIZE
    [ "$stop" = 52 ] || expect "the trick lies there at card $stop" lies "$stop"
done
expect "all hands are open" all_open
click 0 $BUTTON_TOP $BUTTON_SIZE
at "Zandolin Lomert"
