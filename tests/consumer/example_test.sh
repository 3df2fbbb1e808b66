#!/usr/bin/env bash
# The example, over a folder of catalogues, prints the radiator that can be worked out by hand.
set -euo pipefail
program=$1 catalogues=$2

# 55/45/20 °C stands against 75/65/20 °C with the spread divided by 1.25: 8 / ln(33/25) = 28.82 K
# against 8 / ln(53/45) = 48.89 K, which to the power of 1.33 is 0.495. The series of 600 mm height
# gives 1698 W a metre, so 841 W at 1000 mm and 1867.8, that is 1868 W x 0.495 = 925 W at 1100 mm,
# which is nearer to 900 W. It holds 6.3 l a metre.
expected='C 22/600x1100: 600 x 102 x 1100 mm, 925 W, 6.93 l'

diff <(echo "$expected") <(RADSEL_HKDIR=$catalogues "$program")

# A folder without catalogues has no radiator.
empty=$(mktemp -d)
trap 'rmdir "$empty"' EXIT
if RADSEL_HKDIR=$empty "$program" 2>/dev/null; then
    echo "finds a radiator without a catalogue"
    exit 1
fi
