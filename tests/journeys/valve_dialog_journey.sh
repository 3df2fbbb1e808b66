#!/usr/bin/env bash
# Chooses valves in the workbench as a user does, with keys and mouse on a screen of its own.
# Usage: valve_dialog_journey.sh PROGRAM DATA_FOLDER PLUGIN_FOLDER
set -euo pipefail

source "$(dirname "${BASH_SOURCE[0]}")/journey.sh"

maker=18039
tree=18019

# Starts the program and waits for its window to take keys.
open_dialog() {
    step "open the valve dialog"
    "$program" --valve-dialog "$@" --valve-catalogues "$data/valves" \
        --workplace "$scratch/kept/workplace" >"$scratch/out" 2>"$scratch/program.log" &
    job=$!
    await_window 'Scelta valvola secondo VDI 3805'
}

choose_by_keys_and_mouse() {
    open_dialog
    step "choose the third maker by keys"
    expect_state "$maker" focused
    keys Down Down
    expect_text "$maker" Ostervliet
    step "open his first main group by a double click"
    double_click "$tree > Thermostaatventielen"
    step "choose the third valve of its first group by keys"
    keys Right Right Right Down Down
    expect_state "$tree > Thermostaatventielen > Reeks OA, voorinstelling 1 tot 6 > 3" checked
    step "take the valve"
    click OK
    expect_exit 0
    expect_line Produttore Ostervliet
    expect_line NumeroTGA 020001011000000000030000000003000100
    expect_line 'Gruppo principale' Thermostaatventielen
    expect_line Gruppo 'Reeks OA, voorinstelling 1 tot 6'
    expect_line Denominazione 'DN 10 zwart, Haaks, Reeks OA, voorinstelling 1 tot 6'
    expect_line DN 10
    expect_line Regolabile sì
}

confirm_a_preset() {
    open_dialog Fontespada 020001011500000000020000000005000200
    step "confirm the valve that was handed over"
    keys Return
    expect_exit 0
    expect_line Produttore Fontespada
    expect_line Denominazione 'DN 15 cromato, Squadra, Serie FT con preregolazione'
    expect_line DN 15
}

cancel() {
    open_dialog Fontespada 020001011500000000020000000005000200
    step "cancel the valve dialog"
    keys Escape
    expect_exit 6
    expect_output ''
}

without_a_screen() {
    step "open the valve dialog without a screen"
    DISPLAY='' "$program" --valve-dialog --valve-catalogues "$data/valves" \
        >"$scratch/out" 2>"$scratch/program.log" &
    job=$!
    expect_exit 7
    grep -q 'nessuno schermo' "$scratch/program.log" ||
        fail "expected a word about the screen, found none"
}

start_screen
choose_by_keys_and_mouse
confirm_a_preset
cancel
without_a_screen
