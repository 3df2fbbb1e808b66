#!/usr/bin/env bash
# Configures as a preset of CMakePresets.json says, and builds a target in its folder. On standard
# error it says how far it is: on a terminal one line that moves, elsewhere a line for every quarter.
# What the tools say is shown only if they fail, from the first failure on.
#   tools/build_quietly.sh SOURCES PRESET TARGET
set -euo pipefail
sources=$1 preset=$2 target=$3

log=$(mktemp)
trap 'rm -f "$log"' EXIT

# Ninja counts its steps as "[12/345]". What has few of them is done before anybody reads a number.
few=20
show_progress() {
    local line done_steps all quarter told=0 started=$SECONDS
    while IFS= read -r line; do
        printf '%s\n' "$line" >>"$log"
        [[ $line =~ ^\[([0-9]+)/([0-9]+)\] ]] || continue
        done_steps=${BASH_REMATCH[1]} all=${BASH_REMATCH[2]}
        [[ $all -gt $few ]] || continue
        if [[ -t 2 ]]; then
            printf '\rBuilding: %d of %d, %d s' "$done_steps" "$all" $((SECONDS - started)) >&2
        else
            quarter=$((4 * done_steps / all))
            [[ $quarter -gt $told ]] || continue
            told=$quarter
            echo "Building: $done_steps of $all, $((SECONDS - started)) s" >&2
        fi
    done
    [[ ! -t 2 || ${all:-0} -le $few ]] || printf '\n' >&2
}

cd "$sources"
if ! { cmake --preset "$preset" && cmake --build --preset "$preset" --target "$target"; } 2>&1 |
    show_progress; then
    sed -n '/^FAILED\|^CMake Error\|error:/,$p' "$log" | grep . >&2 || cat "$log" >&2
    exit 1
fi
