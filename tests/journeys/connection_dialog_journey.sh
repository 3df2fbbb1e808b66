#!/usr/bin/env bash
# Sets up a radiator's connection in the workbench as a user does, with keys and mouse on a screen
# of its own.
# Usage: connection_dialog_journey.sh PROGRAM DATA_FOLDER
set -euo pipefail

source "$(dirname "${BASH_SOURCE[0]}")/journey.sh"

window_is_up() {
    ! program_ended || fail "the program has ended"
    window=$(xdotool search --onlyvisible --name "^$1\$" 2>/dev/null) &&
        [[ -n $window && $(xdotool getwindowfocus 2>/dev/null) == "$window" ]]
}

# Makes a window the one that is clicked into.
measure() {
    window=$1
    # WIDTH and HEIGHT
    eval "$(xdotool getwindowgeometry --shell "$window" | grep -E '^(WIDTH|HEIGHT)=')"
}

# Waits for a window to take keys.
await_window() {
    await "the window $1" window_is_up "$1"
    measure "$window"
}

is_gone() { [[ " $(xdotool search --onlyvisible --name . 2>/dev/null | tr '\n' ' ') " != *" $1 "* ]]; }

await_connection() { await_window 'Parametri valvole e attacco corpi scaldanti'; }

open_dialog() {
    "$program" --connection-dialog --valve-catalogues "$data/valves" \
        --workplace "$scratch/kept/workplace" >"$scratch/out" 2>"$scratch/program.log" &
    job=$!
    await_connection
}

keys() { xdotool key --clearmodifiers --delay 20 "$@"; }

click_pixel() {
    local x=$1 y=$2
    shift 2
    xdotool mousemove --sync --window "$window" "$x" "$y" click "$@" 1
}

# Clicks a place of the connection dialog in the units of its template, of which it is 267 wide and,
# collapsed, 303 high below a caption bar of 15.
click() { click_pixel $((1 + $1 * (WIDTH - 2) / 267)) $((1 + ($2 + 15) * (HEIGHT - 2) / 318)); }

# The same in the valve dialog, 398 wide and 257 high below its caption bar.
click_valve_dialog() {
    local x=$((5 + $1 * (WIDTH - 10) / 398)) y=$((30 + $2 * (HEIGHT - 35) / 257))
    shift 2
    click_pixel "$x" "$y" "$@"
}

expect_line() {
    grep -qE "^$1 +$2\$" "$scratch/out" || {
        cat "$scratch/out" >&2
        fail "no line \"$1 $2\""
    }
}

pick_flow_valve() {
    local connection=$window
    click 228 139                  # the button beside the flow valve
    await_window 'Scelta valvola secondo VDI 3805'
    keys Down Down                 # the third maker
    click_valve_dialog 60 38 --repeat 2 # opens his first main group
    keys Right Right Right Down Down # its first group, and there the third valve
    local nested=$window
    click_valve_dialog 313 244     # OK
    await "the end of the valve dialog" is_gone "$nested"
    # On a screen without a window manager a window gets its keys back by a click, here on a text.
    measure "$connection"
    click 100 139
    await_connection
}

set_up_a_connection() {
    open_dialog
    click 158 23                   # the first preset above the sketch, for the flow point
    click 150 112                  # Inverti
    pick_flow_valve
    click 150 231                  # opens the list of flow graphics
    keys Down Return               # the one after that on offer
    click 183 292                  # OK
    expect_exit 0
    expect_line Mandata "all'estremità destra, in basso 30 mm più in alto, tubo verso destra"
    expect_line Ritorno "all'estremità sinistra 30 mm a destra, in alto, tubo verso l'alto"
    expect_line 'Distanza laterale, mandata' '0\.100 m'
    expect_line 'Distanza laterale, ritorno' '0\.000 m'
    local valve='Ostervliet Reeks OA, voorinstelling 1 tot 6, Haaks, DN 10, Messing zwart, DN 10'
    expect_line 'Valvola di mandata' "$valve"
    expect_line 'Valvola di ritorno' "$valve" # an empty side takes over what is picked
    expect_line 'Grafico di mandata' BLOCCO_H_SQUADRA_DX
    expect_line 'Grafico di ritorno' nessuno
    expect_line 'Tipo attacco attivo' sì
}

cancel() {
    open_dialog
    click 158 23
    keys Escape
    expect_exit 6
    [[ ! -s $scratch/out ]] || fail "a cancelled dialog printed a connection"
}

start_screen
set_up_a_connection
cancel
