#!/usr/bin/env bash
# clang-tidy over every source that the build in the folder given compiles.
set -euo pipefail
build=$1
cd "$(dirname "${BASH_SOURCE[0]}")/.."

status=0
run-clang-tidy -quiet -p "$build" "^$PWD/(src|c_interface/[a-z]+|host_defaults|reference_host|workbench|tests|tools|examples)/" \
    2>/dev/null || status=$?
[[ $status -ne 0 ]] || echo "clang-tidy: clean"
exit "$status"
