# shellcheck shell=bash disable=SC2034,SC2046,SC2119,SC2120,SC2154
# What the tests from outside share. Sourced, with the program as first argument, the sample deals as second and a folder
# to work in as third.
# shellcheck source=tools/screen.sh
tools=$(realpath "$(dirname "$0")/../../tools")
[ "${OUTSIDE_DISPLAY:-}" = own ] || OUTSIDE_DISPLAY=own exec "$tools/display.sh" "$0" "$@"
program=$(realpath "$1")
samples=$(realpath "$2")
rm -rf "$3"
mkdir -p "$3/program/aftavrin" "$3/pictures"
folder=$(realpath "$3/program")
pictures=$(realpath "$3/pictures")
source "$tools/screen.sh"

# A folder that names itself as the companion's, with a stick beside it; the table plays as fast as it can.
cp -r "$samples/RVLX" "$folder/"
mkdir -p "$folder/stick/QVT_Spellen"
printf '[Platform]\r\nProgramFiles=.\r\nDrives=stick\r\n[Standaard]\r\nSnelheid=100\r\n' >"$folder/standaardtavrin.ini"

# expect WHAT COMMAND...: the command must succeed, soon where the program is still at work; pictures are then taken anew.
expect() {
    local what=$1 end=$((SECONDS + 10))
    shift
    until "$@" 2>/dev/null; do
        if [ $SECONDS -ge $end ]; then
            "$@" || true
            give_up "not so: $what"
        fi
        sleep 0.1
        [ -z "${looked:-}" ] || watch look "$current" "$looked"
    done
}
# Clicks where nothing need change to be seen.
press() {
    move "$@"
    settled
    xdotool click 1
}
same_files() {
    diff -r --brief "$@" >&2
}

# look NAME: a picture of the current window; the checks of places look at the last one.
look() {
    put_mouse_away
    looked=$pictures/$1.ppm
    watch look "$current" "$looked" || give_up "no picture of $1: $watched"
}
same_pictures() {
    cmp -s "$pictures/$1.ppm" "$pictures/$2.ppm"
}

# pixels_of LEFT TOP WIDTH HEIGHT: that place in the current window.
pixels_of() {
    echo "$(across "$1")" "$(down "$2")" $(($3 * pixels / twips)) $(($4 * pixels / twips))
}
# shares LEFT TOP WIDTH HEIGHT COLOUR...: how much of a place has about each colour, in thousandths, comes to `watched`.
shares() {
    watch shares $(pixels_of "${@:1:4}") "${@:5}" || true
}
readonly WHITE=ffffff BLACK=000000 RED=ff0000
readonly NONE=5  # thousandths that count as nothing
# Whether most of a place has that colour, all of it, any of it, or none.
is_of() {
    shares "${@:2}" "$1"
    [ "$watched" -gt 500 ]
}
is_all_of() {
    shares "${@:2}" "$1"
    [ "$watched" -ge $((1000 - NONE)) ]
}
holds() {
    shares "${@:2}" "$1"
    [ "$watched" -gt $NONE ]
}
holds_no() {
    ! holds "$@"
}

# same_places LEFT TOP WIDTH HEIGHT LEFT TOP WIDTH HEIGHT: whether two places look alike.
same_places() {
    watch same $(pixels_of "${@:1:4}") $(pixels_of "${@:5:4}")
}
differing_places() {
    ! same_places "$@"
}

# Cards by their codes, 2201 to 2252: the two to the ace of Schoppen, Harten, Ruiten and Klaveren.
suit_of() {
    echo $((($1 - 2201) / 13))
}
value_of() {
    local values=23456789TBVHA
    echo "${values:$((($1 - 2201) % 13)):1}"
}
# The cards of a recorded play in turn: a line of seat and code each.
cards_in_turn() {
    local order rest seat codes
    while IFS='|' read -r order rest; do
        IFS='|' read -r -a codes <<<"${rest%$'\r'}"
        for seat in $(grep -o . <<<"$order"); do
            echo "$seat ${codes[$((seat - 1))]}"
        done
    done <"$1"
}
