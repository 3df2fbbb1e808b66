#!/usr/bin/env bash
# The guide quotes the example that is compiled, and leaves out no function of either side.
set -euo pipefail
source=$1
guide=$source/docs/host-programmer.md
example=$source/examples/bind_radsel.cpp

diff "$example" <(sed -n '/^```cpp$/,/^```$/p' "$guide" | sed '1d;$d')
[[ $(wc -l <"$example") -le 40 ]] || { echo "the example is too long to be read" && false; }

declared() { # files
    sed -nE 's/^(extern "C" HOST_API| *(HOST_API|RADSEL_API|virtual|static)) [^(]*[ *&]([A-Za-z_0-9]+)\(.*/\3/p' "$@"
}
names=$(declared "$source"/src/frame/entry_points.h "$source"/src/host/*.h)
[[ $(wc -w <<<"$names") -ge 50 ]] || { echo "only found: $names" && false; }
missing=0
for name in $names; do
    grep -qw "$name" "$guide" || { echo "not in the guide: $name" && missing=1; }
done

# What the skeleton of a host writes is what the guide says that a host has to write.
written=$(sed -nE 's/^[A-Za-z_0-9:]+[ *]+([A-Za-z_0-9]+)\(.*/\1/p' "$source"/examples/host/{catalogue,settings,stores}.cpp |
    grep -xF "$names" | sort)
told=$(sed -n '/^Fourteen functions/,/^A host whose/p' "$guide" | grep '^| `' | cut -d '|' -f 2 |
    grep -oE '[A-Za-z_0-9]{4,}' | sort)
diff <(echo "$written") <(echo "$told") || missing=1
[[ $(wc -w <<<"$written") -eq 14 ]] || missing=1
exit $missing
