#!/usr/bin/env bash
# Chooses radiators in the workbench as a user does, with keys and mouse on a screen of its own.
# Usage: radiator_dialog_journey.sh PROGRAM DATA_FOLDER
set -euo pipefail

source "$(dirname "${BASH_SOURCE[0]}")/journey.sh"

kept_files() { (cd "$scratch/kept" && find . -printf '%p %s %T@\n' | sort); }

# Whether the window of that caption takes keys and clicks.
dialog_is_up() {
    ! program_ended || fail "the program has ended"
    window=$(xdotool search --onlyvisible --name "^$1\$" 2>/dev/null) &&
        [[ -n $window && $(xdotool getwindowfocus 2>/dev/null) == "$window" ]]
}

# Starts the program for a room and waits for its window to take keys.
open_dialog() {
    "$program" --radiator-dialog "Sala da pranzo" \
        --building "$data/buildings/villa-dei-tigli.json" --catalogues "$data/catalogues" \
        --valve-catalogues "$data/valves" --workplace "$scratch/kept/workplace" \
        >"$scratch/out" 2>"$scratch/program.log" &
    job=$!
    await "the window" dialog_is_up 'Scelta Corpi scaldanti'
    # WIDTH and HEIGHT
    eval "$(xdotool getwindowgeometry --shell "$window" | grep -E '^(WIDTH|HEIGHT)=')"
}

distances_are_gone() { ! xdotool search --onlyvisible --name '^Distanze$' >/dev/null 2>&1; }

# Shortly after opening the dialog goes to its best row. A look at the distances takes longer, and
# shows that the dialog has come to answer.
pass_by_distances() {
    local selection=$window
    click 527 100 # Distanza...
    await "the distances" dialog_is_up Distanze
    click 143 99 # Annulla
    await "the end of the distances" distances_are_gone
    window=$selection
    # As a desktop would.
    xdotool windowfocus --sync "$window"
}

keys() { xdotool key --clearmodifiers --delay 40 "$@"; }

# Clicks a place of the window, given in dialog units. The selection is 576 of them wide and 254
# high below its caption bar of about 30 pixels.
click() {
    local x=$((5 + $1 * (WIDTH - 10) / 576)) y=$((30 + $2 * (HEIGHT - 35) / 254))
    xdotool mousemove --sync --window "$window" "$x" "$y" click 1
}

expect_radiator() {
    local place='Piano terra.Sala da pranzo: Valmorena / Radiatori a piastra compatti / Tipo 21'
    local line="$place / $1, layer HEIZ_HK_Piano terra"
    [[ $(cat "$scratch/out") == "$line" ]] || {
        cat "$scratch/out" >&2
        fail "not the line \"$line\""
    }
}

choose_by_keys() {
    start_afresh
    open_dialog
    keys Tab Tab Tab Tab 1 0 0 0 # at least a metre long, which leaves the first row the best one
    # Backwards over the first and the last control to the rows, and there to the next one.
    keys shift+Tab shift+Tab shift+Tab shift+Tab shift+Tab shift+Tab shift+Tab Down Return
    expect_exit 0
    expect_radiator 'C 21/300x1100, 300 x 66 x 1100 mm, 642 W'
    [[ -s $scratch/kept/workplace/winpos.txt ]] || fail "OK did not keep the window's place"
}

choose_by_mouse() {
    start_afresh
    open_dialog
    pass_by_distances
    click 260 161 # the third row
    click 259 242 # OK
    expect_exit 0
    expect_radiator 'C 21/300x600, 300 x 66 x 600 mm, 350 W'
}

cancel() {
    start_afresh
    local before
    before=$(kept_files)
    open_dialog
    pass_by_distances
    click 260 161
    keys Tab Escape
    expect_exit 6
    [[ $(cat "$scratch/out") == 'Nessun corpo scaldante scelto' ]] ||
        fail "a cancelled dialog printed a radiator"
    [[ $(kept_files) == "$before" ]] || {
        diff <(echo "$before") <(kept_files) >&2
        fail "a cancelled dialog stored something"
    }
}

start_screen
choose_by_keys
choose_by_mouse
cancel
