#!/usr/bin/env bash
# The workbench on a screen of 800 x 600: its window, a dialog wider than the screen, one that the
# program moves, and what comes back at the next start.
# Usage: small_screen_journey.sh PROGRAM DATA_FOLDER PLUGIN_FOLDER
set -euo pipefail

source "$(dirname "${BASH_SOURCE[0]}")/journey.sh"

size=800x600
building=

open_workbench() {
    "$program" --building "$building" --catalogues "$data/catalogues" \
        --valve-catalogues "$data/valves" --workplace "$scratch/kept/workplace" \
        >"$scratch/out" 2>"$scratch/program.log" &
    job=$!
    bring_to_front 'Villa dei Tigli*'
}

# Leaves place and size of the window with the keys in X, Y, WIDTH and HEIGHT.
measure() {
    eval "$(xdotool getwindowgeometry --shell "$(xdotool getwindowfocus)")"
}

expect_on_screen() {
    measure
    ((X >= 0 && Y >= 0 && X + WIDTH <= 800 && Y + HEIGHT <= 600)) ||
        fail "expected the window on the screen, found $X,$Y ${WIDTH}x$HEIGHT"
}

choose_with_scrolling() {
    step "open the selection dialog, which is wider than the screen"
    double_click "plan @ $1"
    await_window 'Scelta Corpi scaldanti'
    expect_on_screen
    step "come to the return temperature at its right edge by keys, and click it"
    tab_to 7009
    click 7009
    keys Escape
    bring_to_front 'Villa dei Tigli*'
}

all_sized() { ask totals && [[ $found_text == *'Locali da sistemare: 2' ]]; }

connect() {
    step "connect the radiators of the floor"
    keys ctrl+d
    # Until then, keys may be those of the bar that shows how far it is.
    await "all rooms sized" all_sized
    keys ctrl+a F6
    await_window 'Parametri valvole e attacco corpi scaldanti'
    expect_on_screen
    keys Escape
    bring_to_front 'Villa dei Tigli*'
}

start_screen
building=$scratch/kept/casa.json
cp "$data/buildings/villa-dei-tigli.json" "$building"
middle=$(sed -nE '/"name": "Soggiorno"/,/"outline"/s/.*"outline": *(.*)/\1/p' "$building" |
    tr -dc '0-9,\n' | awk -F, '{ printf "%f,%f", ($1 + $3 / 2) / 1000, ($2 + $4 / 2) / 1000 }')
step "open the workbench"
open_workbench
expect_on_screen
choose_with_scrolling "$middle"
connect
step "make the window smaller, leave and come back"
xdotool windowsize --sync "$(xdotool getwindowfocus)" 700 500
measure
kept="${WIDTH}x$HEIGHT"
keys ctrl+z ctrl+q
expect_exit 0
open_workbench
measure
[[ ${WIDTH}x$HEIGHT == "$kept" ]] || fail "expected $kept, found ${WIDTH}x$HEIGHT"
keys ctrl+q
expect_exit 0
