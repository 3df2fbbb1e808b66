#!/usr/bin/env bash
# Sets up a radiator's connection in the workbench as a user does, with keys and mouse on a screen
# of its own.
# Usage: connection_dialog_journey.sh PROGRAM DATA_FOLDER PLUGIN_FOLDER
set -euo pipefail

source "$(dirname "${BASH_SOURCE[0]}")/journey.sh"

caption='Parametri valvole e attacco corpi scaldanti'
third_preset=18081
mirrored=18040
pick_flow=367
flow_graphic=18097

open_dialog() {
    step "open the connection dialog"
    "$program" --connection-dialog --valve-catalogues "$data/valves" \
        --workplace "$scratch/kept/workplace" >"$scratch/out" 2>"$scratch/program.log" &
    job=$!
    await_window "$caption"
}

pick_flow_valve() {
    step "open the valve dialog beside the flow valve"
    click "$pick_flow"
    await_window 'Scelta valvola secondo VDI 3805'
    step "pick the third valve of the third maker"
    keys Down Down
    expect_text 18039 Ostervliet
    double_click '18019 > Thermostaatventielen'
    keys Right Right Right Down Down
    expect_state '18019 > Thermostaatventielen > Reeks OA, voorinstelling 1 tot 6 > 3' checked
    click OK
    bring_to_front "$caption"
}

set_up_a_connection() {
    open_dialog
    step "choose the first preset above the sketch for the flow point"
    click "$third_preset"
    expect_state "$third_preset" checked
    step "mirror the sketch"
    click "$mirrored"
    expect_state "$mirrored" checked
    pick_flow_valve
    step "choose a graphic for the flow valve"
    choose "$flow_graphic" BLOCCO_H_SQUADRA_DX
    step "take the connection"
    click OK
    expect_exit 0
    expect_line Mandata "all'estremità destra, in basso 30 mm più in alto, tubo verso destra"
    expect_line Ritorno "all'estremità sinistra 30 mm a destra, in alto, tubo verso l'alto"
    expect_line 'Distanza laterale, mandata' '0,100 m'
    expect_line 'Distanza laterale, ritorno' '0,000 m'
    local valve='Ostervliet DN 10 zwart, Haaks, Reeks OA, voorinstelling 1 tot 6, DN 10'
    expect_line 'Valvola di mandata' "$valve"
    expect_line 'Valvola di ritorno' "$valve" # an empty side takes over what is picked
    expect_line 'Grafico di mandata' BLOCCO_H_SQUADRA_DX
    expect_line 'Grafico di ritorno' nessuno
    expect_line 'Tipo attacco attivo' sì
}

cancel() {
    open_dialog
    click "$third_preset"
    step "cancel the connection dialog"
    keys Escape
    expect_exit 6
    expect_output ''
}

start_screen
set_up_a_connection
cancel
