#!/usr/bin/env bash
# The host in C, built from what is installed with a compiler for C and nothing else: its four jobs,
# silently and with the dialogs confirmed.
#   c_host_test.sh PREFIX COMPILER FLAGS CONFIRMING-LIBRARY
set -euo pipefail
prefix=$1 compiler=$2 flags=$3 confirm=$4

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
libraries=$(dirname "$(find "$prefix" -name libradsel_c.so)")
export PKG_CONFIG_PATH=$libraries/pkgconfig LD_LIBRARY_PATH=$libraries
# shellcheck disable=SC2046,SC2086
"$compiler" $flags -std=c99 -Wall -Wextra -Wpedantic -Wconversion -Wshadow ${RADSEL_WERROR-} \
    -o "$work/c_host" \
    "$prefix/share/doc/radsel/examples/c_host/c_host.c" $(pkg-config --cflags --libs radsel_c)

# 1700 W a metre at 0.495 are 1009.8 W at 1200 mm and 841.5 W at 1000 mm.
silent='found P 22/1200: 600 x 100 x 1200 mm, 1010 W, 7.2 l
valve FT-S10-N: DN 10, 7 rows, kv 0.440 to 0.048'
valves=$prefix/share/radsel/valves
diff <(echo "$silent") <("$work/c_host" "$valves")

# The toolkit's own leaks are not looked at, and the library comes ahead of the sanitizer's.
dialogs="$silent
chosen P 22/1200: 600 x 100 x 1200 mm, 1010 W, 7.2 l
connected: flow 0.5;0;0;0;0.5;0;0;0;0.1;0;0;0, return 0.5;0;0;0;-0.5;0;0;0;0.05;0;0;0"
diff <(echo "$dialogs") <(timeout 60 env QT_QPA_PLATFORM=offscreen LD_PRELOAD="$confirm" \
    TGA_DATA_SINGLE="$prefix/share/radsel/root" XDG_CONFIG_HOME="$work" \
    ASAN_OPTIONS="${ASAN_OPTIONS-}:verify_asan_link_order=0:detect_leaks=0" \
    "$work/c_host" "$valves" dialogs)
