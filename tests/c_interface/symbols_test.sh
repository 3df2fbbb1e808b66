#!/usr/bin/env bash
# The library of the C interface offers exactly the functions of the list beside this test, which are
# those of its header. A program that was linked with one of them needs it for ever: a line may come
# into the list, none may go.
set -euo pipefail
export LC_ALL=C
library=$1 header=$2
list=$(dirname "${BASH_SOURCE[0]}")/symbols.txt

# Instrumented code has marks of its own. Entries that are local to the library offer nothing: the
# linker leaves some in unoptimised builds.
offered=$(nm -D --defined-only --extern-only "$library" | sed -E 's/^[0-9a-f]+ [A-Za-z] //' |
    grep -vE '^(__asan_|__odr_asan|__ubsan_)')
declared=$(grep -A1 '^RADSEL_C_API' "$header" | sed -nE 's/.*(radsel_[a-z0-9_]+)\(.*/\1/p' | sort)
for names in "$offered" "$declared"; do
    if ! diff "$list" <(echo "$names" | sort); then
        echo "The C interface has changed: raise RADSEL_C_VERSION and add the new functions to"
        echo "$(basename "$list"). A function that is gone breaks the programs that call it."
        exit 1
    fi
done

# Closing the library must not take away what the toolkit's application object rests on.
if ! readelf -dW "$library" | grep -q NODELETE; then
    echo "The library would go when a program closes it."
    exit 1
fi
