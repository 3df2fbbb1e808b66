#!/usr/bin/env bash
# Runs the test program with an empty folder for what it writes.
set -euo pipefail
program=$1 data=$2
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
mkdir "$scratch/Valmorena" "$scratch/Rotto" "$scratch/stores" "$scratch/Fontespada"
# The dialogs write beside what they read.
cp -r "$data/root" "$scratch/root"
# A valve file in which an article ends behind its first field.
sed -E '0,/^800;/s/^(800;).*/\1/' "$data/valves/Fontespada/ha.tga" >"$scratch/Rotto/ha.tga"
# One whose articles have no order numbers.
sed -E 's/^(800;[^;]*;)[^;]*/\1/' "$data/valves/Fontespada/ha.tga" >"$scratch/Fontespada/ha.tga"
env -u RADSEL_HKDIR -u RADSEL_VEDIR "$program" "$data" "$scratch"
