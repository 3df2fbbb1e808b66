#!/usr/bin/env bash
# Runs the test programs for Windows under Wine and holds what ran against what they list.
#   tools/windows_tests.sh BUILD
# The environment is Wine's as tools/windows.sh sets it. Fails over a test that fails, over a program
# that ends before its last test, and over a name that is left out and that no program has.
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
programs=(radsel_logic_tests radsel_planning_tests)
cd "$1"

list() { # program, filter: its tests by their whole names
    wine "bin/$1.exe" --gtest_list_tests --gtest_filter="$2" | tr -d '\r' |
        awk '/^[^ ]/ { suite = $1 } /^ / { print suite $1 }'
}

# Tests start parts of theirs as disabled ones.
parts="DISABLED_*:*.DISABLED_*"
mapfile -t left_out < <(sed -e '/^#/d' -e '/^$/d' "$here/tests/left_out_on_windows.txt")
filter=-$parts:$(IFS=: && echo "${left_out[*]}")
on_posix=$(find "$here/tests" -path '*/posix/*_test.cpp' -exec grep -hE '^TEST(_F)?\(' {} + | wc -l)

ran_in_all=0
faults=()
all=$'\n'
for program in "${programs[@]}"; do
    all+=$(list "$program" "-$parts")$'\n'
    expected=$(list "$program" "$filter" | wc -l)
    # The file is written behind the last test, and not by the programs that tests start.
    report=$program.xml
    rm -f "$report"
    code=0
    wine "bin/$program.exe" --gtest_filter="$filter" --gtest_output="xml:$report" 2>&1 |
        tr -d '\r' >"$program.txt" || code=${PIPESTATUS[0]}
    ran=0
    if [[ -f $report ]]; then
        ran=$(grep -c '<testcase .*result="completed"' "$report" || true)
    fi
    if ((code != 0 || expected == 0 || ran != expected)); then
        faults+=("$program: exit code $code, $ran of $expected tests run to their end")
        grep -E '^\[  FAILED|: error: |: Failure' "$program.txt" || tail -n 5 "$program.txt"
    fi
    ran_in_all=$((ran_in_all + ran))
done
for name in "${left_out[@]}"; do
    if [[ $all != *$'\n'"$name"$'\n'* ]]; then
        faults+=("left out, and in no program: $name")
    fi
done

if ((${#faults[@]} > 0)); then
    printf 'Windows: %s\n' "${faults[@]}" >&2
    exit 1
fi
echo "Windows: $ran_in_all tests of ${#programs[@]} programs passed; $((${#left_out[@]} + on_posix))" \
    "left out: ${#left_out[@]} by name, $on_posix for POSIX systems alone, which are not built."
