#!/usr/bin/env bash
# Builds the fuzz targets with clang and runs them side by side for so many minutes. Inputs that reach
# new code come into tests/fuzz_corpus, where the tests run them; look at them before you hand them in.
# A finding ends the run with 1, and the smallest input that shows it lies in BUILD/findings.
#   tools/fuzz.sh MINUTES [TARGET...]
# RADSEL_FUZZ_BUILD names another build folder than build-fuzz.
set -euo pipefail

usage() {
    echo "usage: tools/fuzz.sh MINUTES [TARGET...]" >&2
    exit 2
}

[[ ${1-} =~ ^[1-9][0-9]*$ ]] || usage
minutes=$1
shift

here=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build=${RADSEL_FUZZ_BUILD:-$here/build-fuzz}
kept=$here/tests/fuzz_corpus
targets=("$@")
if [[ ${#targets[@]} -eq 0 ]]; then
    targets=("$here"/fuzz/*_fuzz.cpp)
    targets=("${targets[@]##*/}")
    targets=("${targets[@]%_fuzz.cpp}")
fi
for target in "${targets[@]}"; do
    [[ -e $here/fuzz/${target}_fuzz.cpp ]] || usage
done

cmake -S "$here" -B "$build" -G Ninja -DRADSEL_FUZZ=ON -DCMAKE_CXX_COMPILER=clang++ >/dev/null
cmake --build "$build" --target "${targets[@]/%/_fuzz}"

findings=$build/findings
rm -rf "$findings"
mkdir -p "$findings"
scratch=$(mktemp -d)
trap 'kill $(jobs -p) 2>/dev/null || true; rm -rf "$scratch"' EXIT
# The targets write each input to a file first.
[[ ! -w /dev/shm ]] || export TMPDIR=/dev/shm
export QT_QPA_PLATFORM=offscreen

# So many targets share the processors that a slow input is no finding before it takes a minute.
common=(-timeout=60 -rss_limit_mb=2048 -print_final_stats=1)

dictionary() { # TARGET
    case $1 in
    ventil_katalog | catalogue) echo records ;;
    building) echo building ;;
    esac
}

fuzz() { # TARGET
    local options=("${common[@]}" -max_total_time=$((minutes * 60)) "-artifact_prefix=$findings/$1-")
    local words
    words=$(dictionary "$1")
    [[ -z $words ]] || options+=("-dict=$here/fuzz/$words.dict")
    mkdir -p "$scratch/$1" "$kept/$1"
    "$build/fuzz/$1_fuzz" "${options[@]}" "$scratch/$1" "$kept/$1" >"$scratch/$1.log" 2>&1
}

minimise() { # TARGET FINDING
    "$build/fuzz/$1_fuzz" "${common[@]}" -minimize_crash=1 -max_total_time=60 \
        -exact_artifact_path="$2.min" "$2" >/dev/null 2>&1 || true
    # What cannot be made smaller is left as it is.
    [[ ! -e $2.min ]] || mv "$2.min" "$2"
}

report() { # TARGET EXIT-CODE
    local runs added finding
    runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$scratch/$1.log")
    added=$(find "$kept/$1" -type f | wc -l)
    # Without counters only what reaches other places counts, not what passes them more often.
    "$build/fuzz/$1_fuzz" -merge=1 -use_counters=0 "$kept/$1" "$scratch/$1" >"$scratch/$1.merge" 2>&1 || true
    added=$(($(find "$kept/$1" -type f | wc -l) - added))
    echo "$1: ${runs:-?} executions, $added inputs kept"
    [[ $2 -ne 0 ]] || return 0

    cp "$scratch/$1.log" "$findings/$1.log"
    for finding in "$findings/$1"-*; do
        [[ -e $finding ]] || continue
        minimise "$1" "$finding"
        echo "$1: a finding, $finding; what it does is told in $findings/$1.log"
    done
    return 1
}

declare -A started
for target in "${targets[@]}"; do
    fuzz "$target" &
    started[$target]=$!
done
wrong=0
for target in "${targets[@]}"; do
    code=0
    wait "${started[$target]}" || code=$?
    report "$target" "$code" || wrong=$((wrong + 1))
done
[[ $wrong -eq 0 ]] || echo "$wrong targets with a finding"
[[ $wrong -eq 0 ]]
