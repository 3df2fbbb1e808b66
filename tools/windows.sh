#!/usr/bin/env bash
# Builds for Windows, with Debian's cross compiler, what needs no window, and runs its tests under
# Wine. Installs what is missing.
#   tools/windows.sh [BUILD]
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build=${1:-$here/build-windows}

"$here/tools/setup.sh" "$here/tools/windows_packages.txt"

# At -O3 this compiler warns of headers of its own.
cmake -S "$here" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DRADSEL_WERROR=ON \
    -DCMAKE_CXX_FLAGS_RELWITHDEBINFO="-O2 -DNDEBUG" \
    -DCMAKE_TOOLCHAIN_FILE="$here/cmake/toolchains/windows-mingw.cmake"
cmake --build "$build"
build=$(cd "$build" && pwd)

# Wine keeps what it takes for the disk of a Windows machine in the build folder, and asks nobody
# about the parts that it can do without.
export WINEPREFIX=$build/wine WINEDEBUG=-all WINEDLLOVERRIDES=mscoree,mshtml=
trap 'wineserver -k 2>/dev/null || true' EXIT

# Programs find the compiler's libraries along the search path, as on a machine that has them.
compiler=x86_64-w64-mingw32-g++-posix
folders=
for library in libstdc++-6.dll libwinpthread-1.dll; do
    folder=$(dirname "$("$compiler" -print-file-name="$library")")
    folders+=Z:${folder//\//\\}';'
done
export WINEPATH=$folders

ctest --test-dir "$build" --output-on-failure

left_out=$(sed -e '/^#/d' -e '/^$/d' "$here/tests/left_out_on_windows.txt" | paste -sd:)
report=$build/windows_tests.txt
(cd "$build" && wine bin/radsel_logic_tests.exe --gtest_filter="-$left_out") 2>&1 |
    tr -d '\r' | tee "$report" | grep -E '^\[  FAILED|: error: |: Failure' || true
# Tests start this program again for parts of theirs; its own numbers come last.
passed=$(sed -nE 's/^\[  PASSED  \] ([0-9]+) test.*/\1/p' "$report" | tail -1)
failed=$(sed -nE 's/^\[  FAILED  \] ([0-9]+) test.*, listed below:/\1/p' "$report" | tail -1)
echo "Windows: ${passed:-0} tests passed, ${failed:-0} failed, $(tr ':' '\n' <<<"$left_out" | wc -l) left out."
[[ -n $passed && -z $failed ]]

# The program that looks through catalogues finds what it finds elsewhere.
wine "$build/bin/radsel_check.exe" "$here/data" >"$build/windows_check.txt" || [[ $? -eq 1 ]]
grep 'valvole; 22 tipi di attacco: 2 difetti$' "$build/windows_check.txt"

"$here/tools/windows_batch.sh" "$build/bin/radsel_batch.exe" "$build/batch"
