#!/usr/bin/env bash
# A program of the logic alone loads no library of the toolkit.
set -euo pipefail

loaded=$(ldd "$1")
grep -q libHostPrefs <<<"$loaded" || { echo "no list of libraries: $loaded"; exit 1; }
if grep libQt <<<"$loaded"; then
    echo "$1 loads the toolkit"
    exit 1
fi
