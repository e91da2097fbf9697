#!/usr/bin/env bash
# From an empty folder a deal is recorded, gets texts, goes to the stick, is given another number, is deleted and comes
# back; then a damaged one is reported. Looks at the files and at the screen.  recording_test.sh PROGRAM SAMPLES WORK
# With the word keys behind it the deal is recorded by keys instead, and that is all.
# shellcheck disable=SC2046,SC2086  # a place is four words, a card two
set -euo pipefail
# shellcheck source=tests/outside/outside.sh
source "$(dirname "$0")/outside.sh"
readonly RECORDED="QVT_Spel 001" OTHER="QVT_Spel 002" RENAMED="QVT_Spel 077"
readonly LIGHT_BLUE=c0c0ff GREEN=00ff00
original=$samples/aftavrin/$RECORDED
recorded=$folder/aftavrin/$RECORDED
stick=$folder/stick/QVT_Spellen
cp -r "$samples/aftavrin/$OTHER" "$folder/aftavrin/"

# Where a card lies on the preparation screen: SEAT CODE
label_of() {
    local held
    held=$(sed -n "$((4 * ($1 - 1) + $(suit_of "$2") + 1))p" "$original/$RECORDED handen.txt")
    held=${held%%"$(value_of "$2")"*}  # the higher ones stand before it
    card_place "$1" "$(suit_of "$2")" ${#held}
}
# Clicks on so many cards in turn.
click_cards() {
    local play left top width height steps=()
    for play in "$@"; do
        read -r left top width height < <(label_of $play)
        steps+=(mousemove --window "$current" "$(across $((left + width / 2)))" "$(down $((top + height / 2)))" click 1)
    done
    xdotool "${steps[@]}"
}
# The keys that play so many cards: the letter of the suit and that of the value.
letters_of() {
    local play code letters=shrk
    for play in "$@"; do
        code=${play##* }
        echo "${letters:$(suit_of "$code"):1}" "$(value_of "$code" | tr A-Z a-z)"
    done
}
by_mouse() {
    case $1 in
        begin) click 1740 4530 1845 435 ;;
        choose) line 210 450 0 ;;
        play) click_cards "${@:2}" ;;
        keep) click 2970 4830 1245 525 ;;
    esac
}
# From the list of deals a step leads to where letters play cards.
by_keys() {
    case $1 in
        begin) key alt+n ;;
        choose) key Tab && key Home && key Tab ;;
        play) xdotool key $(letters_of "${@:2}") ;;
        keep) key alt+o ;;
    esac
}
all_green() {
    local play
    for play in "$@"; do
        is_of $GREEN $(label_of $play) || return
    done
}
# record HOW: by_mouse or by_keys.
record() {
    local how=$1 plays
    mapfile -t plays < <(cards_in_turn "$original/$RECORDED aftavrin.txt")
    at "Zandolin Lomert"
    $how begin
    at "Maak een spel uit RVLX gereed om te tavrin"
    $how choose
    look chosen
    expect "the lead lies on the table" is_of "$LIGHT_BLUE" $(label_of ${plays[0]})
    expect "its leader is marked in the grid" holds "$LIGHT_BLUE" 2940 5460 5745 600
    changes $how play "${plays[@]:1:3}"
    look first-trick
    expect "the first trick's cards are green" all_green "${plays[@]:0:4}"
    expect "the next card is in the hand" is_of $WHITE $(label_of ${plays[4]})
    changes $how play "${plays[@]:4}"
    changes xdotool key Return  # the box that tells how to keep it
    look recorded
    expect "all cards are green" all_green "${plays[@]}"
    $how keep
    expect "the play and the companion's files are kept" same_files --exclude='*informatie*' "$original" "$recorded"
    expect "no card has a text" same_records
    key Escape
}

