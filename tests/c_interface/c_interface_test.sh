#!/usr/bin/env bash
# Runs the test program with an empty folder for what it writes.
set -euo pipefail
program=$1 data=$2
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
mkdir "$scratch/Valmorena"
env -u RADSEL_HKDIR -u RADSEL_VEDIR "$program" "$data" "$scratch"
