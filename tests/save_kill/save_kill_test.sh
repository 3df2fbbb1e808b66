#!/usr/bin/env bash
# A program killed while it saves leaves one of the two buildings in the file, whole, and beside it
# never more than the file it was at.
#   save_kill_test.sh <radsel_save_kill> [seed]
set -euo pipefail

program=$1
seed=${2:-$RANDOM}
rounds=50
longest_ms=60

RANDOM=$seed
echo "seed $seed"

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
mkfifo "$folder/begun"
mkdir "$folder/plans"
file=$folder/plans/casa.json

fail() {
    echo "$1" >&2
    ls -la "$folder/plans" >&2
    exit 1
}

declare -A seen=([A]=0 [B]=0)
torn=0
for ((round = 1; round <= rounds; ++round)); do
    "$program" --write "$file" >"$folder/begun" &
    pid=$!
    read -r _ <"$folder/begun" || fail "round $round: did not begin"
    sleep "$(printf '0.%03d' $((RANDOM % longest_ms + 1)))"
    kill -KILL "$pid"
    { wait "$pid"; } 2>/dev/null || true

    found=$("$program" --check "$file") || fail "round $round: the file is damaged"
    seen[$found]=$((seen[$found] + 1))
    files=$(find "$folder/plans" -type f | wc -l)
    ((files <= 2)) || fail "round $round: $files files"
    ((files == 1)) || torn=$((torn + 1))
done

"$program" --once "$file"
[[ $(find "$folder/plans" -type f | wc -l) -eq 1 ]] || fail "a leftover outlives the next save"
echo "$rounds kills, $torn of them within a save; found A ${seen[A]} times, B ${seen[B]} times"
