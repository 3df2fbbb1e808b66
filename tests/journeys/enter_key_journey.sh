#!/usr/bin/env bash
# On some desktops the toolkit takes Enter for a press of check boxes, radio buttons and lists. The
# dialogs keep the key on all of them: it confirms, or moves on like Tab for who wants that.
# Usage: enter_key_journey.sh PROGRAM DATA_FOLDER PLUGIN_FOLDER
set -euo pipefail

source "$(dirname "${BASH_SOURCE[0]}")/journey.sh"

# In the order of Tab.
kinds=('check box' 'drop-down list' 'field' 'radio button')
declare -A control=(['check box']=18076 ['drop-down list']=362 [field]=18041 ['radio button']=18079)

enter_as_tab() {
    mkdir -p "$XDG_CONFIG_HOME/radsel"
    printf 'radsel-settings 1\nEnterAlsTab=%s\n' "$1" >"$XDG_CONFIG_HOME/radsel/settings.txt"
}

open_dialog() {
    XDG_CURRENT_DESKTOP=$desktop "$program" --connection-dialog --valve-catalogues "$data/valves" \
        --workplace "$scratch/kept/workplace" >"$scratch/out" 2>"$scratch/program.log" &
    job=$!
    await_window 'Parametri valvole e attacco corpi scaldanti'
}

# Leaves in "face" what a press of the control would change.
look_at() {
    ask "$1" || fail "expected $1, found none"
    face=$found_text
    [[ $found_states != *,checked,* ]] || face+=' checked'
}

moves_on() {
    step "Enter as Tab on $desktop"
    enter_as_tab 1
    open_dialog
    local kind before
    for kind in "${kinds[@]}"; do
        step "Enter as Tab in a $kind on $desktop"
        tab_to "${control[$kind]}"
        look_at "${control[$kind]}"
        before=$face
        keys Return
        await "Enter to leave the $kind" focus_left "${control[$kind]}"
        look_at "${control[$kind]}"
        [[ $face == "$before" ]] || fail "expected \"$before\" still, found \"$face\""
    done
    keys Escape
    expect_exit 6
}

# A field takes no Enter for a press on any desktop, and is left out of what opens a dialog each.
confirms() {
    local kind
    enter_as_tab 0
    for kind in 'check box' 'drop-down list' 'radio button'; do
        step "Enter as OK in a $kind on $desktop"
        open_dialog
        tab_to "${control[$kind]}"
        keys Return
        expect_exit 0
        expect_output "$confirmed"
    done
}

# What OK hands over if nothing was pressed.
confirm_untouched() {
    step "OK of an untouched connection"
    desktop=other
    open_dialog
    click OK
    expect_exit 0
    confirmed=$(cat "$scratch/out")
}

start_screen
confirm_untouched
for desktop in GNOME XFCE X-Cinnamon MATE Unity LXDE KDE other; do
    moves_on
    confirms
done
