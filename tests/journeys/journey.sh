# What all journeys share: a screen of their own, a working place of their own, controls that are
# found by name and pressed with real keys and a real mouse, waiting for things to happen. Sourced
# with PROGRAM, DATA_FOLDER and PLUGIN_FOLDER, where the finder is, as the arguments.

program=$1
data=$2
plugins=$3
deadline=30 # seconds for one thing to happen
size=1280x1024 # of the screen
scratch=$(mktemp -d)
server=
job=
step='start'
found=
serial=0

finish() {
    [[ -z $job ]] || kill "$job" 2>/dev/null || true
    [[ -z $server ]] || kill "$server" 2>/dev/null || true
    wait
    rm -rf "$scratch"
}
trap finish EXIT

# Names what the journey does next. What fails is told with it.
step() { step=$*; }

fail() {
    printf 'step: %s: %s\n' "$step" "$*" >&2
    cat "$scratch"/*.log >&2 || true
    exit 1
}

# Tries until the command succeeds. What it saw instead it leaves in "found".
await() {
    local what=$1 end=$((SECONDS + deadline))
    shift
    found="nothing of it in $deadline seconds"
    until "$@"; do
        ((SECONDS < end)) || fail "expected $what, found $found"
        sleep 0.02
    done
}

# Starts a server under a display number of chance, as one that is just ending takes the socket of
# the lowest free number away with it. It must not start anew whenever a client leaves. False if it
# ends, the number being taken.
screen_answers() {
    export DISPLAY=:$((100 + RANDOM % 30000))
    Xvfb "$DISPLAY" -screen 0 "${size}x24" -nolisten tcp -noreset >"$scratch/screen.log" 2>&1 &
    server=$!
    while kill -0 "$server" 2>/dev/null; do
        ! xdotool getmouselocation >/dev/null 2>&1 || return 0
        ((SECONDS < deadline)) || fail "expected an answer of the screen, found none"
        sleep 0.05
    done
    return 1
}

start_screen() {
    await "a screen" screen_answers
    # Neither the settings of who runs this, nor his desktop.
    export XDG_CONFIG_HOME=$scratch/kept/config XDG_RUNTIME_DIR=$scratch QT_QPA_PLATFORM=xcb
    export DBUS_SESSION_BUS_ADDRESS=disabled:
    unset WAYLAND_DISPLAY QT_SCALE_FACTOR QT_STYLE_OVERRIDE XDG_CURRENT_DESKTOP DESKTOP_SESSION
    mkfifo "$scratch/ask" "$scratch/answer"
    exec 3<>"$scratch/ask" 4<>"$scratch/answer"
    export QT_PLUGIN_PATH=$plugins QT_QPA_GENERIC_PLUGINS=finder:$scratch
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
    [[ $code -eq $1 ]] || fail "expected exit code $1, found $code"
}

# Asks the finder, which tells in its header what can be asked. False if there is no such thing. It
# asks anew where no answer comes: the program starts, or a line was read in part.
ask() {
    local answer='' end=$((SECONDS + deadline))
    while [[ -z $answer ]]; do
        serial=$((serial + 1))
        printf '%s %s\n' "$serial" "$1" >&3
        until [[ $answer == "$serial|"* ]]; do
            IFS= read -r -t 0.5 answer <&4 || {
                answer=''
                break
            }
        done
        ! program_ended || fail "expected $1, found the program ended"
        ((SECONDS < end)) || fail "expected an answer about $1, found none"
    done
    IFS='|' read -r _ found_window found_x found_y found_states found_name found_text <<<"$answer"
    found="no $1"
    [[ -n $found_states ]] || return 1
    found="$1${found_states//,/ }\"$found_text\""
}

is() { ask "$1" && [[ $found_states == *,$2,* ]]; }
shows() { ask "$1" && [[ $found_text == "$2" ]]; }
can_be_clicked() { is "$1" visible && is "$1" enabled; }
focus_left() { ask focus && found="it there" && [[ $found_name != "$1" ]]; }
shows_window() { ask window && [[ $found_text == $1 ]]; }
has_input() { shows_window "$1" && [[ $found_states == *,active,* ]]; }

expect_state() { await "$1 $2" is "$1" "$2"; }
expect_text() { await "$1 with \"$2\"" shows "$1" "$2"; }

# Waits for the window whose caption fits a pattern to take keys.
await_window() { await "the window \"$1\" with the keys" has_input "$1"; }

# The same where a desktop would give the keys to the window: on this screen, without a window
# manager, nobody else does.
bring_to_front() {
    await "the window \"$1\"" shows_window "$1"
    xdotool windowfocus --sync "$found_window"
    await_window "$1"
}

keys() { xdotool key --clearmodifiers --delay 20 "$@"; }

# Clicks a control, an item or a place, with more words for the mouse's button if there are any.
click() {
    local name=$1
    shift
    await "$name to be clicked" can_be_clicked "$name"
    xdotool mousemove --sync "$found_x" "$found_y" click "$@" 1
}

double_click() { click "$1" --repeat 2 --delay 60; }

# Opens a drop-down list and takes an item.
choose() {
    click "$1"
    click "$1 > $2"
    expect_text "$1" "$2"
}

# Presses Tab, or another key, until a control has the keys.
tab_to() {
    local name=$1 key=${2:-Tab} presses=0 before
    until is "$name" focused; do
        ask focus || fail "expected a control with the keys, found none"
        before=$found_name
        ((++presses <= 60)) || fail "expected $key to come to $name, found it at $before"
        keys "$key"
        await "$key to leave $before" focus_left "$before"
    done
}

# What the program has printed, and whether a line of a name and a value is in it.
expect_output() {
    local output
    output=$(cat "$scratch/out")
    [[ $output == "$1" ]] || fail "expected the output \"$1\", found \"$output\""
}
expect_line() {
    grep -qE "^$1 +$2\$" "$scratch/out" ||
        fail "expected the line \"$1 $2\", found \"$(grep "^$1 " "$scratch/out")\""
}
