#!/usr/bin/env bash
# Chooses valves in the workbench as a user does, with keys and mouse on a screen of its own.
# Usage: valve_dialog_journey.sh PROGRAM DATA_FOLDER
set -euo pipefail

source "$(dirname "${BASH_SOURCE[0]}")/journey.sh"

dialog_is_up() {
    ! program_ended || fail "the program has ended"
    window=$(xdotool search --onlyvisible --name '^Scelta valvola secondo VDI 3805$' 2>/dev/null) &&
        [[ -n $window && $(xdotool getwindowfocus 2>/dev/null) == "$window" ]]
}

# Starts the program and waits for its window to take keys.
open_dialog() {
    "$program" --valve-dialog "$@" --valve-catalogues "$data/valves" \
        --workplace "$scratch/kept/workplace" >"$scratch/out" 2>"$scratch/program.log" &
    job=$!
    await "the window" dialog_is_up
    # WIDTH and HEIGHT
    eval "$(xdotool getwindowgeometry --shell "$window" | grep -E '^(WIDTH|HEIGHT)=')"
}

keys() { xdotool key --clearmodifiers --delay 20 "$@"; }

# Clicks a place given in the dialog's own units, of which it is 398 wide and 257 high below its
# caption bar of about 30 pixels.
click() {
    local x=$((5 + $1 * (WIDTH - 10) / 398)) y=$((30 + $2 * (HEIGHT - 35) / 257))
    shift 2
    xdotool mousemove --sync --window "$window" "$x" "$y" click "$@" 1
}

expect_line() {
    grep -qE "^$1 +$2\$" "$scratch/out" || {
        cat "$scratch/out" >&2
        fail "no line \"$1 $2\""
    }
}

choose_by_keys_and_mouse() {
    open_dialog
    keys Down Down                 # the third maker
    click 60 38 --repeat 2         # opens his first main group
    keys Right Right Right Down Down # its first group, and there the third valve
    click 313 244                  # OK
    expect_exit 0
    expect_line Produttore Ostervliet
    expect_line NumeroTGA 020001011000000000030000000003000100
    expect_line 'Gruppo principale' Thermostaatventielen
    expect_line Gruppo 'Reeks OA, voorinstelling 1 tot 6'
    expect_line Denominazione 'Reeks OA, voorinstelling 1 tot 6, Haaks, DN 10, Messing zwart'
    expect_line DN 10
    expect_line Regolabile sì
}

confirm_a_preset() {
    open_dialog Fontespada 020001011500000000020000000005000200
    keys Return
    expect_exit 0
    expect_line Produttore Fontespada
    expect_line Denominazione 'Serie FT con preregolazione, Squadra, DN 15, Ottone cromato'
    expect_line DN 15
}

cancel() {
    open_dialog Fontespada 020001011500000000020000000005000200
    keys Escape
    expect_exit 6
    [[ ! -s $scratch/out ]] || fail "a cancelled dialog printed a valve"
}

without_a_screen() {
    DISPLAY='' "$program" --valve-dialog --valve-catalogues "$data/valves" \
        >"$scratch/out" 2>"$scratch/program.log" &
    job=$!
    expect_exit 7
    grep -q 'nessuno schermo' "$scratch/program.log" || fail "no word about the screen"
}

start_screen
choose_by_keys_and_mouse
confirm_a_preset
cancel
without_a_screen
