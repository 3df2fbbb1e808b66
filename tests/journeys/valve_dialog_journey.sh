#!/usr/bin/env bash
# Chooses valves in the workbench as a user does, with keys and mouse on a screen of its own.
# Usage: valve_dialog_journey.sh PROGRAM DATA_FOLDER
set -euo pipefail

program=$1
data=$2
deadline=30 # seconds for one thing to happen
scratch=$(mktemp -d)
server=
job=

finish() {
    [[ -z $job ]] || kill "$job" 2>/dev/null || true
    [[ -z $server ]] || kill "$server" 2>/dev/null || true
    wait
    rm -rf "$scratch"
}
trap finish EXIT

fail() {
    printf 'journey: %s\n' "$*" >&2
    cat "$scratch"/*.log >&2 || true
    exit 1
}

# Asks until the command succeeds.
await() {
    local what=$1 end=$((SECONDS + deadline))
    shift
    until "$@"; do
        ((SECONDS < end)) || fail "waited in vain: $what"
        sleep 0.05
    done
}

# Starts a server under a display number of chance, as one that is just ending takes the socket of
# the lowest free number away with it. It must not start anew whenever a client leaves. False if it
# ends, the number being taken.
screen_answers() {
    export DISPLAY=:$((100 + RANDOM % 30000))
    Xvfb "$DISPLAY" -screen 0 1280x1024x24 -nolisten tcp -noreset >"$scratch/screen.log" 2>&1 &
    server=$!
    while kill -0 "$server" 2>/dev/null; do
        ! xdotool getmouselocation >/dev/null 2>&1 || return 0
        ((SECONDS < deadline)) || fail "the screen does not answer"
        sleep 0.05
    done
    return 1
}

start_screen() {
    await "a screen" screen_answers
    # Neither the settings of who runs this, nor his desktop.
    export XDG_CONFIG_HOME=$scratch/config XDG_RUNTIME_DIR=$scratch QT_QPA_PLATFORM=xcb
    export DBUS_SESSION_BUS_ADDRESS=disabled:
    unset WAYLAND_DISPLAY QT_SCALE_FACTOR QT_STYLE_OVERRIDE
    mkdir "$scratch/workplace"
    cp "$data/workplace/winsett.txt" "$scratch/workplace"
}

program_ended() { ! kill -0 "$job" 2>/dev/null; }

dialog_is_up() {
    ! program_ended || fail "the program has ended"
    window=$(xdotool search --onlyvisible --name '^Scelta valvola secondo VDI 3805$' 2>/dev/null) &&
        [[ -n $window && $(xdotool getwindowfocus 2>/dev/null) == "$window" ]]
}

# Starts the program and waits for its window to take keys.
open_dialog() {
    "$program" --valve-dialog "$@" --valve-catalogues "$data/valves" \
        --workplace "$scratch/workplace" >"$scratch/out" 2>"$scratch/program.log" &
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

# Waits for the end of the program and looks at its exit code.
expect_exit() {
    await "the end of the program" program_ended
    local code=0
    wait "$job" || code=$?
    job=
    [[ $code -eq $1 ]] || fail "exit code $code instead of $1"
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
