# What all journeys share: a screen of their own, a working place of their own, waiting for things
# to happen. Sourced with PROGRAM and DATA_FOLDER as the arguments.

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
    export XDG_CONFIG_HOME=$scratch/kept/config XDG_RUNTIME_DIR=$scratch QT_QPA_PLATFORM=xcb
    export DBUS_SESSION_BUS_ADDRESS=disabled:
    unset WAYLAND_DISPLAY QT_SCALE_FACTOR QT_STYLE_OVERRIDE
    export RADSEL_HKBLOCKDIR=$data/drawing/heizkoerper.dxf
    export RADSEL_VEBLOCKDIR=$data/drawing/ventile.dxf
    start_afresh
}

# All that a dialog may store lies below one folder.
start_afresh() {
    rm -rf "$scratch/kept"
    mkdir -p "$scratch/kept/config" "$scratch/kept/workplace"
    cp "$data/workplace/winsett.txt" "$scratch/kept/workplace"
    cp -r "$data/root" "$scratch/kept/root"
    export TGA_DATA_SINGLE=$scratch/kept/root
}

program_ended() { ! kill -0 "$job" 2>/dev/null; }

# Waits for the end of the program and looks at its exit code.
expect_exit() {
    await "the end of the program" program_ended
    local code=0
    wait "$job" || code=$?
    job=
    [[ $code -eq $1 ]] || fail "exit code $code instead of $1"
}
