#!/usr/bin/env bash
# A library for Windows offers what the headers mark and what the list says, which are the same
# functions.
#   exported_names_test.sh OBJDUMP LIBRARY DEF-FILE
set -euo pipefail
export LC_ALL=C

listed=$(sed '1,/^EXPORTS/d; s/^ *//' "$3" | sort)
offered=$("$1" -p "$2" | sed -nE '/Ordinal\/Name Pointer/,/^$/ s/^[[:space:]]*\[ *[0-9]+\] (\+base\[ *[0-9]+\] +[0-9a-f]+ )?//p' | sort)
diff <(echo "$listed") <(echo "$offered")
[[ $(wc -l <<<"$offered") -eq 13 ]]
