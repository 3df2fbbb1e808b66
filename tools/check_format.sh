#!/usr/bin/env bash
# Holds every source against .clang-format and names each place that differs.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

if ! find src c_interface host_defaults reference_host workbench tests tools benchmarks fuzz examples \
    \( -name '*.h' -o -name '*.cpp' \) -print0 |
    xargs -0 -n 40 -P 2 clang-format --dry-run -Werror; then
    echo "The format differs; clang-format -i mends it." >&2
    exit 1
fi
