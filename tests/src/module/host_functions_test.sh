#!/usr/bin/env bash
# What the module asks of the libraries of its host is what the list beside this test says. A host
# that was built before a function came in does not have it.
#   host_functions_test.sh MODULE HOST-LIBRARY...
set -euo pipefail
export LC_ALL=C
module=$1
shift
list=$(dirname "${BASH_SOURCE[0]}")/host_functions.txt

names() { # nm's options, files
    nm -D --format=posix "$@" | sed -nE 's/^([^ @]+)(@[^ ]*)? [A-Za-z].*/\1/p' | sort -u
}
# Instrumented code asks for type information as well, which every host of the class has, and offers
# marks of its own.
own() { grep -vE '^(__asan|__odr_asan|__ubsan|_ZNS|_ZNKS|_ZS|_ZT[ISV])' || true; }
asked=$(comm -12 <(names --undefined-only "$module") <(names --defined-only "$@") | own |
    c++filt | sed 's/std::__cxx11::basic_string<wchar_t, [^&]*> >/CString/g; s/\[abi:cxx11\]//' | sort)

if ! diff "$list" <(echo "$asked"); then
    echo "The module asks something else of its host: raise kHostInterfaceVersion in"
    echo "src/host/host_identity.h, tell it in the CHANGELOG, and bring $(basename "$list") up to date."
    exit 1
fi