# The 52 records of texts, with these in their places: NUMBER TEXT...
records() {
    local LC_ALL=C n texts=()
    while [ $# -gt 0 ]; do
        texts[$1]=$2
        shift 2
    done
    for n in $(seq 52); do printf '%-532s' "$n|${texts[n]:-}"; done
}
same_records() {
    records "$@" | cmp - "$recorded/$RECORDED informatie.txt"
}
# The markers of the editor by the number of the card.
marker() {
    echo $((8595 + 570 * (($1 - 1) % 13))) $((750 + 840 * (($1 - 1) / 13))) 450 450
}
write_texts() {
    at "Zandolin Lomert"
    click 3645 4530 1545 435
    at "Editor"
    line 240 480 0
    click $(marker 6)
    changes xdotool type --delay 20 "Duik, en tel"
    changes xdotool key Return
    changes xdotool type --delay 20 "tot 13"
    press 14460 5880 1485 525
    expect "a text of two lines is kept" same_records 6 $'Duik, en tel\r\ntot 13'
    click $(marker 52)
    changes xdotool type --delay 20 "Klaar."
    press 14460 5880 1485 525
    expect "both texts are kept" same_records 6 $'Duik, en tel\r\ntot 13' 52 Klaar.
    click $(marker 20)
    look markers
    expect "two cards with a text look alike" same_places $(marker 6) $(marker 52)
    expect "two cards without look alike" same_places $(marker 7) $(marker 51)
    expect "a card with a text looks otherwise" differing_places $(marker 6) $(marker 7)
    expect "the card in work looks otherwise" differing_places $(marker 20) $(marker 7)
    key Escape
}

export_it() {
    at "Zandolin Lomert"
    click 1710 4020 1875 435
    at "Import/Export"
    look empty-stick
    expect "the stick is empty" is_all_of $WHITE 5640 540 2000 400
    line 240 420 0
    click 3330 5490 1605 585
    expect "the stick holds the deal" same_files "$recorded" "$stick/$RECORDED"
    key Escape
}
rename_it() {
    at "Zandolin Lomert"
    line 3750 420 0
    click 3645 4020 1545 435
    at "Herbenoem"
    changes xdotool type --delay 20 "77"
    click 2580 6150 1335 495
    key Escape
    expect "its folder is renamed" test ! -e "$recorded"
    local file count=0
    for file in "$stick/$RECORDED"/*; do
        expect "$file is renamed" cmp "$file" "$folder/aftavrin/$RENAMED/$RENAMED${file##*"$RECORDED"}"
        count=$((count + 1))
    done
    expect "no file was added" [ $count = "$(find "$folder/aftavrin/$RENAMED" -type f | wc -l)" ]
}
# delete_it ANSWER: the second deal of the list, and a key for the question.
delete_it() {
    at "Zandolin Lomert"
    line 3750 420 1
    click 5280 4020 1545 435
    changes xdotool key "$1"
}
import_it() {
    at "Zandolin Lomert"
    click 1710 4020 1875 435
    at "Import/Export"
    look full-stick
    expect "the stick shows the deal" holds $BLACK 5640 540 2000 200
    line 5550 450 0
    click 8640 5490 1605 585
    expect "the deal is back" same_files "$stick/$RECORDED" "$recorded"
    key Escape
}

damaged_deal_is_reported() {
    rm "$folder/aftavrin/$OTHER/$OTHER aftavrin.txt"
    at "Zandolin Lomert"
    line 3750 420 1
    click 5280 4530 1545 435
    at "$TABLE"
    key alt+s
    at "Fout in het programma"
    expect "the clipboard tells where" grep -q "^Fout in:Kaarten - General - " <(xclip -selection clipboard -o)
    look report
    expect "the report tells it too" holds $BLACK 3780 720 3000 800
    click 120 2280 2145 495
    changes xdotool key Return
    timeout $LIMIT tail --pid="${processes[0]}" -f /dev/null || give_up "the program does not end"
    wait "${processes[0]}" || give_up "the program ends with $?"
    processes=()
}

start_program
if [ "${4:-}" = keys ]; then
    record by_keys
    exit
fi
record by_mouse
write_texts
export_it
rename_it
at "Zandolin Lomert"
look two-deals
delete_it Escape
expect "a question answered by no keeps the deal" test -d "$folder/aftavrin/$RENAMED"
look kept
expect "both deals are in the list" same_pictures two-deals kept
delete_it alt+j
expect "the deal is deleted" test ! -e "$folder/aftavrin/$RENAMED"
look deleted
expect "it is gone from the list" is_all_of $WHITE 3795 645 1950 150
import_it
damaged_deal_is_reported
