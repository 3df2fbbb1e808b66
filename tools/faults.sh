#!/usr/bin/env bash
# Lets calls of the system fail one by one and kills programs at their work, and looks at what is
# stored then: the old or the new content, whole, nothing of anyone else's lost, no file left over,
# and no success told with something missing. In full that takes an hour; --short takes a sample for
# at most two minutes.
#   tools/faults.sh BUILD [--short]
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build=$(cd "$1" && pwd)
stores=$build/tests/radsel_store_faults
workbench=$build/workbench/radsel_workbench
failing_calls=$build/tests/radsel_failing_calls.so

kills=100
runs_a_kind=100000
if [[ ${2-} == --short ]]; then
    kills=5
    runs_a_kind=6
fi

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
wrong=0

# The stores, one after the other: every call that storing a number needs fails in turn.
for store in settings places lists start layer building; do
    "$stores" "$store" --kill "$kills" || wrong=$((wrong + 1))
    LD_PRELOAD=$failing_calls "$stores" "$store" --fail || wrong=$((wrong + 1))
done

# The batch run, with its data and its results in one folder.
work=$scratch/batch
mkdir "$work"
cp -r "$here/data" "$work/data"
export RADSEL_HKDIR=$work/data/catalogues RADSEL_VEDIR=$work/data/valves
export RADSEL_HKBLOCKDIR=$work/data/drawing/heizkoerper.dxf
export RADSEL_VEBLOCKDIR=$work/data/drawing/ventile.dxf
export TGA_DATA_SINGLE=$work/data/root XDG_CONFIG_HOME=$work/config QT_QPA_PLATFORM=offscreen
# The same document on every run.
export SOURCE_DATE_EPOCH=0 QT_HASH_SEED=0

batch() { # SYSTEM
    "$workbench" --batch --building "$work/data/buildings/villa-dei-tigli.json" --system "$1" \
        --workplace "$work/data/workplace" --output "$work/out" --save "$work/out/salvato.json"
}

fail_batch() { # CALL NTH ERRNO: the exit code
    local code=0
    RADSEL_FAIL_FOLDER=$work RADSEL_FAIL_CALL=$1 RADSEL_FAIL_NTH=$2 RADSEL_FAIL_ERRNO=$3 \
        RADSEL_FAIL_REPORT=$scratch/count LD_PRELOAD=$failing_calls \
        batch 55/45 >"$scratch/answer" 2>"$scratch/errors" || code=$?
    echo "$code"
}

has_end() { # FILE
    case $1 in
    *.pdf) [[ $(tail -c 6 "$1") == %%EOF* ]] ;;
    *.dxf) [[ $(tail -n 1 "$1") == EOF* ]] ;;
    *.xlsx) [[ $(tail -c 22 "$1" | head -c 2) == PK ]] ;;
    *.json) [[ $(tail -n 1 "$1") == "}" ]] ;;
    *) [[ $(tail -c 1 "$1") == "" ]] ;;
    esac
}

# New after a success, else new or old, else what there is without a catalogue that could not be
# read, which is told. Two documents differ in their dates and in the order of their fonts.
is_whole() { # NAME CODE
    local file=$work/out/$1
    [[ -e $file ]] || return
    if [[ $1 == *.pdf || $2 == "$bad_catalogue" ]]; then
        has_end "$file"
    else
        cmp -s "$file" "$scratch/new/$1" || { [[ $2 != 0 ]] && cmp -s "$file" "$scratch/old/$1"; }
    fi
}

# A call that failed may keep the program from removing a file of its own; the next run does.
is_left_over() {
    [[ $(ls -A "$work/out") != $(ls -A "$scratch/new") ]] || return
    batch 55/45 >/dev/null 2>&1
    [[ $(ls -A "$work/out") != $(ls -A "$scratch/new") ]]
}

check_batch() { # CODE: says what is wrong
    local name
    [[ $1 -lt 128 ]] || echo "the program ended by signal $(($1 - 128))"
    for name in $(ls "$scratch/new"); do
        is_whole "$name" "$1" || echo "$name is damaged, or old after a success"
    done
    ! is_left_over || echo "a file is left over"
    [[ $1 -ne 0 ]] || cmp -s "$scratch/answer" "$scratch/new-answer" ||
        echo "success, with another answer"
    [[ $1 -eq 0 || -s $scratch/errors || $1 -ge 128 ]] || echo "exit $1 without a word"
}

batch 75/65 >"$scratch/answer" 2>&1
cp -r "$work/out" "$scratch/old"
batch 55/45 >"$scratch/new-answer" 2>/dev/null
cp -r "$work/out" "$scratch/new"

restore() {
    rm -rf "$work/out"
    cp -r "$scratch/old" "$work/out"
}

# Numbers as the system has them: 5 EIO, 13 EACCES, 24 EMFILE, 28 ENOSPC, 37 ENOLCK; 0 writes half.
bad_catalogue=4
runs=0
for fault in open:24 open:5 open:13 readdir:5 read:5 write:28 write:0 fsync:5 close:5 ftruncate:5 \
    lseek:5 flock:37 fchmod:5 rename:5 stat:5 fstat:5 realpath:5; do
    call=${fault%:*}
    restore
    fail_batch "$call" 0 0 >/dev/null
    count=$(<"$scratch/count")
    step=$(((count + runs_a_kind - 1) / runs_a_kind))
    for ((nth = 1; nth <= count; nth += step)); do
        restore
        code=$(fail_batch "$call" "$nth" "${fault#*:}")
        runs=$((runs + 1))
        found=$(check_batch "$code")
        [[ -z $found ]] || {
            echo "batch: $call number $nth of $count with error ${fault#*:}, exit $code: $found"
            wrong=$((wrong + 1))
        }
    done
done
echo "batch: $runs runs with a call that failed"

[[ $wrong -eq 0 ]] || echo "$wrong times wrong"
[[ $wrong -eq 0 ]]
