#!/usr/bin/env bash
# Chooses radiators in the workbench as a user does, with keys and mouse on a screen of its own.
# Usage: radiator_dialog_journey.sh PROGRAM DATA_FOLDER PLUGIN_FOLDER
set -euo pipefail

source "$(dirname "${BASH_SOURCE[0]}")/journey.sh"

caption='Scelta Corpi scaldanti'
length_from=18002
rows=18001
distances=7022

kept_files() { (cd "$scratch/kept" && find . -printf '%p %s %T@\n' | sort); }

# Starts the program for a room and waits for its window to take keys.
open_dialog() {
    step "open the selection dialog"
    "$program" --radiator-dialog "Sala da pranzo" \
        --building "$data/buildings/villa-dei-tigli.json" --catalogues "$data/catalogues" \
        --valve-catalogues "$data/valves" --workplace "$scratch/kept/workplace" \
        >"$scratch/out" 2>"$scratch/program.log" &
    job=$!
    await_window "$caption"
}

# Shortly after opening the dialog goes to its best row. A look at the distances takes longer, and
# shows that the dialog has come to answer.
pass_by_distances() {
    step "look at the distances"
    click "$distances"
    await_window Distanze
    click Annulla
    bring_to_front "$caption"
}

choose_another_row() {
    step "choose a row above the best one"
    click "$rows > 17"
    expect_state "$rows > 17" checked
}

expect_radiator() {
    local place='Piano terra.Sala da pranzo: Valmorena / Radiatori a piastra compatti / Tipo 21'
    expect_output "$place / $1, layer HEIZ_HK_Piano terra"
}

choose_by_keys() {
    start_afresh
    open_dialog
    step "ask for at least a metre by keys"
    tab_to "$length_from"
    keys 1 0 0 0
    expect_text "$length_from" 1000
    step "go back to the grid, over the first and the last control"
    tab_to "$rows" shift+Tab
    expect_state "$rows > 8" checked
    step "choose the row below the best one"
    keys Down
    expect_state "$rows > 9" checked
    keys Return
    expect_exit 0
    expect_radiator 'C 21/500x1000, 500 x 66 x 1000 mm, 878 W'
    [[ -s $scratch/kept/workplace/winpos.txt ]] ||
        fail "expected the window's place kept by OK, found none"
}

choose_by_mouse() {
    start_afresh
    open_dialog
    pass_by_distances
    choose_another_row
    step "take the radiator"
    click OK
    expect_exit 0
    expect_radiator 'C 21/400x1000, 400 x 66 x 1000 mm, 735 W'
}

cancel() {
    start_afresh
    local before
    before=$(kept_files)
    open_dialog
    pass_by_distances
    choose_another_row
    step "cancel the selection dialog"
    keys Tab Escape
    expect_exit 6
    expect_output 'Nessun corpo scaldante scelto'
    [[ $(kept_files) == "$before" ]] || {
        diff <(echo "$before") <(kept_files) >&2
        fail "expected nothing stored, found the files above"
    }
}

start_screen
choose_by_keys
choose_by_mouse
cancel
