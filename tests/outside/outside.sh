# shellcheck shell=bash disable=SC2034,SC2119,SC2120,SC2154
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

# expect WHAT COMMAND...: the command must succeed, soon where the program is still at work.
expect() {
    local what=$1 end=$((SECONDS + 10))
    shift
    until "$@" 2>/dev/null; do
        if [ $SECONDS -ge $end ]; then
            "$@" || true
            give_up "not so: $what"
        fi
        sleep 0.1
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
    looked=$pictures/$1.png
    import -window "$current" -quality 10 "$looked"
}
same_pictures() {
    [ "$(compare -metric AE "$pictures/$1.png" "$pictures/$2.png" null: 2>&1)" = 0 ]
}

# crop LEFT TOP WIDTH HEIGHT: that place as an argument of ImageMagick.
crop() {
    echo "$(($3 * pixels / twips))x$(($4 * pixels / twips))+$(across "$1")+$(down "$2")"
}
# shares LEFT TOP WIDTH HEIGHT COLOUR...: how much of a place has about each colour, in thousandths.
shares() {
    local colour masks=()
    for colour in "${@:5}"; do
        masks+=("(" mpr:place -transparent "$colour" -alpha extract -negate ")")
    done
    convert "$looked" -crop "$(crop "${@:1:4}")" +repage -fuzz 15% -write mpr:place "${masks[@]}" -delete 0 \
        -format '%[fx:round(1000*mean)] ' info:
}
readonly NONE=5  # thousandths that count as nothing
# Whether most of a place has that colour, all of it, any of it, or none.
is_of() {
    [ "$(shares "${@:2}" "$1")" -gt 500 ]
}
is_all_of() {
    [ "$(shares "${@:2}" "$1")" -ge $((1000 - NONE)) ]
}
holds() {
    [ "$(shares "${@:2}" "$1")" -gt $NONE ]
}
holds_no() {
    ! holds "$@"
}

# same_places LEFT TOP WIDTH HEIGHT LEFT TOP WIDTH HEIGHT: whether two places look alike.
same_places() {
    cmp -s <(convert "$looked" -crop "$(crop "${@:1:4}")" +repage rgb:) \
        <(convert "$looked" -crop "$(crop "${@:5:4}")" +repage rgb:)
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
