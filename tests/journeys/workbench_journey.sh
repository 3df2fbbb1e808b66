#!/usr/bin/env bash
# A working day in the workbench, with keys and mouse on a screen of its own: place a radiator, size
# all rooms, connect, change the system, repair, save, survive a crash, open, export, compare.
# Usage: workbench_journey.sh PROGRAM DATA_FOLDER PLUGIN_FOLDER
set -euo pipefail

source "$(dirname "${BASH_SOURCE[0]}")/journey.sh"

building=
options=()
totals=

selection='Scelta Corpi scaldanti'
connections='Parametri valvole e attacco corpi scaldanti'
system='Sistema di riscaldamento'

open_workbench() {
    "$program" "${options[@]}" >"$scratch/out" 2>"$scratch/program.log" &
    job=$!
    bring_to_front "$1"
}

back_to_plan() { bring_to_front 'Villa dei Tigli*'; }

# Unsaved work is kept in a file shortly after each change, which shows what the window holds.
kept() { cat "$scratch"/kept/workplace/recupero-*.json 2>/dev/null || true; }
radiators_in() { grep -c '"type":' <<<"$1" || true; }
keeps_radiators() { [[ $(radiators_in "$(kept)") -eq $1 ]]; }
keeps_text() { grep -q "$1" <<<"$(kept)"; }
nothing_kept() { [[ -z $(kept) ]]; }

# The middle of a room in metres of the plan, as the building's file tells it.
middle_of_room() {
    sed -nE "/\"name\": \"$1\"/,/\"outline\"/s/.*\"outline\": *(.*)/\1/p" "$building" |
        tr -dc '0-9,\n' | awk -F, '{ printf "%f,%f", ($1 + $3 / 2) / 1000, ($2 + $4 / 2) / 1000 }'
}

# Waits for the totals of the plan to change, and leaves them in "totals".
await_other_totals() {
    await "other totals than \"$totals\"" totals_changed
    totals=$found_text
}
totals_changed() { ask totals && [[ $found_text != "$totals" ]]; }

place_by_mouse() {
    step "choose a radiator for the living room"
    double_click "plan @ $(middle_of_room Soggiorno)"
    await_window "$selection"
    tab_to 18001 shift+Tab
    keys Return
    back_to_plan
    await_other_totals
}

size_all_and_undo() {
    local one=$totals
    step "size all rooms but for the radiator that was picked by hand"
    keys ctrl+d
    await_window radsel
    keys Return
    back_to_plan
    await_other_totals
    step "undo the sizing"
    keys ctrl+z
    expect_text totals "$one"
    step "repeat the sizing, in which two rooms get none"
    keys ctrl+y
    expect_text totals "$totals"
    await "15 radiators, kept" keeps_radiators 15
}

connect_all() {
    step "connect the rooms of the floor, of which eight have a radiator"
    keys ctrl+a F6
    await_window "$connections"
    keys Return
    back_to_plan
    await "both points of every radiator" eval '[[ $(grep -c "\"point\": \"-\?0" <<<"$(kept)") -eq 16 ]]'
}

change_system_and_repair() {
    step "change the heating system"
    keys F9
    await_window "$system"
    tab_to supply
    keys ctrl+a 5 5
    tab_to return
    keys ctrl+a 4 5 Return
    back_to_plan
    await_other_totals
    [[ $totals == *55/45* ]] || fail "expected the system 55/45, found $totals"
    step "repair what it broke, the radiator picked by hand as well"
    keys ctrl+shift+r # one step, which the file saved next holds
    await_window radsel
    click "Dimensiona anche quelli"
    await_other_totals
    back_to_plan
}

save() {
    step "save the building"
    keys ctrl+s
    await "the saved file" grep -q '"supply": 55,' "$building"
    await "nothing unsaved" nothing_kept
}

# The finder is asked about the first window only.
open_twice() {
    step "open the building a second time"
    QT_QPA_GENERIC_PLUGINS='' "$program" "${options[@]}" >"$scratch/second.out" 2>&1 &
    local second=$!
    await "a window that only reads" \
        eval 'xdotool search --onlyvisible --name "sola lettura" >/dev/null 2>&1'
    kill "$second"
    wait "$second" 2>/dev/null || true
    back_to_plan
}

crash_and_recover() {
    step "remove the radiators of the rooms that are marked and crash"
    keys ctrl+a Delete
    await "the removal, kept for a crash" keeps_text "$building"
    local before
    before=$(radiators_in "$(kept)")
    kill -KILL "$job"
    wait "$job" 2>/dev/null || true
    job=
    [[ $(radiators_in "$(cat "$building")") -gt $before ]] ||
        fail "expected fewer than the saved radiators, found $before"
    step "put the work off"
    open_workbench radsel
    keys Escape
    back_to_plan
    keys ctrl+q
    expect_exit 0
    keeps_radiators "$before" || fail "expected the work of before, found $(radiators_in "$(kept)")"
    step "recover the work"
    open_workbench radsel
    keys Return
    back_to_plan
    keys ctrl+s
    await "the recovered work in the file" eval '[[ $(radiators_in "$(cat "$building")") -eq '"$before"' ]]'
}

export_and_compare() {
    step "size all rooms of the recovered work, of which some have no radiator"
    keys ctrl+a Delete ctrl+d
    await "10 radiators or more, kept" eval '[[ $(radiators_in "$(kept)") -ge 10 ]]'
    step "save the recovered work"
    keys ctrl+s
    await "nothing unsaved" nothing_kept
    step "export the project"
    keys ctrl+p
    await_window 'Esporta il progetto'
    expect_state fileNameEdit focused
    expect_text fileNameLabel '&Nome del file:'
    xdotool type --delay 20 "$scratch/kept/progetto.pdf"
    keys Return
    await "the exported file" test -s "$scratch/kept/progetto.pdf"
    back_to_plan
    local start
    start=$(head -c 5 "$scratch/kept/progetto.pdf")
    [[ $start == %PDF- ]] || fail "expected a PDF, found a file that starts with \"$start\""
    step "leave the workbench"
    keys ctrl+q
    expect_exit 0

    step "write the saved building again by the command line"
    "$program" --batch "${options[@]}" --output "$scratch/kept/out" --save "$scratch/kept/again.json" \
        >"$scratch/out" 2>"$scratch/program.log" || fail "expected exit code 0, found $?"
    cmp "$building" "$scratch/kept/again.json" || fail "expected the same building, found another"
}

start_screen
building=$scratch/kept/casa.json
cp "$data/buildings/villa-dei-tigli.json" "$building"
options=(--building "$building" --catalogues "$data/catalogues" --valve-catalogues "$data/valves"
    --workplace "$scratch/kept/workplace")
step "open the workbench"
open_workbench 'Villa dei Tigli*'
ask totals
totals=$found_text
place_by_mouse
size_all_and_undo
connect_all
change_system_and_repair
save
open_twice
crash_and_recover
export_and_compare
