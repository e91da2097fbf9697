# shellcheck shell=bash disable=SC2034,SC2119,SC2120,SC2154
# What is shared by scripts that act on the program through the display alone: by mouse and keys, on its windows as they
# are seen. Sourced, once `program`, `folder` (its program folder) and `pictures` (a folder for what is seen) are set.
# Controls are clicked at their places in twips, as the screens' headers give them.

processes=()
trap '[ ${#processes[@]} -eq 0 ] || kill "${processes[@]}" 2>/dev/null || true' EXIT
export MAGICK_THREAD_LIMIT=1  # more of them only wait for each other on small pictures
readonly LIMIT=60  # seconds that anything may take on a busy machine

# What was on the screen when something did not come.
give_up() {
    import -window root "$pictures/failure.png"
    xwininfo -root -tree >"$pictures/failure.txt"
    echo "$1; the screen and its windows stand in $pictures/failure.png and failure.txt" >&2
    exit 1
}
start_program() {
    "$program" --program "$folder" &
    processes+=($!)
}

# The screens by their titles: the width in twips of what a window shows.
declare -rA FORM_WIDTH=(
    ["Zandolin Lomert"]=6945
    ["Maak een spel uit RVLX gereed om te tavrin"]=16950
    ["Herbenoem"]=4005
    ["Editor"]=16260
    ["Import/Export"]=10515
    ["Fout in het programma"]=8970
)
# Of the table the surface is named; it stands in the middle, above a row of buttons.
readonly TABLE="Zandolin" SURFACE_WIDTH=19065 SURFACE_HEIGHT=10275
readonly TABLE_WIDTH=$((1290 * 15)) TABLE_HEIGHT=$((784 * 15))  # what is shown at least

# Waits for a window of that title, and for the window manager to give it the keys.
at() {
    local end=$((SECONDS + LIMIT))
    current=""
    until [ -n "$current" ]; do  # a search fails where a window goes while it looks
        [ $SECONDS -lt $end ] || give_up "no window: $1"
        current=$(xdotool search --onlyvisible --name "^$1\$" 2>/dev/null | tail -n 1) || true
    done
    timeout $LIMIT xdotool windowactivate --sync "$current" || give_up "not the active window: $1"
    settled
    measure "$1"
}
# How many pixels so many twips take in that window, and where its twips begin.
measure() {
    local WINDOW X Y WIDTH HEIGHT SCREEN
    eval "$(xdotool getwindowgeometry --shell "$current")"
    pixels=$WIDTH twips=${FORM_WIDTH[$1]:-$((WIDTH * 15))} origin_x=0 origin_y=0
    [ "$1" = "$TABLE" ] || return 0
    twips=$TABLE_WIDTH
    [ $((WIDTH * TABLE_HEIGHT)) -le $((HEIGHT * TABLE_WIDTH)) ] || pixels=$HEIGHT twips=$TABLE_HEIGHT
    origin_x=$(((WIDTH - SURFACE_WIDTH * pixels / twips) / 2))
    origin_y=$(((HEIGHT - SURFACE_HEIGHT * pixels / twips) / 2))
}
across() {
    echo $((origin_x + $1 * pixels / twips))
}
down() {
    echo $((origin_y + $1 * pixels / twips))
}

# What is on the screen is seen by a program beside this one: `watch COMMAND` leaves its answer in `watched`.
coproc screen_watch { exec "$(dirname "${BASH_SOURCE[0]}")/screen_watch.py"; }
exec {watch_answers}<&"${screen_watch[0]}" {watch_commands}>&"${screen_watch[1]}"
watch() {
    watched=no
    echo "$*" >&"$watch_commands"
    read -r -t $((2 * LIMIT)) watched <&"$watch_answers" || true
    [ "$watched" = yes ]
}
# Waits until nothing was drawn on the screen for so many milliseconds, 100 without a number.
settled() {
    watch rest "${1:-100}" $LIMIT || give_up "the screen does not come to rest"
}
# answers COMMAND...: does it, and waits until something is drawn.
answers() {
    watch mark
    "$@"
    watch change $LIMIT || give_up "nothing changes after: $*"
}
# The same, and waits until it has come to rest.
changes() {
    answers "$@"
    settled
}
put_mouse_away() {
    xdotool mousemove 1 1
    settled
}
# move LEFT TOP WIDTH HEIGHT: the mouse to the middle of a control.
move() {
    xdotool mousemove --window "$current" "$(across $(($1 + $3 / 2)))" "$(down $(($2 + $4 / 2)))"
}
click() {
    move "$@"
    settled
    changes xdotool click 1
}
# line LEFT TOP NUMBER: a line of a list that begins there.
line() {
    click $(($1 + 450)) $(($2 + 120 + 195 * $3)) 0 0
}
key() {
    changes xdotool key "$1"
}

# On the preparation screen: where the frame of a seat stands, and in it the rows of the suits.
readonly FRAME_LEFT=(0 5580 7980 5580 2970) FRAME_TOP=(0 120 1890 3660 1890)
# card_place SEAT SUIT NUMBER: a card's label; seats count from 1, suits and the cards of a suit from 0.
card_place() {
    echo $((FRAME_LEFT[$1] + 420 + 315 * $3)) $((FRAME_TOP[$1] + 300 + 300 * $2)) 315 300
}
