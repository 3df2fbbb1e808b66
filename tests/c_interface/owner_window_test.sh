#!/usr/bin/env bash
# A dialog belongs to the window of another program that was named as its owner; here to the dialog
# of a second process.
#   owner_window_test.sh PROGRAM DATA_FOLDER PLUGIN_FOLDER
set -euo pipefail

source "$(dirname "${BASH_SOURCE[0]}")/../journeys/journey.sh"

dialogs() { xdotool search --onlyvisible --name 'Scelta valvola' 2>/dev/null || true; }
there_are() { found=$(dialogs | wc -l) && [[ $found -eq $1 ]]; }
belongs_to() {
    found=$(xprop -id "$1" WM_TRANSIENT_FOR)
    [[ $found == *'# 0x'* && $((${found##* })) -eq $2 ]]
}

start_screen
unset QT_QPA_GENERIC_PLUGINS
"$program" "$data/valves" 0 2>"$scratch/first.log" &
other=$!
trap 'kill "$other" 2>/dev/null || true; finish' EXIT
await "one dialog" there_are 1
owner=$(dialogs)

"$program" "$data/valves" "$owner" 2>"$scratch/second.log" &
job=$!
await "two dialogs" there_are 2
await "window $owner as the owner" belongs_to "$(dialogs | grep -vx "$owner")" "$owner"
