#!/usr/bin/env bash
# A working day in the workbench, with keys and mouse on a screen of its own: place a radiator, size
# all rooms, connect, change the system, repair, save, survive a crash, open, export, compare.
# Usage: workbench_journey.sh PROGRAM DATA_FOLDER
set -euo pipefail

source "$(dirname "${BASH_SOURCE[0]}")/journey.sh"

building=
options=()

keys() { xdotool key --clearmodifiers --delay 40 "$@"; }

# Whether a window of that caption is there, and takes keys and clicks.
window_is_up() {
    ! program_ended || fail "the program has ended"
    local found
    found=$(xdotool search --onlyvisible --name "$1" 2>/dev/null | tail -n 1) && [[ -n $found ]] &&
        xdotool windowfocus --sync "$found" && window=$found
}

window_is_gone() { ! xdotool search --onlyvisible --name "$1" >/dev/null 2>&1; }

open_workbench() {
    "$program" "${options[@]}" >"$scratch/out" 2>"$scratch/program.log" &
    job=$!
    await "the workbench" window_is_up "$1"
    main=$window
}

# As a desktop does when a dialog closes.
back_to_plan() {
    await "the end of the dialog" window_is_gone "$1"
    xdotool windowfocus --sync "$main"
    window=$main
}

# Unsaved work is kept in a file shortly after each change, which shows what the window holds.
kept() { cat "$scratch"/kept/workplace/recupero-*.json 2>/dev/null || true; }
radiators_in() { grep -c '"type":' <<<"$1" || true; }
keeps_radiators() { [[ $(radiators_in "$(kept)") -eq $1 ]]; }
keeps_text() { grep -q "$1" <<<"$(kept)"; }
nothing_kept() { [[ -z $(kept) ]]; }

# A double click on a place of the plan, told in hundredths of the window.
double_click() {
    eval "$(xdotool getwindowgeometry --shell "$window" | grep -E '^(WIDTH|HEIGHT)=')"
    xdotool mousemove --sync --window "$window" $((WIDTH * $1 / 100)) $((HEIGHT * $2 / 100)) \
        click --repeat 2 --delay 60 1
}

place_by_mouse() {
    double_click 29 52 # the living room
    await "the selection" window_is_up '^Scelta Corpi scaldanti$'
    keys shift+Tab shift+Tab shift+Tab shift+Tab shift+Tab shift+Tab shift+Tab Return
    back_to_plan '^Scelta Corpi scaldanti$'
    await "the radiator in the plan" keeps_radiators 1
}

size_all_and_undo() {
    keys ctrl+d
    await "radiators in all rooms but two" keeps_radiators 15
    keys ctrl+z
    await "the one radiator" keeps_radiators 1
    keys ctrl+y
    await "radiators again" keeps_radiators 15
}

connect_all() {
    keys ctrl+a F6 # all rooms of the floor, of which eight have a radiator
    await "the connections" window_is_up '^Parametri valvole e attacco'
    keys Return
    back_to_plan '^Parametri valvole e attacco'
    await "both points of every radiator" eval '[[ $(grep -c "\"point\": \"-\?0" <<<"$(kept)") -eq 16 ]]'
}

change_system_and_repair() {
    keys F9
    await "the system" window_is_up '^Sistema di riscaldamento$'
    keys Tab ctrl+a 5 5 Tab ctrl+a 4 5 Return
    back_to_plan '^Sistema di riscaldamento$'
    await "the other system" keeps_text '"supply": 55,'
    keys ctrl+shift+r # one step, which the file saved next holds
}

save() {
    keys ctrl+s
    await "the saved file" grep -q '"supply": 55,' "$building"
    await "nothing unsaved" nothing_kept
}

crash_and_recover() {
    keys ctrl+a Delete
    await "the removal, kept for a crash" keeps_text "$building"
    local before
    before=$(radiators_in "$(kept)")
    kill -KILL "$job"
    wait "$job" 2>/dev/null || true
    job=
    [[ $(radiators_in "$(cat "$building")") -gt $before ]] || fail "the removal removed nothing"
    open_workbench '^radsel$'
    keys Return # recover
    await "the recovered work" window_is_up 'Villa dei Tigli'
    main=$window
    keys ctrl+s
    await "the recovered work in the file" eval '[[ $(radiators_in "$(cat "$building")") -eq '"$before"' ]]'
}

export_and_compare() {
    keys ctrl+d
    await "all rooms sized again" eval '[[ $(radiators_in "$(kept)") -ge 10 ]]'
    keys ctrl+s
    await "nothing unsaved" nothing_kept
    keys ctrl+p
    await "the file dialog" window_is_up '^Esporta il progetto$'
    xdotool type --delay 20 "$scratch/kept/progetto.pdf"
    keys Return
    await "the exported file" test -s "$scratch/kept/progetto.pdf"
    back_to_plan '^Esporta il progetto$'
    [[ $(head -c 5 "$scratch/kept/progetto.pdf") == %PDF- ]] || fail "the export is no PDF"
    keys ctrl+q
    expect_exit 0

    # The command line on the saved building writes the same building again.
    "$program" --batch "${options[@]}" --output "$scratch/kept/out" --save "$scratch/kept/again.json" \
        >"$scratch/out" 2>"$scratch/program.log" || fail "the run without windows"
    cmp "$building" "$scratch/kept/again.json" || fail "the building came out another"
}

start_screen
building=$scratch/kept/casa.json
cp "$data/buildings/villa-dei-tigli.json" "$building"
options=(--building "$building" --catalogues "$data/catalogues" --valve-catalogues "$data/valves"
    --workplace "$scratch/kept/workplace")
open_workbench 'Villa dei Tigli'
place_by_mouse
size_all_and_undo
connect_all
change_system_and_repair
save
crash_and_recover
export_and_compare
